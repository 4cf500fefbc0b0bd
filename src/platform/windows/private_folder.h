#pragma once

#include <string>

namespace kestrum {

/// Makes a folder that nobody but this user and the system may enter, or makes sure of one that is
/// there: of this user's, and no link. Gives whether it is one now.
[[nodiscard]] bool Make_Private_Folder(const std::string& path);

} // namespace kestrum
