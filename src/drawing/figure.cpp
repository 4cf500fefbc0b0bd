#include "drawing/figure.h"

#include "base/text.h"

namespace kestrum {

void Figure::Line(Figure_Point from, Figure_Point to, int colour, double line_width,
                  std::vector<double> dashes) {
    Add(Figure_Path{.points = {from, to},
                    .stroke = colour,
                    .width = line_width,
                    .dashes = std::move(dashes)});
}

double Figure_Text_Width(std::string_view text, double size, bool bold) {
    constexpr double plain_share = 0.6;
    constexpr double bold_share = 0.67;
    return static_cast<double>(Length(text)) * size * (bold ? bold_share : plain_share);
}

std::string Fitted_Text(std::string_view text, double size, bool bold, double width) {
    std::size_t letters = Length(text);
    if (Figure_Text_Width(text, size, bold) <= width) {
        return std::string(text);
    }
    constexpr std::string_view ellipsis = "\xE2\x80\xA6";
    while (letters > 1) {
        --letters;
        std::string cut(Without_Outer_Blanks(Left(text, letters)));
        cut += ellipsis;
        if (Figure_Text_Width(cut, size, bold) <= width) {
            return cut;
        }
    }
    return std::string(ellipsis);
}

} // namespace kestrum
