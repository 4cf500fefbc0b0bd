#pragma once

#include "platform/lock_file.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kestrum {

using Words = std::vector<std::string>;

/// Where the programs of one user leave word for each other: a folder that nobody else can enter,
/// the system's own for that or one below the folder of temporary files. Empty when there is none,
/// and each start is then a program of its own.
[[nodiscard]] std::string Meeting_Folder(std::string_view runtime_folder,
                                         std::string_view temporary_folder);

/// Name of the place where a program that works in a folder, on a display, is met.
[[nodiscard]] std::string Meeting_Place(std::string_view meeting_folder,
                                        std::string_view program_folder, std::string_view display);

/// The place where a second start meets the program that runs already: a socket of the user's own,
/// with a file beside it that one program can hold. The system lets go of that when the program
/// ends, so what a crash leaves behind is in nobody's way. Nothing here raises.
class Running_Program {
public:
    Running_Program() = default;
    Running_Program(const Running_Program&) = delete;
    Running_Program& operator=(const Running_Program&) = delete;
    ~Running_Program();

    /// Becomes the program that is met there; false when another one is, or when it cannot be.
    [[nodiscard]] bool Take(const std::string& place);

    /// Becomes readable when somebody calls; -1 when nobody can.
    [[nodiscard]] int Handle() const { return listening_; }

    /// What a caller says, who is told that it was heard; nothing when nobody calls, or a caller
    /// who is another user, says too much or takes too long.
    [[nodiscard]] std::optional<Words> Hear();

    void Leave();

private:
    std::string place_;
    Lock_File lock_;
    int listening_ = -1;
};

/// Says something to the program that is met at a place. Gives whether it was heard in time.
[[nodiscard]] bool Tell_Running_Program(const std::string& place,
                                        std::span<const std::string> words,
                                        std::chrono::milliseconds patience);

} // namespace kestrum
