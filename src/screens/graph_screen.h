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
    Control& Label3 = The("Label3");   // arrow text of the X axis
    Control& Label4 = The("Label4");   // and of the Y axis
    Control& Label8 = The("Label8");   // Y axis text
    Control& Label9 = The("Label9");   // X axis text
    Control& Label18 = The("Label18"); // Y under the mouse
    Control& Label19 = The("Label19"); // X under the mouse
    Control& Check1 = The("Check1");   // drawing with the mouse

    /// Shows a logo of a size, or hides it, and what the button says of it.
    void Show_Logo(const Extent& size) const;
    void Hide_Logo() const;
};

} // namespace kestrum
