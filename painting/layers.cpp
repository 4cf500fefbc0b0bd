#include "painting/layers.h"

#include "painting/polyline.h"
#include "painting/text_layout.h"

#include <algorithm>

namespace kestrum::painting {

namespace {

void Paint_Figures(std::span<const Draw_Operation> steps, bool by_hand, Step_Painter& painter) {
    while (!steps.empty()) {
        const std::size_t lines = Joined_Lines(steps);
        if (steps.front().by_hand == by_hand) {
            if (lines > 0) {
                painter.Lines(steps.first(lines));
            } else if (steps.front().kind == Draw_Kind::Circle) {
                painter.Circle(steps.front());
            }
        }
        steps = steps.subspan(std::max<std::size_t>(lines, 1));
    }
}

} // namespace

void Paint_In_Layers(const Drawing& drawing, Step_Painter& painter) {
    const std::span<const Draw_Operation> steps = drawing.Operations();
    Paint_Figures(steps, false, painter);
    for (const Fitted_Text& text : Laid_Out_Texts(steps)) {
        painter.Text(text);
    }
    Paint_Figures(steps, true, painter);
}

} // namespace kestrum::painting
