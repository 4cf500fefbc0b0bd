#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kestrum {

enum class Line_Style { Solid = 0, Dash = 1, Dot = 2 };

enum class Draw_Kind { Clear, Line, Circle, Text, Picture };

/// One step of a drawing, in the units of its surface. Colours are 0xRRGGBB.
struct Draw_Operation {
    Draw_Kind kind = Draw_Kind::Clear;
    double x1 = 0; // also centre of a circle, left of a text or a picture
    double y1 = 0;
    double x2 = 0; // also width of a picture
    double y2 = 0;
    double radius = 0;
    double width = 1; // of the pen
    double size = 0;  // of a text
    int colour = 0;
    Line_Style style = Line_Style::Solid;
    bool by_hand = false; // drawn by the user over what stands there
    std::string text{};
};

/// A display list. It is painted by replaying it, at any pixel density and on any device.
class Drawing {
public:
    void Clear();
    void Line(double x1, double y1, double x2, double y2, int colour, double width,
              Line_Style style = Line_Style::Solid);
    /// A line of the user's own, which lies over the texts as well.
    void Line_By_Hand(double x1, double y1, double x2, double y2, int colour, double width);
    void Circle(double x, double y, double radius, int colour, double width);
    void Text(double x, double y, std::string_view text, double size, int colour);

    /// All that stands on the surface.
    [[nodiscard]] std::span<const Draw_Operation> Operations() const { return operations_; }

    /// From now on every operation is also noted for a face that reports what is drawn.
    void Keep_Journal() { keeps_journal_ = true; }

    /// Hands out and forgets what was noted.
    [[nodiscard]] std::vector<Draw_Operation> Take_Journal();

    /// Makes room for a number of operations to come.
    void Reserve(std::size_t more) { operations_.reserve(operations_.size() + more); }

private:
    void Add(Draw_Operation operation);

    std::vector<Draw_Operation> operations_;
    std::vector<Draw_Operation> journal_;
    bool keeps_journal_ = false;
};

/// Text on the canvas is measured by these fixed rules, so that a layout comes out the same on
/// every device; whoever paints a text fits it to its measure.
[[nodiscard]] double Canvas_Text_Width(std::string_view text, double size);
[[nodiscard]] double Canvas_Text_Height(double size);

} // namespace kestrum
