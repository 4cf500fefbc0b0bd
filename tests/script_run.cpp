#include "tests/script_run.h"

#include "cli/script_runner.h"
#include "cli/usage_error.h"

#include <algorithm>
#include <sstream>

namespace kestrum {

Script_Result Run_Script_In(const Temp_Folder& folder, std::string_view script,
                            std::string_view point) {
    Surroundings around;
    around.folder = folder.Path();
    around.decimal_point = point;
    around.version = "5.0.0";
    std::ostringstream out;
    std::istringstream in{std::string(script)};
    Script_Result result;
    try {
        result.status = cli::Script_Runner(around, out).Run(in, "cannot read");
    } catch (const cli::Script_Error& fault) {
        result.status = 2;
        result.fault = fault.what();
    }
    std::istringstream lines(out.str());
    for (std::string line; std::getline(lines, line);) {
        result.events.push_back(nlohmann::json::parse(line));
    }
    const auto shown = std::ranges::find(result.events, nlohmann::json{{"show", "Main"}});
    if (shown != result.events.end()) {
        result.events.erase(result.events.begin(), shown + 1);
    }
    return result;
}

Script_Result Run_Script(std::string_view script, std::string_view point) {
    const Temp_Folder folder;
    return Run_Script_In(folder, script, point);
}

} // namespace kestrum
