#pragma once

#include <nlohmann/json_fwd.hpp>

#include <ostream>
#include <string>
#include <string_view>

namespace kestrum::cli {

using Event = nlohmann::ordered_json;

/// As it stands in a line.
[[nodiscard]] std::string Json_Of(const Event& event);

/// Prints what happens in a session, one JSON object a line.
class Event_Printer {
public:
    explicit Event_Printer(std::ostream& out) : out_(out) {}

    void Print(const Event& event);

    /// A piece of a line that is too long to be built as a whole.
    void Write(std::string_view piece) { out_ << piece; }

private:
    std::ostream& out_;
};

} // namespace kestrum::cli
