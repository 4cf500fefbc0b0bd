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
    /// cannot be made. What is held is the file that bears the name, not one that was just removed.
    [[nodiscard]] bool Take(const std::string& path);

    /// Whether it is held and the name still leads to it: only then does it keep others away.
    [[nodiscard]] bool Is_Held() const;

    void Release();

private:
    std::string path_;
    int handle_ = -1;
};

} // namespace kestrum
