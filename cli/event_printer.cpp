#include "cli/event_printer.h"

namespace kestrum::cli {

void Event_Printer::Print(const Event& event) {
    constexpr int one_line = -1;
    out_ << event.dump(one_line, ' ', false, Event::error_handler_t::replace) << '\n';
}

} // namespace kestrum::cli
