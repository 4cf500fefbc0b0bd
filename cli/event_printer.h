#pragma once

#include <nlohmann/json.hpp>

#include <ostream>

namespace kestrum::cli {

using Event = nlohmann::ordered_json;

/// Prints what happens in a session, one JSON object a line.
class Event_Printer {
public:
    explicit Event_Printer(std::ostream& out) : out_(out) {}

    void Print(const Event& event);

private:
    std::ostream& out_;
};

} // namespace kestrum::cli
