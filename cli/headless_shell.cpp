#include "cli/headless_shell.h"

#include "platform/file_store.h"

#include <nlohmann/json.hpp>

namespace kestrum::cli {

bool Headless_Shell::Open(const std::string& address) {
    printer_.Print({{"shell", address}});
    return true;
}

bool Headless_Shell::Play(const std::string& path) {
    printer_.Print({{"sound", path}});
    return File_Exists(path);
}

} // namespace kestrum::cli
