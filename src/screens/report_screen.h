#pragma once

#include "screens/screen.h"

namespace kestrum {

/// `Form70`: what goes into the text report, and its viewer.
class Report_Screen : public Screen {
public:
    Report_Screen();

    Control& Label7 = The("Label7");
    /// The viewer of the finished report.
    Control& Text38 = The("Text38");
};

} // namespace kestrum
