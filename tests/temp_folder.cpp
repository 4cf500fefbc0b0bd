#include "tests/temp_folder.h"

#include "platform/file_path.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>
#include <string>
#include <system_error>

namespace kestrum {

namespace fs = std::filesystem;

Temp_Folder::Temp_Folder() {
    std::random_device any;
    std::error_code taken;
    for (int tries = 0; tries < 100; ++tries) {
        path_ = (fs::temp_directory_path() / ("kestrum-test-" + std::to_string(any()))).string();
        if (fs::create_directory(path_, taken)) {
            return;
        }
    }
    throw std::runtime_error("no folder for the test: " + path_);
}

Temp_Folder::~Temp_Folder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

std::string Temp_Folder::File(std::string_view name) const {
    std::string path = path_ + "/" + std::string(name);
    std::ranges::replace(path, '/', static_cast<char>(fs::path::preferred_separator));
    return path;
}

std::string Temp_Folder::Write(std::string_view name, std::string_view bytes) const {
    std::ofstream file(File_Path(File(name)), std::ios::binary);
    file << bytes;
    return File(name);
}

std::string Bytes_Of(const std::string& path) {
    std::ifstream file(File_Path(path), std::ios::binary);
    if (!file) {
        throw std::runtime_error("there is no file " + path);
    }
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string Temp_Folder::Read(std::string_view name) const {
    return Bytes_Of(File(name));
}

std::vector<std::string> Temp_Folder::Names() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(File_Path(path_))) {
        names.push_back(entry.path().filename().string());
    }
    std::ranges::sort(names);
    return names;
}

} // namespace kestrum
