#pragma once

#include "screens/screen.h"

namespace kestrum {

/// `Form50`: two sheets row by row, and the set-up of their graph.
class Compare_Screen : public Screen {
public:
    Compare_Screen();

    const Control_Array& Option1 = Array("Option1"); // From test
    const Control_Array& Option2 = Array("Option2"); // To test
    const Control_Array& Option3 = Array("Option3"); // type of comparison
    const Control_Array& Option4 = Array("Option4"); // X column
    Control& Check1 = The("Check1");
    Control& Check2 = The("Check2");
    Control& Check3 = The("Check3");
    Control& Check4 = The("Check4");
};

} // namespace kestrum
