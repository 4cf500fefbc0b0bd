#pragma once

#include "cli/event_printer.h"
#include "drawing/screen_camera.h"

namespace kestrum::cli {

/// A camera without a display: its pictures are the forms' plain rectangles, and each one that is
/// kept is told of.
class Headless_Camera : public Screen_Camera {
public:
    explicit Headless_Camera(Event_Printer& printer) : printer_(printer) {}

    [[nodiscard]] std::string Picture_Of(const Screen_Shot& shot) override;
    void Was_Kept(const Screen_Shot& shot) override;

private:
    Event_Printer& printer_;
};

} // namespace kestrum::cli
