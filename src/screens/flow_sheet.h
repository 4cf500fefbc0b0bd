#pragma once

#include "screens/screen.h"

#include <array>
#include <cstddef>

namespace kestrum {

// Rows of the three-line headings, then those of the lifts.
inline constexpr int first_heading_row = 13;
inline constexpr int last_heading_row = 15;
inline constexpr int zero_lift_row = 16;
inline constexpr int first_test_row = 17;
inline constexpr int last_lift_row = 30;

/// `Form1` to `Form5`: one flow test each. Rows 0 to 15 of the columns are the header block, rows
/// 16 to 30 the lift rows.
class Flow_Sheet : public Screen {
public:
    explicit Flow_Sheet(int number);

    [[nodiscard]] int Number() const { return Id().number; }

    // Page 1.
    const Control_Array& Text101 = Array("Text101");
    const Control_Array& Text102 = Array("Text102");
    const Control_Array& Text103 = Array("Text103");
    const Control_Array& Text104 = Array("Text104");
    const Control_Array& Text105 = Array("Text105");
    const Control_Array& Text106 = Array("Text106");
    const Control_Array& Text107 = Array("Text107");
    const Control_Array& Text108 = Array("Text108");
    const Control_Array& Text109 = Array("Text109");
    const Control_Array& Text110 = Array("Text110");
    const Control_Array& Text111 = Array("Text111");
    const Control_Array& Text112 = Array("Text112");
    const Control_Array& Text113 = Array("Text113");
    const Control_Array& Text114 = Array("Text114");
    const Control_Array& Text115 = Array("Text115");
    // Page 2.
    const Control_Array& Text201 = Array("Text201");
    const Control_Array& Text202 = Array("Text202");
    const Control_Array& Text203 = Array("Text203");
    const Control_Array& Text204 = Array("Text204");
    const Control_Array& text205 = Array("text205");
    const Control_Array& Text206 = Array("Text206");
    const Control_Array& Text207 = Array("Text207");
    const Control_Array& Text208 = Array("Text208");
    const Control_Array& Text209 = Array("Text209");
    const Control_Array& Text210 = Array("Text210");
    const Control_Array& Text211 = Array("Text211");

    /// Comment of the test.
    Control& Text38 = The("Text38");
    /// Path of the file last loaded or saved.
    Control& Text39 = The("Text39");
    Control& Label7 = The("Label7");
    /// Page 2.
    Control& Frame1 = The("Frame1");

    /// The cell of the header that has a role for a valve, as the table says.
    [[nodiscard]] Control& Cell(Side side, Cell_Role role) const;
    /// The column of the lift rows that has a role for a valve.
    [[nodiscard]] const Control_Array& Column(Side side, Cell_Role role) const;

private:
    struct Slot {
        Control* cell = nullptr;
        const Control_Array* column = nullptr;
    };

    [[nodiscard]] static std::size_t Slot_Of(Side side, Cell_Role role);

    std::array<Slot, static_cast<std::size_t>(side_count* cell_role_count)> slots_{};
};

} // namespace kestrum
