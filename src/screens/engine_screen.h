#pragma once

#include "screens/screen.h"

namespace kestrum {

/// `Main`: the engine screen, which is the shell of the program too.
class Engine_Screen : public Screen {
public:
    Engine_Screen();

    // The eleven columns of cells; the index is the row.
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
    const Control_Array& Text111 = Array("Text111");

    /// Preload file names.
    const Control_Array& Text1 = Array("Text1");
    Control& Text33 = The("Text33");
    Control& Text38 = The("Text38");
    // Company name, street, city, phone, website.
    Control& Text94 = The("Text94");
    Control& Text95 = The("Text95");
    Control& Text96 = The("Text96");
    Control& Text97 = The("Text97");
    Control& Text98 = The("Text98");

    Control& Check1 = The("Check1"); // the user enters the Mach number
    Control& Check2 = The("Check2"); // metric
    Control& Check3 = The("Check3"); // the user enters the RPM of peak power
    const Control_Array& Option4 = Array("Option4");
    const Control_Array& Label1 = Array("Label1");
    const Control_Array& Label2 = Array("Label2");
    Control& Label7 = The("Label7");
    Control& Frame4 = The("Frame4");
    Control& Frame96 = The("Frame96");
    Control& Frame99 = The("Frame99");
    Control& Combo1 = The("Combo1"); // the printers
    Control& MouseP = The("MouseP");
    Control& FullScrRes = The("FullScrRes");
    Control& AspectRatio = The("AspectRatio");

    [[nodiscard]] bool Is_Metric() const { return Check2.Value() != 0; }
};

} // namespace kestrum
