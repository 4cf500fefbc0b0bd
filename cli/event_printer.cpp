#include "cli/event_printer.h"

#include <nlohmann/json.hpp>

namespace kestrum::cli {

std::string Json_Of(const Event& event) {
    constexpr int one_line = -1;
    return event.dump(one_line, ' ', false, Event::error_handler_t::replace);
}

void Event_Printer::Print(const Event& event) {
    out_ << Json_Of(event) << '\n';
}

} // namespace kestrum::cli
