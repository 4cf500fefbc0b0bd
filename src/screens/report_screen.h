#pragma once

#include "screens/screen.h"

namespace kestrum {

/// `Form70`: what goes into the text report, and its viewer.
class Report_Screen : public Screen {
public:
    Report_Screen();

    const Control_Array& Check1 = Array("Check1");   // the sheets
    const Control_Array& Check2 = Array("Check2");   // the columns, and the comments
    const Control_Array& Check3 = Array("Check3");   // the engine screen
    const Control_Array& Option1 = Array("Option1"); // alignment of the engine screen's block
    const Control_Array& Option2 = Array("Option2"); // alignment of the sheets' tables
    Control& Label7 = The("Label7");
    /// The viewer of the finished report.
    Control& Text38 = The("Text38");
};

} // namespace kestrum
