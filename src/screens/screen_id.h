#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace kestrum {

enum class Screen_Kind { Engine, Sheet, Compare, Graph, Report };

inline constexpr int sheet_count = 5;

/// Which of the windows: its kind, and the number of a sheet, 1 to 5.
struct Screen_Id {
    Screen_Kind kind = Screen_Kind::Engine;
    int number = 0;

    bool operator==(const Screen_Id&) const = default;
};

/// All windows, in the order in which they are looked for and unloaded.
inline constexpr std::array<Screen_Id, sheet_count + 4> all_screens{{{Screen_Kind::Engine},
                                                                     {Screen_Kind::Sheet, 1},
                                                                     {Screen_Kind::Sheet, 2},
                                                                     {Screen_Kind::Sheet, 3},
                                                                     {Screen_Kind::Sheet, 4},
                                                                     {Screen_Kind::Sheet, 5},
                                                                     {Screen_Kind::Compare},
                                                                     {Screen_Kind::Graph},
                                                                     {Screen_Kind::Report}}};

/// "Main", "Form1" to "Form5", "Form50", "Form60", "Form70".
[[nodiscard]] std::string Name_Of(Screen_Id id);

/// The window of such a name; nothing for any other name.
[[nodiscard]] std::optional<Screen_Id> Screen_Id_Of(std::string_view name);

/// What a user calls the window: "Flow Test 3".
[[nodiscard]] std::string Title_Of(Screen_Id id);

} // namespace kestrum
