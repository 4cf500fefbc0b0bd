#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kestrum {

enum class Line_Style { Solid = 0, Dash = 1, Dot = 2 };

enum class Draw_Kind { Clear, Line, Circle, Text, Picture };

/// The end of its cell that a text holds to, whatever the width of its letters.
enum class Text_Anchor { Left, Centre, Right };

/// What a step is for on the graph, which decides how a picture shows it. It is told to nobody
/// else.
enum class Draw_Role {
    Plain,
    Grid, // in its usual colour
    Frame,
    Curve,
    Axis_Number,
    Heading,
    Legend,
    Caption
};

/// Stands for a curve that is not there.
inline constexpr int no_colour = -1;

/// Colours of the curves that a line of a legend is about.
struct Legend_Curves {
    int intake = no_colour;
    int exhaust = no_colour;

    bool operator==(const Legend_Curves&) const = default;
};

/// One step of a drawing, in the units of its surface. Colours are 0xRRGGBB.
struct Draw_Operation {
    Draw_Kind kind = Draw_Kind::Clear;
    double x1 = 0; // also centre of a circle, left of a text or a picture
    double y1 = 0;
    double x2 = 0; // also width of a picture, and right end of a text's cell
    double y2 = 0;
    double radius = 0;
    double width = 1; // of the pen, for a legend's text that of its curves
    double size = 0;  // of a text
    int colour = 0;
    Line_Style style = Line_Style::Solid;
    bool by_hand = false; // drawn by the user over what stands there
    bool bold = false;
    bool italic = false;
    Text_Anchor anchor = Text_Anchor::Left;
    Draw_Role role = Draw_Role::Plain;
    Legend_Curves curves{};
    double cell = 0;    // left end of a text's cell
    double limit = 0;   // how far a printed text that is too wide for its cell may run; 0: no end
    std::string font{}; // empty on the canvas, which has one font
    std::string text{}; // also the file of a picture
};

/// How much larger a surface is than it was designed.
struct Stretch_Factors {
    double x = 1;
    double y = 1;
};

/// A display list. It is painted by replaying it, at any pixel density and on any device. A copy
/// shares its steps with the original until one of the two draws.
class Drawing {
public:
    void Clear();

    /// Nothing stands on the surface any more, and nothing was drawn for it.
    void Forget() { operations_.reset(); }

    void Line(double x1, double y1, double x2, double y2, int colour, double width,
              Line_Style style = Line_Style::Solid, Draw_Role role = Draw_Role::Plain);
    /// A line of the user's own, which lies over the texts as well.
    void Line_By_Hand(double x1, double y1, double x2, double y2, int colour, double width);
    void Circle(double x, double y, double radius, int colour, double width);
    /// A text whose left end is its anchor.
    void Text(double x, double y, std::string_view text, double size, int colour);
    /// A step that has been put together elsewhere.
    void Add(Draw_Operation operation);

    /// All that stands on the surface.
    [[nodiscard]] std::span<const Draw_Operation> Operations() const {
        return operations_ ? std::span<const Draw_Operation>(*operations_)
                           : std::span<const Draw_Operation>();
    }

    /// Whether from now on every operation is also noted, for a face that reports what is drawn.
    /// Without it what was noted is forgotten.
    void Keep_Journal(bool keeps);

    [[nodiscard]] std::size_t Journal_Size() const { return journal_.size(); }

    /// Hands out and forgets what was noted.
    [[nodiscard]] std::vector<Draw_Operation> Take_Journal();

    /// Stretches all that stands there, which is no drawing and is not noted. Letters and pens grow
    /// by the smaller factor.
    void Stretch(double factor_x, double factor_y);

    /// By how much the surface has been stretched since the beginning.
    [[nodiscard]] const Stretch_Factors& Stretched_By() const { return stretched_by_; }

    /// Makes room for a number of operations to come.
    void Reserve(std::size_t more) { Own_Steps().reserve(Own_Steps().size() + more); }

private:
    /// The steps, shared with no other drawing.
    [[nodiscard]] std::vector<Draw_Operation>& Own_Steps();

    /// Null while there is none.
    std::shared_ptr<std::vector<Draw_Operation>> operations_;
    std::vector<Draw_Operation> journal_;
    bool keeps_journal_ = false;
    Stretch_Factors stretched_by_;
};

/// Text on the canvas is measured by these fixed rules, so that a layout comes out the same on
/// every device; a picture sets its own letters at the anchors.
[[nodiscard]] double Canvas_Text_Width(std::string_view text, double size);
[[nodiscard]] double Canvas_Text_Height(double size);

} // namespace kestrum
