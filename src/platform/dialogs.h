#pragma once

#include "base/font.h"

#include <optional>
#include <string>

namespace kestrum {

enum class Box_Icon { None, Information, Exclamation, Stop, Question };
enum class Box_Buttons { Ok, Ok_Cancel, Yes_No };
enum class Box_Answer { Ok, Cancel, Yes, No };

/// A message box. An empty title stands for the program's own.
struct Box {
    std::string text;
    std::string title;
    Box_Icon icon = Box_Icon::None;
    Box_Buttons buttons = Box_Buttons::Ok;
};

enum class Chooser_Mode { Open, Save };

/// A file chooser. The filter holds pairs of words and pattern between "|"; entries count from 1.
/// A chooser for saving asks before it takes the name of a file that is there.
struct Chooser {
    Chooser_Mode mode = Chooser_Mode::Open;
    std::string filter;
    int filter_index = 1;
    std::string folder;
    /// Name or path that a chooser for saving begins with; empty: none.
    std::string proposal{};
    /// Ending that it puts behind a name without one while the entry in force is for it, ".dat".
    std::string completes{};
    /// Entries behind those of the filter, for a user at a display; these complete names as well.
    std::string more_entries{};

    [[nodiscard]] bool Overwrite_Prompt() const { return mode == Chooser_Mode::Save; }
};

/// What the user chose in a chooser.
struct Chosen_Path {
    std::string path;
    /// The entry of the filter that was in force, from 1.
    int filter_index = 1;
};

/// The windows that ask the user something and hold the program until the answer.
struct Dialogs {
    Dialogs() = default;
    Dialogs(const Dialogs&) = delete;
    Dialogs& operator=(const Dialogs&) = delete;
    virtual ~Dialogs() = default;

    virtual Box_Answer Show_Box(const Box& box) = 0;
    /// The choice, or nothing when the user cancels.
    virtual std::optional<Chosen_Path> Choose_File(const Chooser& chooser) = 0;

    /// The chosen colour as a blue-green-red number, or nothing when the user cancels. A face
    /// without such a dialog cancels.
    virtual std::optional<int> Choose_Colour() { return std::nullopt; }

    /// The chosen font, or nothing when the user cancels; `shown` is what the dialog begins with. A
    /// face without such a dialog cancels.
    virtual std::optional<Font> Choose_Font(const Font& /*shown*/) { return std::nullopt; }

    virtual void Beep() = 0;
};

} // namespace kestrum
