#include "drawing/drawing.h"

#include <algorithm>
#include <utility>

namespace kestrum {

namespace {

Draw_Operation Solid_Line(double x1, double y1, double x2, double y2, int colour, double width) {
    return {.kind = Draw_Kind::Line,
            .x1 = x1,
            .y1 = y1,
            .x2 = x2,
            .y2 = y2,
            .width = width,
            .colour = colour};
}

} // namespace

void Drawing::Add(Draw_Operation operation) {
    if (keeps_journal_) {
        journal_.push_back(operation);
    }
    Own_Steps().push_back(std::move(operation));
}

std::vector<Draw_Operation>& Drawing::Own_Steps() {
    if (!operations_) {
        operations_ = std::make_shared<std::vector<Draw_Operation>>();
    } else if (operations_.use_count() > 1) {
        operations_ = std::make_shared<std::vector<Draw_Operation>>(*operations_);
    }
    return *operations_;
}

void Drawing::Keep_Journal(bool keeps) {
    keeps_journal_ = keeps;
    if (!keeps) {
        journal_ = {};
    }
}

std::vector<Draw_Operation> Drawing::Take_Journal() {
    return std::exchange(journal_, {});
}

void Drawing::Clear() {
    if (operations_ && operations_.use_count() == 1) {
        operations_->clear(); // its room serves the next drawing
    } else {
        operations_.reset();
    }
    Add({.kind = Draw_Kind::Clear});
}

void Drawing::Line(double x1, double y1, double x2, double y2, int colour, double width,
                   Line_Style style, Draw_Role role) {
    Draw_Operation line = Solid_Line(x1, y1, x2, y2, colour, width);
    line.style = style;
    line.role = role;
    Add(std::move(line));
}

void Drawing::Line_By_Hand(double x1, double y1, double x2, double y2, int colour, double width) {
    Draw_Operation line = Solid_Line(x1, y1, x2, y2, colour, width);
    line.by_hand = true;
    Add(std::move(line));
}

void Drawing::Circle(double x, double y, double radius, int colour, double width) {
    Add({.kind = Draw_Kind::Circle,
         .x1 = x,
         .y1 = y,
         .radius = radius,
         .width = width,
         .colour = colour});
}

void Drawing::Text(double x, double y, std::string_view text, double size, int colour) {
    Add({.kind = Draw_Kind::Text,
         .x1 = x,
         .y1 = y,
         .x2 = x + Canvas_Text_Width(text, size),
         .size = size,
         .colour = colour,
         .cell = x,
         .text = std::string(text)});
}

void Drawing::Stretch(double factor_x, double factor_y) {
    const double smaller = std::min(factor_x, factor_y);
    stretched_by_.x *= factor_x;
    stretched_by_.y *= factor_y;
    for (Draw_Operation& step : Own_Steps()) {
        step.x1 *= factor_x;
        step.x2 *= factor_x;
        step.cell *= factor_x;
        step.limit *= factor_x;
        step.y1 *= factor_y;
        step.y2 *= factor_y;
        step.radius *= smaller;
        step.width *= smaller;
        step.size *= smaller;
    }
}

double Canvas_Text_Width(std::string_view text, double size) {
    constexpr double width_of_character = 0.5;
    const auto characters = std::ranges::count_if(
        text, [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; });
    return static_cast<double>(characters) * size * width_of_character;
}

double Canvas_Text_Height(double size) {
    constexpr double height_of_line = 1.2;
    return size * height_of_line;
}

} // namespace kestrum
