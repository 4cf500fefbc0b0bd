#include "presentation/dimension_drawing.h"

#include <cmath>
#include <numbers>

namespace kestrum {

namespace {

using Points = std::vector<Figure_Point>;

constexpr double letter_size = 12;

/// Points of a circle's part; angles in degrees, clockwise from the right.
Points Arc(Figure_Point centre, double radius, double from, double to) {
    constexpr int pieces = 16;
    Points points;
    for (int piece = 0; piece <= pieces; ++piece) {
        const double angle = (from + (to - from) * piece / pieces) * std::numbers::pi / 180;
        points.push_back(
            {centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle)});
    }
    return points;
}

/// Draws on one figure in one set of colours.
class Draughtsman {
public:
    explicit Draughtsman(const Dimension_Colours& colours) : colours_(colours) {
        Area({{0, 0}, {figure_.width, 0}, {figure_.width, figure_.height}, {0, figure_.height}},
             colours.ground, no_colour);
    }

    [[nodiscard]] Figure Done() && { return std::move(figure_); }

    void Metal(Points points) { Area(std::move(points), colours_.metal, colours_.ink); }

    void Hollow(Points points) { Area(std::move(points), colours_.ground, colours_.ink); }

    void Line(Points points, std::vector<double> dashes = {}) {
        figure_.Add(Figure_Path{.points = std::move(points),
                                .stroke = colours_.mark,
                                .width = 1.2,
                                .dashes = std::move(dashes)});
    }

    /// A measure between two points, with an arrow at each.
    void Measure(Figure_Point from, Figure_Point to) {
        Line({from, to});
        Arrow(from, to);
        Arrow(to, from);
    }

    void Arrow(Figure_Point tip, Figure_Point tail) {
        constexpr double length = 7;
        constexpr double half = 2.6;
        const double whole = std::hypot(tail.x - tip.x, tail.y - tip.y);
        const double x = (tail.x - tip.x) / whole;
        const double y = (tail.y - tip.y) / whole;
        Area({tip,
              {tip.x + x * length - y * half, tip.y + y * length + x * half},
              {tip.x + x * length + y * half, tip.y + y * length - x * half}},
             colours_.mark, no_colour);
    }

    void Words(Figure_Point at, std::string text, Text_Anchor anchor = Text_Anchor::Left,
               bool is_heading = false) {
        figure_.Add(Figure_Text{.x = at.x,
                                .y = at.y,
                                .text = std::move(text),
                                .size = letter_size,
                                .colour = is_heading ? colours_.ink : colours_.mark,
                                .bold = is_heading,
                                .anchor = anchor});
    }

private:
    void Area(Points points, int fill, int stroke) {
        figure_.Add(Figure_Path{.points = std::move(points),
                                .closed = true,
                                .stroke = stroke,
                                .width = 1.2,
                                .fill = fill});
    }

