#include "platform/file_moves.h"

#include "platform/file_path.h"
#include "platform/file_store.h"

#include <array>
#include <charconv>
#include <filesystem>

namespace kestrum {

namespace {

namespace fs = std::filesystem;

std::string Numbered_Name(const fs::path& name, int number) {
    std::array<char, 12> digits{};
    const auto [end, failure] = std::to_chars(digits.data(), digits.data() + digits.size(), number);
    static_cast<void>(failure); // twelve characters hold every int
    return Text_Of(name.stem()) + "-" + std::string(digits.data(), end) + Text_Of(name.extension());
}

} // namespace

std::string Move_To_Fresh_Name(const std::string& path, std::string_view folder) {
    constexpr int most_names = 100000;
    const fs::path name = File_Path(Bare_Name(path));
    for (int number = 1; number <= most_names; ++number) {
        std::string fresh =
            Join_Path(folder, number == 1 ? Text_Of(name) : Numbered_Name(name, number));
        const Rename_Outcome outcome = Rename_Without_Loss(path, fresh);
        if (outcome == Rename_Outcome::Done) {
            return fresh;
        }
        if (outcome == Rename_Outcome::Failed) {
            return {};
        }
    }
    return {};
}

std::int64_t Moment_Of_File(const std::string& path) {
    constexpr std::int64_t second = 1'000'000'000;
    const std::optional<File_Time> written = Last_Write(path);
    return written ? written->seconds * second + written->nanoseconds : 0;
}

} // namespace kestrum
