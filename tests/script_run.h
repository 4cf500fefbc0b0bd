#pragma once

#include "tests/temp_folder.h"

#include <nlohmann/json.hpp>

#include <string>
#include <string_view>

namespace kestrum {

/// What one run of a script gave.
struct Script_Result {
    int status = 0;
    std::vector<nlohmann::json> events;
    std::string fault{}; // what would stand on standard error

    [[nodiscard]] const nlohmann::json& Last() const { return events.back(); }
};

/// Runs a script in this process, with a folder of its own and the start's events left out.
[[nodiscard]] Script_Result Run_Script(std::string_view script, std::string_view point = ".");
[[nodiscard]] Script_Result Run_Script_In(const Temp_Folder& folder, std::string_view script,
                                          std::string_view point = ".");

} // namespace kestrum
