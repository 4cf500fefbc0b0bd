#include "painting/text_layout.h"

#include "painting/picture_area.h"

#include <algorithm>

namespace kestrum::painting {

namespace {

/// Texts keep clear of the frame's sides.
constexpr double least_left = 4;
constexpr double most_right = picture_area::left + picture_area::width - 12;

/// The first place to the right of a box, or its own, where it lies over none of the texts.
double Free_Left(const std::vector<Fitted_Text>& texts, QRectF box) {
    constexpr double gap = 5;
    const auto covered = [&](const Fitted_Text& text) { return text.Box().intersects(box); };
    for (auto found = texts.begin(); found != texts.end();) {
        found = std::ranges::find_if(texts, covered);
        if (found != texts.end()) {
            box.moveLeft(found->Box().right() + gap);
        }
    }
    return box.left();
}

Fitted_Text Placed(const std::vector<Fitted_Text>& texts, const Draw_Operation& step) {
    const double measure = Canvas_Text_Width(step.text, step.size);
    const auto at = [&](double left) {
        const double room = most_right - left;
        return Fitted(step, left, room > 0 ? std::min(measure, room) : measure);
    };
    Fitted_Text text = at(std::max(step.x1, least_left));
    const double left = Free_Left(texts, text.Box());
    // Where too little room is left it stays.
    if (left > text.left && most_right - left > text.width / 2) {
        text = at(left);
    }
    return text;
}

} // namespace

std::vector<Fitted_Text> Laid_Out_Texts(std::span<const Draw_Operation> steps) {
    std::vector<Fitted_Text> texts;
    for (const Draw_Operation& step : steps) {
        if (step.kind == Draw_Kind::Text) {
            texts.push_back(Placed(texts, step));
        }
    }
    return texts;
}

} // namespace kestrum::painting
