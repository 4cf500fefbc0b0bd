#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace kestrum {

/// What differs when another content stands under a name.
struct File_Stamp {
    std::uint64_t file = 0; // its number on its disk
    std::int64_t size = 0;
    std::int64_t changed_seconds = 0; // content, rights or name
    std::int64_t changed_nanoseconds = 0;

    bool operator==(const File_Stamp&) const = default;
};

/// The stamp of a file that has lain still for some seconds. Nothing for one that was just changed,
/// since the clock of a disk is coarse and the next change could leave the same stamp, and nothing
/// for one that cannot be had.
[[nodiscard]] std::optional<File_Stamp> Settled_Stamp(const std::string& path);

} // namespace kestrum
