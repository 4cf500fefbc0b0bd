#pragma once

#include "screens/cell_role.h"

#include <string_view>

namespace kestrum {

enum class Control_Kind {
    Text_Box,
    Label,
    Button,
    Check_Box,
    Option_Button,
    Frame,
    Combo_Box,
    Picture,
    Menu_Entry
};

/// What a text box is for; it decides lock, tab stop and colours at the start.
enum class Cell_Use { None, Blank, Caption, Input, Result };

/// Which keys a field lets pass.
enum class Key_Filter { Every_Key, Unsigned_Decimal, Digits_Only, Signed_Decimal };

/// What is tested when the focus leaves a field.
enum class Leave_Check { No_Check, Not_Blank, Not_Zero };

/// What follows when a leave check has passed.
enum class Leave_Step {
    No_Step,
    Mach_Limit,
    Ratio_Limit,
    Intake_Count,
    Exhaust_Count,
    Copy_Lift,
    Dash_When_Empty,
    Dash_When_Low_Is_Empty
};

/// What the mouse over a control does to the help line of its screen.
enum class Hover { Hides, Shows, Leaves };

/// Cell of the screen's grid, or of the grid of the frame that holds the control.
struct Place {
    int column = -1;
    int row = -1;
    int columns = 1;
    int rows = 1;
};

inline constexpr int no_index = -1;

/// One line of the table that declares a kind of screen: a control, or the members `first` to
/// `last` of a control array that are alike.
struct Control_Entry {
    std::string_view array;
    int first = no_index;
    int last = no_index;
    Control_Kind kind = Control_Kind::Text_Box;
    Cell_Use use = Cell_Use::None;
    /// Stored text or caption. In a line for several members each has its own between "|", or all
    /// have the one text that stands there.
    std::string_view text{};
    Key_Filter filter = Key_Filter::Every_Key;
    Leave_Check check = Leave_Check::No_Check;
    Leave_Step step = Leave_Step::No_Step;
    bool selects_on_focus = false;
    bool many_lines = false;
    /// Help text that the mouse over the control shows.
    std::string_view tip{};
    Hover hover = Hover::Hides;
    /// Frame or menu that holds the control; empty for the screen itself.
    std::string_view parent{};
    Place place{};
    /// Keys that call a menu entry, as "Ctrl+O".
    std::string_view shortcut{};
    int start_value = 0;
    bool starts_hidden = false;
    /// Starting back colour as a blue-green-red number; -1 for the usual one of the kind.
    int back_colour = -1;
    /// What the number of a cell measures, of which valve, and what it is to the calculation.
    Quantity quantity = Quantity::None;
    Side side = Side::Both;
    Cell_Role role = Cell_Role::None;

    // The words of which the tables are built; each gives a changed copy.

    [[nodiscard]] constexpr Control_Entry Filter(Key_Filter keys) const {
        Control_Entry entry = *this;
        entry.filter = keys;
        return entry;
    }

    [[nodiscard]] constexpr Control_Entry Check(Leave_Check test,
                                                Leave_Step then = Leave_Step::No_Step) const {
        Control_Entry entry = *this;
        entry.check = test;
        entry.step = then;
        return entry;
    }

    [[nodiscard]] constexpr Control_Entry Selects() const {
        Control_Entry entry = *this;
        entry.selects_on_focus = true;
        return entry;
    }

    [[nodiscard]] constexpr Control_Entry Many_Lines() const {
        Control_Entry entry = *this;
        entry.many_lines = true;
        return entry;
    }

    [[nodiscard]] constexpr Control_Entry Tip(std::string_view words) const {
        Control_Entry entry = *this;
        entry.tip = words;
        entry.hover = Hover::Shows;
        return entry;
    }

    /// The mouse over it leaves the help line as it is.
    [[nodiscard]] constexpr Control_Entry Keeps_Tip() const {
        Control_Entry entry = *this;
        entry.hover = Hover::Leaves;
        return entry;
    }

    [[nodiscard]] constexpr Control_Entry In(std::string_view holder) const {
        Control_Entry entry = *this;
        entry.parent = holder;
        return entry;
    }

