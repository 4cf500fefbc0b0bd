#pragma once

#include "drawing/drawing.h"

#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace kestrum {

struct Figure_Point {
    double x = 0;
    double y = 0;
};

struct Figure_Box {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;

    [[nodiscard]] double Width() const { return right - left; }

    [[nodiscard]] double Height() const { return bottom - top; }
};

/// A line through points, or the area within it. Colours are 0xRRGGBB, `no_colour` for none.
struct Figure_Path {
    std::vector<Figure_Point> points;
    bool closed = false;
    int stroke = no_colour;
    double width = 1;
    /// Lengths of dashes and gaps by turns; empty for a whole line.
    std::vector<double> dashes{};
    int fill = no_colour;
    double opacity = 1; // of the fill
};

struct Figure_Text {
    double x = 0; // of the anchor
    double y = 0; // of the line that the letters stand on
    std::string text;
    double size = 0;
    int colour = 0;
    bool bold = false;
    Text_Anchor anchor = Text_Anchor::Left;
    bool upwards = false; // read from below
};

/// A picture that fills a box: the bytes of a BMP, GIF, JPEG or PNG file.
struct Figure_Picture {
    Figure_Box box;
    std::string bytes;
};

/// A display list for charts, in points. Other than a `Drawing`, whose steps are single lines that
/// the scripts report, it has paths with any dashes and fills. It is painted by replaying it.
class Figure {
public:
    Figure(double its_width, double its_height) : width(its_width), height(its_height) {}

    using Step = std::variant<Figure_Path, Figure_Text, Figure_Picture>;

    void Add(Figure_Path path) { steps_.emplace_back(std::move(path)); }

    void Add(Figure_Text text) { steps_.emplace_back(std::move(text)); }

    void Add(Figure_Picture picture) { steps_.emplace_back(std::move(picture)); }

    void Line(Figure_Point from, Figure_Point to, int colour, double line_width,
              std::vector<double> dashes = {});

    [[nodiscard]] const std::vector<Step>& Steps() const { return steps_; }

    double width;
    double height;

private:
    std::vector<Step> steps_;
};

/// The room that a text takes, by fixed rules that no usual sans-serif font exceeds much.
[[nodiscard]] double Figure_Text_Width(std::string_view text, double size, bool bold);

/// A text that fits a width, cut with an ellipsis where it must be.
[[nodiscard]] std::string Fitted_Text(std::string_view text, double size, bool bold, double width);

/// The same for a name, whose end tells as much as its beginning: it is cut in the middle.
[[nodiscard]] std::string Fitted_Name(std::string_view name, double size, bool bold, double width);

/// Pages one below the other, for pictures that have no pages.
[[nodiscard]] Figure Below_Each_Other(std::span<const Figure> pages);

/// The bytes of an SVG file. Texts stay texts.
[[nodiscard]] std::string Figure_Svg(const Figure& figure);

} // namespace kestrum
