#pragma once

#include "screens/screen.h"

namespace kestrum {

/// `Form60`: the graph, what is drawn on it by hand, and the logo.
class Graph_Screen : public Screen {
public:
    Graph_Screen();

    Control& Combo1 = The("Combo1");     // width of a line drawn by hand
    Control& Picture1 = The("Picture1"); // the canvas
    Control& Picture2 = The("Picture2"); // the logo
    Control& Logo = The("Logo");

    /// Style of the canvas's grid lines: 0 long, 1 dash, 2 dot.
    int draw_style = 0;
};

} // namespace kestrum