    /// Place of the first member; the others of the line follow below it.
    [[nodiscard]] constexpr Control_Entry At(int column, int row, int columns = 1,
                                             int rows = 1) const {
        Control_Entry entry = *this;
        entry.place = {column, row, columns, rows};
        return entry;
    }

    [[nodiscard]] constexpr Control_Entry Keys(std::string_view keys) const {
        Control_Entry entry = *this;
        entry.shortcut = keys;
        return entry;
    }

    /// Check box set, option button chosen.
    [[nodiscard]] constexpr Control_Entry Set() const {
        Control_Entry entry = *this;
        entry.start_value = 1;
        return entry;
    }

    [[nodiscard]] constexpr Control_Entry Coloured(int blue_green_red) const {
        Control_Entry entry = *this;
        entry.back_colour = blue_green_red;
        return entry;
    }

    [[nodiscard]] constexpr Control_Entry Of(Quantity what) const {
        Control_Entry entry = *this;
        entry.quantity = what;
        return entry;
    }

    /// A cell of one valve. One with a role measures what its role does.
    [[nodiscard]] constexpr Control_Entry Of(Side valve, Cell_Role what = Cell_Role::None) const {
        Control_Entry entry = *this;
        entry.side = valve;
        entry.role = what;
        entry.quantity = Quantity_Of(what);
        return entry;
    }

    [[nodiscard]] constexpr Control_Entry Hidden() const {
        Control_Entry entry = *this;
        entry.starts_hidden = true;
        return entry;
    }
};

// Beginnings of table lines.

[[nodiscard]] constexpr Control_Entry Cell(Cell_Use use, std::string_view array, int first,
                                           int last, std::string_view text) {
    return {.array = array, .first = first, .last = last, .use = use, .text = text};
}

[[nodiscard]] constexpr Control_Entry Caption(std::string_view array, int index,
                                              std::string_view text) {
    return Cell(Cell_Use::Caption, array, index, index, text);
}

/// Caption cells one below the other.
[[nodiscard]] constexpr Control_Entry Captions(std::string_view array, int first, int last,
                                               std::string_view texts) {
    return Cell(Cell_Use::Caption, array, first, last, texts);
}

/// Cells without a text, which no step of the system writes.
[[nodiscard]] constexpr Control_Entry Blanks(std::string_view array, int first, int last) {
    return Cell(Cell_Use::Blank, array, first, last, "");
}

[[nodiscard]] constexpr Control_Entry Input(std::string_view array, int index,
                                            std::string_view text) {
    return Cell(Cell_Use::Input, array, index, index, text);
}

[[nodiscard]] constexpr Control_Entry Inputs(std::string_view array, int first, int last,
                                             std::string_view texts) {
    return Cell(Cell_Use::Input, array, first, last, texts);
}

[[nodiscard]] constexpr Control_Entry Result(std::string_view array, int index,
                                             std::string_view text) {
    return Cell(Cell_Use::Result, array, index, index, text);
}

[[nodiscard]] constexpr Control_Entry Results(std::string_view array, int first, int last,
                                              std::string_view texts) {
    return Cell(Cell_Use::Result, array, first, last, texts);
}

/// A field that is no member of an array.
[[nodiscard]] constexpr Control_Entry Lone_Field(std::string_view name, Cell_Use use,
                                                 std::string_view text) {
    return Cell(use, name, no_index, no_index, text);
}

[[nodiscard]] constexpr Control_Entry Lone(Control_Kind kind, std::string_view name,
                                           std::string_view text) {
    return {.array = name, .kind = kind, .text = text};
}

[[nodiscard]] constexpr Control_Entry Members(Control_Kind kind, std::string_view array, int first,
                                              int last, std::string_view texts) {
    return {.array = array, .first = first, .last = last, .kind = kind, .text = texts};
}

[[nodiscard]] constexpr Control_Entry Push_Button(std::string_view name, std::string_view caption) {
    return Lone(Control_Kind::Button, name, caption);
}

/// A menu, or an entry of the menu named by `parent`.
[[nodiscard]] constexpr Control_Entry Menu(std::string_view parent, std::string_view name,
                                           std::string_view caption) {
    return Lone(Control_Kind::Menu_Entry, name, caption).In(parent);
}

} // namespace kestrum
