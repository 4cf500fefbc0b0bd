#pragma once

#include "screens/screen.h"

#include <QString>

#include <memory>
#include <string_view>
#include <vector>

namespace kestrum::desktop {

/// Tells what a cell is about from the cells around it, so that no table has to say it again.
class Cell_Map {
public:
    /// Takes the cells that one frame of a screen holds, or those on the bare form.
    Cell_Map(const Screen& screen, std::string_view holder);

    /// Words of the trade for a field, with the lift that stands in its row: "Throat dia Ex",
    /// "Observed Flow Intake, lift 100". A row without one is counted from the top of its column.
    [[nodiscard]] QString Words_With_Lift(const Control& field) const;
    /// Whether a field holds the valve lift that its row is named by.
    [[nodiscard]] bool Is_Lift(const Control& field) const;
    /// Whether a caption heads a column; if not, it stands before its figure.
    [[nodiscard]] bool Heads_Column(const Control& caption) const;
    /// Whether a field belongs to a table, under a heading.
    [[nodiscard]] bool Is_Under_Heading(const Control& field) const;

    [[nodiscard]] int Columns() const { return columns_; }

    [[nodiscard]] int Rows() const { return rows_; }

    [[nodiscard]] bool Has_Cell(int column, int row) const { return At(column, row) != nullptr; }

private:
    [[nodiscard]] std::size_t Slot_Of(int column, int row) const;
    /// Null outside of the map and for a blank cell.
    [[nodiscard]] const Control* At(int column, int row) const;
    [[nodiscard]] bool Is_Caption(int column, int row) const;
    [[nodiscard]] bool Is_Figure(int column, int row) const;
    /// Caption texts that stand side by side and end left of a cell, joined.
    [[nodiscard]] QString Captions_Left_Of(int column, int row) const;
    /// Caption texts that stand one below the other and end above a cell, joined.
    [[nodiscard]] QString Captions_Above(int column, int row) const;
    /// The caption that lies over several columns, this one included, and tells something.
    [[nodiscard]] const Control* Label_Over(int column, int row) const;
    /// All that stands above the first figure of a column.
    [[nodiscard]] QString Heading_Of(int column, int first_row) const;
    /// Row of the topmost of the figures that stand above a cell without a gap, or its own.
    [[nodiscard]] int First_Figure_Row(int column, int row) const;
    [[nodiscard]] QString Words_Of_Cell(int column, int row, Side side) const;
    /// Words of the trade for a field: "Throat dia Ex", "Observed Flow Intake, row 17".
    [[nodiscard]] QString Spoken_Name_Of(const Control& field) const;
    /// Whether a figure is a valve lift.
    [[nodiscard]] bool Is_Lift_At(int column, int row) const;
    /// The nearest lift in the row of a field, empty where there is none or it is the field itself.
    [[nodiscard]] QString Lift_Beside(const Place& place) const;

    /// Of the page before this one, whose rows have the same lifts.
    std::unique_ptr<const Cell_Map> front_;
    int columns_ = 0;
    int rows_ = 0;
    std::vector<const Control*> cells_;
};

} // namespace kestrum::desktop
