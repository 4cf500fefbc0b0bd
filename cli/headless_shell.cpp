#include "cli/headless_shell.h"

#include "platform/sound_file.h"

#include <nlohmann/json.hpp>

namespace kestrum::cli {

bool Headless_Shell::Open(const std::string& address) {
    printer_.Print({{"shell", address}});
    return true;
}

bool Headless_Shell::Play(const std::string& path) {
    printer_.Print({{"sound", path}});
    return Is_Sound_File(path);
}

} // namespace kestrum::cli
