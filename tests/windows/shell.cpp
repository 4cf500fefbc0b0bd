#include "tests/shell.h"

#include <algorithm>
#include <cstdlib>

namespace kestrum {

int Status_In_Shell(const Temp_Folder& folder, const std::string& line) {
    std::string program = KESTRUM_CLI;
    if (program.starts_with('/')) {
        program.insert(0, "Z:"); // as wine names the host's files
    }
    std::ranges::replace(program, '/', '\\');
    // The quotes around the whole are taken off again by the shell.
    const std::string whole = "\"cd /d \"" + folder.Path() + "\" && \"" + program + "\"" +
                              line.substr(std::string("CLI").size()) + "\"";
    return std::system(whole.c_str());
}

} // namespace kestrum
