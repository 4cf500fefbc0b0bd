#include "drawing/paper.h"

#include <algorithm>

namespace kestrum {

namespace {

/// Smaller than this no page is made for the sake of its height.
constexpr double least_scale = 0.7;

double Bottom_Of(const Draw_Operation& step) {
    switch (step.kind) {
    case Draw_Kind::Text:
        return step.y1 + Printed_Text_Height(step.size);
    case Draw_Kind::Picture:
        return step.y1 + step.y2;
    case Draw_Kind::Line:
        return std::max(step.y1, step.y2);
    case Draw_Kind::Circle:
        return step.y1 + step.radius;
    case Draw_Kind::Clear:
        break;
    }
    return 0;
}

} // namespace

Paper Whole_Sheet(Paper_Size size) {
    return size == Paper_Size::A4 ? Paper{.width = 11906, .height = 16838}
                                  : Paper{.width = 12240, .height = 15840};
}

Paper Within_Margins(Paper_Size size) {
    const Paper sheet = Whole_Sheet(size);
    return {.width = sheet.width - 2 * ordinary_margin,
            .height = sheet.height - 2 * ordinary_margin};
}

double Printed_Text_Width(std::string_view text, double size) {
    constexpr double to_canvas_width = 20; // twips in a point
    return Canvas_Text_Width(text, size) * to_canvas_width;
}

double Printed_Text_Height(double size) {
    constexpr double height_of_line = 24;
    return size * height_of_line;
}

double Page_End(const Paper& paper) {
    return paper.height / std::min(least_scale, paper.width / page_width);
}

double Scale_To_Fit(const Drawing& page, const Paper& paper) {
    double scale = std::min(paper.width / page_width, 1.0);
    for (const Draw_Operation& step : page.Operations()) {
        scale = std::min(scale, paper.height / std::max(Bottom_Of(step), 1.0));
    }
    return scale;
}

} // namespace kestrum
