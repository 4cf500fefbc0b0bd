#pragma once

#include "screens/screen.h"

namespace kestrum {

/// `Form50`: two sheets row by row, and the set-up of their graph.
class Compare_Screen : public Screen {
public:
    Compare_Screen();

    // The table; the index is the row.
    const Control_Array& Text101 = Array("Text101");
    const Control_Array& Text102 = Array("Text102");
    const Control_Array& Text103 = Array("Text103");
    const Control_Array& Text104 = Array("Text104");
    const Control_Array& Text105 = Array("Text105");
    const Control_Array& Text106 = Array("Text106");
    const Control_Array& Text107 = Array("Text107");
    const Control_Array& Text108 = Array("Text108");
    const Control_Array& Text109 = Array("Text109");
    const Control_Array& Text110 = Array("Text110");

    const Control_Array& Option1 = Array("Option1"); // From test
    const Control_Array& Option2 = Array("Option2"); // To test
    const Control_Array& Option3 = Array("Option3"); // type of comparison
    const Control_Array& Option4 = Array("Option4"); // X column
    Control& Check1 = The("Check1");
    Control& Check2 = The("Check2");
    Control& Check3 = The("Check3");
    Control& Check4 = The("Check4");
    Control& Text1 = The("Text1"); // user's low Y
    Control& Text2 = The("Text2"); // user's high Y
    Control& Text3 = The("Text3"); // lifts of the marker lines
    Control& Text4 = The("Text4");
    Control& Text71 = The("Text71"); // captions of the graph
    Control& Text72 = The("Text72");

    /// Index of the set member of an option array; the last one when none is set.
    [[nodiscard]] static int Chosen(const Control_Array& options);

    [[nodiscard]] int Type() const { return Chosen(Option3); }
};

} // namespace kestrum
