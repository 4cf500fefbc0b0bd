#pragma once

#include "base/font.h"
#include "base/numeric_text.h"
#include "screens/control_entry.h"
#include "screens/digest.h"

#include <string>
#include <string_view>
#include <vector>

namespace kestrum {

class Screen;

/// Colours are the system's blue-green-red numbers: 0x0000FF is red.
using Colour = int;

// The two looks of a cell.
inline constexpr Colour input_back = 0xFFFFFF;
inline constexpr Colour input_text = 0;
inline constexpr Colour result_back = 0x01FFFF; // yellow
inline constexpr Colour result_text = 0x0000FF; // red

/// What of a control may change besides its text.
struct Look {
    bool visible = true;
    bool enabled = true;
    bool locked = false;
    bool tab_stop = true;
    Colour back_colour = input_back;
    Colour text_colour = input_text;
    Alignment alignment = Alignment::Left;
    /// The valve that the cell belongs to; a comparison gives its columns theirs.
    Side side = Side::Both;
    Font font{};

    bool operator==(const Look&) const = default;
};

struct Position {
    double left = 0;
    double top = 0;

    bool operator==(const Position&) const = default;
};

/// Size of a picture in its own units.
struct Extent {
    double width = 0;
    double height = 0;

    bool operator==(const Extent&) const = default;
};

/// All of a control that can change.
struct Control_State {
    std::string text;
    /// The last calculation, or the last file, has brought no text for it: what it shows is older.
    bool is_left = false;
    int value = 0;
    Look look{};
    Position position{};
    Extent extent{};
    std::vector<std::string> items{};

    bool operator==(const Control_State&) const = default;
};

/// One control of a screen with its present state. A field of the system is a control of the kind
/// `Text_Box`; its text is all there is of its value.
class Control {
public:
    Control(Screen& screen, const Control_Entry& entry, int index);

    [[nodiscard]] Screen& Owner() const { return *screen_; }

    [[nodiscard]] const Control_Entry& Entry() const { return *entry_; }

    [[nodiscard]] int Index() const { return index_; }

    [[nodiscard]] bool Is_Text_Box() const { return entry_->kind == Control_Kind::Text_Box; }

    /// "Form1.Text104(6)"; a control that is no member of an array has no index.
    [[nodiscard]] std::string Address() const;

    /// The text of a field or a combo box, the caption of anything else.
    [[nodiscard]] const std::string& Text() const { return state_.text; }

    void Set_Text(std::string_view new_text);
    void Append_Text(std::string_view more);

    /// Whether the text is older than what the last calculation or file has brought. A text that
    /// is set, be it the same, ends that.
    [[nodiscard]] bool Is_Left() const { return state_.is_left; }

    void Set_Left(bool left);

    /// State of a check box (0 or 1) or an option button.
    [[nodiscard]] int Value() const { return state_.value; }

    void Set_Value(int new_value);

    [[nodiscard]] const Look& Present_Look() const { return state_.look; }

    void Set_Look(const Look& new_look);
    void Set_Visible(bool visible);
    void Set_Enabled(bool enabled);

    /// Where the user or a file has put a picture, in the units of its surface.
    [[nodiscard]] const Position& Moved_To() const { return state_.position; }

    void Move_To(const Position& position);

    /// Size of a picture; nothing for any other control.
    [[nodiscard]] const Extent& Picture_Extent() const { return state_.extent; }

    void Set_Extent(const Extent& extent);

    /// What a picture shows has changed.
    void Repaint() { Mark_Changed(); }

    /// Entries of a combo box.
    [[nodiscard]] const std::vector<std::string>& Items() const { return state_.items; }

    void Set_Items(std::vector<std::string> new_items);

    [[nodiscard]] const Control_State& Present_State() const { return state_; }

    void Set_State(const Control_State& new_state);

private:
    friend class Screen;
    void Take_Share();
    void Mark_Input_Changed();
    void Mark_Changed();

    Screen* screen_;
    const Control_Entry* entry_;
    int index_;
    Control_State state_;
    /// What is in the digests of the screen for it, and whether that is out of date.
    Input_Digests share_;
    bool share_is_old_ = false;
    bool changed_ = false;
};

} // namespace kestrum
