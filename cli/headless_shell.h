#pragma once

#include "cli/event_printer.h"
#include "platform/shell.h"

namespace kestrum::cli {

/// A system that takes whatever it is handed, and is only told of. Of a sound it asks that it is
/// one, though nobody listens.
class Headless_Shell : public Shell {
public:
    explicit Headless_Shell(Event_Printer& printer) : printer_(printer) {}

    [[nodiscard]] bool Open(const std::string& address) override;
    [[nodiscard]] bool Play(const std::string& path) override;

private:
    Event_Printer& printer_;
};

} // namespace kestrum::cli
