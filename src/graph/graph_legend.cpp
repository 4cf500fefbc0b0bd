#include "graph/graph_legend.h"

#include "graph/compare_types.h"
#include "graph/graph_series.h"
#include "graph/graph_state.h"

#include <array>

namespace kestrum {

namespace {

struct Scheme {
    Legend_Curves colours; // 0xRRGGBB
    std::string_view text;
};

constexpr std::array<Scheme, 4> schemes{{
    {{0x0000FF, 0xFF0000}, "Intake = Blue / Exhaust = Red"},
    {{0x006400, 0x000000}, "Intake = Dark Green / Exhaust = Black"},
    {{0x00FFFF, 0xFF00FF}, "Intake = Cyan / Exhaust = Magenta"},
    {{0x00FF00, 0x8B0000}, "Intake = Green / Exhaust = Brown"},
}};

const Scheme& Scheme_Of(int plus_count) {
    return schemes.at(static_cast<std::size_t>(plus_count));
}

/// What the graph shows of the curves of its scheme.
Legend_Curves Curves_Shown(Session& session) {
    const Shown_Sides shown = Sides_Shown(session.Form50());
    Legend_Curves curves = Colours_Of(Graph_Of(session).plus_count);
    curves.intake = shown.intake ? curves.intake : no_colour;
    curves.exhaust = shown.exhaust ? curves.exhaust : no_colour;
    return curves;
}

} // namespace

const Legend_Curves& Colours_Of(int plus_count) {
    return Scheme_Of(plus_count).colours;
}

void Draw_Graph_Legend(Graph_Canvas& canvas) {
    Session& session = canvas.Owner();
    const Graph_State& graph = Graph_Of(session);
    const Legend_Curves curves = Curves_Shown(session);
    const auto write = [&](double row, std::string_view text, double pen) {
        canvas.Legend_Text(session.display.scale_x * legend_left,
                           session.display.scale_y * row + graph.legend_offset, text,
                           {curves, pen});
    };
    write(50, Scheme_Of(graph.plus_count).text, thick_pen);
    const std::string& from = graph.from_label;
    const std::string& to = graph.to_label;
    if (from == to) {
        return write(69, "Flow Test " + from, thick_pen);
    }
    // In % types the two curves of a side are one.
    const bool percent = Compare_Type_Of(session.Form50().Type()).Is_Percent();
    write(69, (percent ? "Flow Test " : "Thin Graph Lines Test ") + from, thin_pen);
    write(88, (percent ? "Flow Test " : "Thick Graph Lines Test ") + to, thick_pen);
}

} // namespace kestrum
