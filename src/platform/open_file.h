#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace kestrum {

/// Raises the run-time error that belongs to what the operating system reports.
[[noreturn]] void Fail_With_System_Error(int system_error);

/// An open file that is closed on every way out; for the routines of the file store.
class Open_File {
public:
    /// Takes the handle that an opening gave. Raises the error of one that failed.
    explicit Open_File(int handle);
    Open_File(const Open_File&) = delete;
    Open_File& operator=(const Open_File&) = delete;
    ~Open_File();

    [[nodiscard]] int Handle() const { return handle_; }

    [[nodiscard]] std::uint64_t Size() const;
    /// Reads up to so many bytes from a place on; fewer at the end of the file only.
    [[nodiscard]] std::string Piece(std::uint64_t offset, std::size_t bytes) const;
    void Write_All(std::string_view content) const;
    /// Puts all that was written onto the disk.
    void Flush() const;
    /// Closes at once, since a full disk of the network may only be told here.
    void Close();

private:
    int handle_;
};

/// Opens a regular file for reading and never waits for one that is none, such as a pipe. Raises
/// 53, 70, 75 or 76.
[[nodiscard]] Open_File Open_To_Read(const std::string& path);

/// Makes a file under a name that nothing bears, and gives its handle for an `Open_File`; below
/// zero when the name is taken. Raises 70, 75 or 76. A `secret` one is for this user alone.
[[nodiscard]] int Handle_Of_New_File(const std::string& path, bool secret = false);

} // namespace kestrum
