#pragma once

#include <string>

namespace kestrum {

/// A file that one running program holds at a time. The system lets go of it when the program
/// ends in whatever way.
class Lock_File {
public:
    Lock_File() = default;
    Lock_File(const Lock_File&) = delete;
    Lock_File& operator=(const Lock_File&) = delete;
    ~Lock_File();

    /// Makes the file at need and tries to hold it; false when another program does, or when it
    /// cannot be made.
    [[nodiscard]] bool Take(const std::string& path);
    void Release();

private:
    int handle_ = -1;
};

} // namespace kestrum
