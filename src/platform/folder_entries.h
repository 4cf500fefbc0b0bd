#pragma once

#include <functional>
#include <string>

namespace kestrum {

struct Folder_Entry {
    std::string name;
    /// Also of a link to one.
    bool is_folder = false;
    bool is_link = false;
};

[[nodiscard]] bool Is_Folder(const std::string& path);

/// Hands over what lies in a folder, in no order, until somebody does not want more. Gives what the
/// system says about a folder that cannot be read to its end, else nothing.
[[nodiscard]] std::string
Look_Through_Folder(const std::string& folder,
                    const std::function<bool(Folder_Entry entry)>& wants_more);

} // namespace kestrum
