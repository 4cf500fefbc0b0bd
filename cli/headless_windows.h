#pragma once

#include "cli/event_printer.h"
#include "screens/windows.h"

namespace kestrum::cli {

/// Windows that are only told of.
class Headless_Windows : public Windows {
public:
    explicit Headless_Windows(Event_Printer& printer) : printer_(printer) {}

    void Show(Screen& screen) override;
    void Hide(Screen& screen) override;
    void Unload(Screen& screen) override;
    void Focus(Control& control) override;

private:
    Event_Printer& printer_;
};

} // namespace kestrum::cli
