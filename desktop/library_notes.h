#pragma once

#include <set>
#include <string>
#include <vector>

namespace kestrum::desktop {

/// What the library's window remembers from one run of the program to the next.
struct Library_Notes {
    std::string folder;
    /// Folders whose `.dat` files hold metric numbers.
    std::set<std::string> metric_folders;
    /// Columns that the user has put away, by their names.
    std::set<std::string> hidden_columns{"part_number", "format", "exhaust_peak_lift"};
    /// Names of all columns as the user has put them, from the left; empty: as they come.
    std::vector<std::string> column_order{};
    bool by_port_volume = false;

    bool operator==(const Library_Notes&) const = default;
};

/// The notes in the program's folder; those of a first run where there are none.
[[nodiscard]] Library_Notes Read_Library_Notes(const std::string& program_folder);

/// Of a disk that takes nothing no word is said: it costs a choice at the next start.
void Write_Library_Notes(const std::string& program_folder, const Library_Notes& notes);

} // namespace kestrum::desktop
