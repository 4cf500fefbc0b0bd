#include "tests/shell.h"

#include <cstdlib>
#include <sys/wait.h>

namespace kestrum {

int Status_In_Shell(const Temp_Folder& folder, const std::string& line) {
    const std::string whole =
        "cd '" + folder.Path() + "' && '" KESTRUM_CLI "'" + line.substr(std::string("CLI").size());
    const int status = std::system(whole.c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

} // namespace kestrum
