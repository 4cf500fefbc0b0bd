#pragma once

#include "core/session.h"
#include "files/rescue_folder.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace kestrum {

using Rescue_Folders = std::vector<std::unique_ptr<Rescue_Folder>>;

/// A copy that an earlier run has left.
struct Left_Copy {
    Screen_Id screen{};
    const Rescue_Folder* folder = nullptr;
    std::string path;
    std::int64_t moment = 0;
};

/// Copies in the given folders, by their screens, the newest of each first.
[[nodiscard]] std::vector<Left_Copy> Left_Copies(const std::vector<const Rescue_Folder*>& folders);

/// Asks whether to load the copies. Gives those that were loaded: the newest of each screen. All
/// others, and what could not be loaded, lie in "rescue-declined" then, each under a name of its
/// own.
[[nodiscard]] std::vector<Left_Copy> Offer_Copies(Session& session,
                                                  const std::vector<Left_Copy>& copies);

/// Moves a copy to where nothing is written over it.
/// Gives its path then.
std::string Put_Copy_Aside(const Session& session, const std::string& path);

/// The units that `Main` shows, as a rescue folder names them.
[[nodiscard]] std::string Present_Units(Session& session);

} // namespace kestrum
