#pragma once

#include "platform/lock_file.h"
#include "screens/screen_id.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kestrum {

/// One of the folders "rescue", "rescue-2" to "rescue-9" below the program's folder, held by one
/// running program at a time. Nothing here raises.
class Rescue_Folder {
public:
    static constexpr int most_programs = 9;
    /// Screens that are kept, in the order in which their copies are loaded.
    static constexpr auto kept_screens = std::span(all_screens).first<1 + sheet_count>();
    /// The decimal separator and the units that the copies are written with.
    static constexpr std::string_view point_name = "point";
    static constexpr std::string_view units_name = "units";

    /// The folder of the given number, 1 to 9; nothing is made yet.
    Rescue_Folder(const std::string& home, int number);

    [[nodiscard]] static std::string File_Of(Screen_Id screen);
    /// All files that a running program writes there, its lock left out.
    [[nodiscard]] static std::vector<std::string> Written_Names();

    /// Makes the folder at need and holds it; false when another program does, or when it cannot
    /// be made. What a killed program was about to write is complete then.
    [[nodiscard]] bool Take();

    /// Whether the folder is there and other programs are kept away from it.
    [[nodiscard]] bool Is_Held() const { return lock_.Is_Held(); }

    [[nodiscard]] const std::string& Path() const { return path_; }

    [[nodiscard]] std::string Path_Of(Screen_Id screen) const;
    [[nodiscard]] bool Has_Copy(Screen_Id screen) const;
    [[nodiscard]] bool Is_Free_Of_Copies() const;

    /// Content of a file of the folder, empty when it cannot be read.
    [[nodiscard]] std::string Content(std::string_view name) const;

    /// Removes the copies, by their names: what else lies there is the user's.
    void Remove_Copies();
    /// Lets go of the folder. One without copies and without a file of the user goes.
    void Leave();

private:
    std::string path_;
    Lock_File lock_;
};

} // namespace kestrum
