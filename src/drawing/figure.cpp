#include "drawing/figure.h"

#include "base/text.h"

#include <algorithm>

namespace kestrum {

void Figure::Line(Figure_Point from, Figure_Point to, int colour, double line_width,
                  std::vector<double> dashes) {
    Add(Figure_Path{
        .points = {from, to}, .stroke = colour, .width = line_width, .dashes = std::move(dashes)});
}

namespace {

void Move_Down(Figure_Path& path, double by) {
    for (Figure_Point& point : path.points) {
        point.y += by;
    }
}

void Move_Down(Figure_Text& text, double by) {
    text.y += by;
}

void Move_Down(Figure_Picture& picture, double by) {
    picture.box.top += by;
    picture.box.bottom += by;
}

} // namespace

Figure Below_Each_Other(std::span<const Figure> pages) {
    Figure all(0, 0);
    for (const Figure& page : pages) {
        for (Figure::Step step : page.Steps()) {
            std::visit(
                [&all](auto& kind) {
                    Move_Down(kind, all.height);
                    all.Add(std::move(kind));
                },
                step);
        }
        all.width = std::max(all.width, page.width);
        all.height += page.height;
    }
    return all;
}

double Figure_Text_Width(std::string_view text, double size, bool bold) {
    constexpr double plain_share = 0.6;
    constexpr double bold_share = 0.67;
    return static_cast<double>(Length(text)) * size * (bold ? bold_share : plain_share);
}

namespace {

constexpr std::string_view ellipsis = "\xE2\x80\xA6";

/// How many letters of a text there is room for, without those that an ellipsis takes.
std::size_t Letters_That_Fit(double size, bool bold, double width) {
    const double letters = width / Figure_Text_Width("n", size, bold);
    return letters < 2 ? 1 : static_cast<std::size_t>(letters) - 1;
}

} // namespace

std::string Fitted_Text(std::string_view text, double size, bool bold, double width) {
    if (Figure_Text_Width(text, size, bold) <= width) {
        return std::string(text);
    }
    std::string cut(Without_Outer_Blanks(Left(text, Letters_That_Fit(size, bold, width))));
    return cut.append(ellipsis);
}

std::string Fitted_Name(std::string_view name, double size, bool bold, double width) {
    if (Figure_Text_Width(name, size, bold) <= width) {
        return std::string(name);
    }
    const std::size_t letters = Letters_That_Fit(size, bold, width);
    const std::size_t behind = letters / 2;
    std::string cut(Left(name, letters - behind));
    return cut.append(ellipsis).append(Middle(name, Length(name) - behind + 1));
}

} // namespace kestrum