    const Dimension_Colours& colours_;
    Figure figure_{760, 460};
};

constexpr double axis = 230; // of the valve

/// One side of the head around the seat; -1 left, 1 right.
void Draw_Seat(Draughtsman& hand, int side) {
    const auto x = [side](double distance) { return axis + side * distance; };
    hand.Metal({{x(170), 250},
                {x(170), 150},
                {x(112), 150},
                {x(96), 205},
                {x(84), 240},
                {x(84), 262},
                {x(104), 282},
                {x(170), 282}});
}

void Draw_Valve(Draughtsman& hand) {
    const Points half{{axis - 10, 70},  {axis - 10, 245},  {axis - 18, 268}, {axis - 42, 285},
                      {axis - 82, 294}, {axis - 106, 318}, {axis - 106, 326}};
    Points whole = half;
    const Points back(half.rbegin(), half.rend());
    for (const Figure_Point& point : back) {
        whole.push_back({2 * axis - point.x, point.y});
    }
    hand.Metal(whole);
}

void Mark_Valve(Draughtsman& hand) {
    hand.Words({20, 24}, "Valve and seat", Text_Anchor::Left, true);
    hand.Line({{axis - 10, 90}, {axis + 10, 90}});
    hand.Arrow({axis - 10, 90}, {axis - 30, 90});
    hand.Arrow({axis + 10, 90}, {axis + 30, 90});
    hand.Line({{axis + 10, 90}, {axis + 60, 90}});
    hand.Words({axis + 64, 94}, "Stem dia");
    hand.Measure({axis - 84, 250}, {axis + 84, 250});
    hand.Line({{axis + 50, 250}, {axis + 60, 130}, {axis + 64, 130}});
    hand.Words({axis + 68, 134}, "Throat dia");
    hand.Line({{axis - 106, 330}, {axis - 106, 362}});
    hand.Line({{axis + 106, 330}, {axis + 106, 362}});
    hand.Measure({axis - 106, 356}, {axis + 106, 356});
    hand.Words({axis, 374}, "Valve diameter", Text_Anchor::Centre);
    // How far the valve has moved: the same edge of the face, open and closed.
    hand.Line({{axis - 104, 282}, {40, 282}}, {4, 3});
    hand.Line({{axis - 106, 318}, {40, 318}}, {4, 3});
    hand.Measure({50, 282}, {50, 318});
    hand.Words({20, 338}, "Valve lift");
    hand.Line({{axis + 96, 274}, {axis + 140, 330}, {axis + 150, 330}});
    hand.Measure({axis + 84, 262}, {axis + 104, 282});
    hand.Words({axis + 154, 334}, "Seat width");
    hand.Line({{axis - 104, 282}, {axis - 70, 282}});
    hand.Line(Arc({axis - 104, 282}, 24, -45, 0));
    hand.Line({{axis - 80, 273}, {110, 400}, {100, 400}});
    hand.Words({96, 404}, "Seat angle", Text_Anchor::Right);
}

void Draw_Port_Section(Draughtsman& hand) {
    constexpr double left = 500;
    constexpr double right = 630;
    constexpr double top = 70;
    constexpr double bottom = 230;
    constexpr double roof = 34; // radius of the upper corners
    constexpr double floor = 20;
    hand.Metal({{left - 20, top - 20},
                {right + 20, top - 20},
                {right + 20, bottom + 20},
                {left - 20, bottom + 20}});
    Points edge = Arc({left + roof, top + roof}, roof, 180, 270);
    for (const Points& corner : {Arc({right - roof, top + roof}, roof, 270, 360),
                                 Arc({right - floor, bottom - floor}, floor, 0, 90),
                                 Arc({left + floor, bottom - floor}, floor, 90, 180)}) {
        edge.insert(edge.end(), corner.begin(), corner.end());
    }
    hand.Hollow(edge);
    hand.Words({left - 20, 24}, "Port section, at face or choke", Text_Anchor::Left, true);
    hand.Measure({left, 150}, {right, 150});
    hand.Words({left + 65, 144}, "Width", Text_Anchor::Centre);
    hand.Measure({right - 26, top}, {right - 26, bottom});
    hand.Words({right - 30, 190}, "Height", Text_Anchor::Right);
    hand.Line({{left + roof, top + roof}, {left + 10, top + 10}});
    hand.Arrow({left + 10, top + 10}, {left + roof, top + roof});
    hand.Words({left + roof - 4, top + roof + 16}, "Corner top");
    hand.Line({{right - floor, bottom - floor}, {right - 6, bottom - 6}});
    hand.Arrow({right - 6, bottom - 6}, {right - floor, bottom - floor});
    hand.Line({{right - floor, bottom - floor}, {right + 34, bottom - 30}});
    hand.Words({right + 38, bottom - 26}, "Corner bot");
}

void Draw_Port_Length(Draughtsman& hand) {
    const Figure_Point centre{640, 410};
    Points walls = Arc(centre, 110, 270, 180);
    const Points inner = Arc(centre, 50, 180, 270);
    walls.insert(walls.begin(), {720, 300});
    walls.insert(walls.end(), inner.begin(), inner.end());
    walls.push_back({720, 360});
    hand.Metal(walls);
    Points middle = Arc(centre, 80, 180, 270);
    middle.push_back({720, 330});
    hand.Line(middle, {6, 4});
    hand.Arrow(middle.front(), {middle.front().x, middle.front().y - 10});
    hand.Arrow(middle.back(), {710, 330});
    hand.Words({480, 286}, "The port from the side", Text_Anchor::Left, true);
    hand.Words({660, 322}, "Face", Text_Anchor::Left);
    hand.Words({560, 430}, "Seat", Text_Anchor::Centre);
    hand.Line({{590, 347}, {540, 330}, {536, 330}});
    hand.Words({532, 334}, "Cntr length", Text_Anchor::Right);
    hand.Words({740, 452}, "Port volume: all between face and seat", Text_Anchor::Right);
}

} // namespace

Figure Dimension_Drawing(const Dimension_Colours& colours) {
    Draughtsman hand(colours);
    Draw_Seat(hand, -1);
    Draw_Seat(hand, 1);
    Draw_Valve(hand);
    Mark_Valve(hand);
    Draw_Port_Section(hand);
    Draw_Port_Length(hand);
    return std::move(hand).Done();
}

} // namespace kestrum
