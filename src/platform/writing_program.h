#pragma once

#include <cstdint>
#include <string>

namespace kestrum {

/// A running program, as the names of the files that it is writing tell it.
struct Writing_Program {
    std::uint64_t process = 0;
    /// When it began, as the system counts; 0 where that cannot be known.
    std::uint64_t start = 0;
    /// Where the number of a process means this one: the run of a system, or a machine.
    std::uint64_t system = 0;
};

[[nodiscard]] Writing_Program This_Program();

/// Whether a program of this system has ended. One that cannot be asked is alive.
[[nodiscard]] bool Is_Dead(const Writing_Program& program);

/// Whether a name leads to a file that is this user's and bears no other name.
[[nodiscard]] bool Is_File_Of_User(const std::string& path);

} // namespace kestrum
