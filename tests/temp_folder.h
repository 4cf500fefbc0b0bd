#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kestrum {

/// The bytes of a file, as they are.
[[nodiscard]] std::string Bytes_Of(const std::string& path);

/// A folder of its own for one test, gone with all its files at the end of it.
class Temp_Folder {
public:
    Temp_Folder();
    Temp_Folder(const Temp_Folder&) = delete;
    Temp_Folder& operator=(const Temp_Folder&) = delete;
    ~Temp_Folder();

    [[nodiscard]] const std::string& Path() const { return path_; }

    [[nodiscard]] std::string File(std::string_view name) const;

    /// Puts bytes into a file as they are. Gives its path.
    std::string Write(std::string_view name, std::string_view bytes) const;
    [[nodiscard]] std::string Read(std::string_view name) const;
    /// Names of all files, sorted.
    [[nodiscard]] std::vector<std::string> Names() const;

private:
    std::string path_;
};

} // namespace kestrum
