#include "graph/compare_table.h"

#include "graph/compare_percent.h"
#include "graph/compare_types.h"
#include "graph/graph_state.h"
#include "graph/port_energy.h"
#include "graph/table_age.h"
#include "graph/test_columns.h"

#include <array>

namespace kestrum {

namespace {

const Control_Array& X_Column(const Compare_Screen& table, const Flow_Sheet& sheet) {
    switch (Compare_Screen::Chosen(table.Option4)) {
    case 0:
        return sheet.Text101;
    case 1:
        return sheet.Text208;
    default:
        return sheet.Text209;
    }
}

std::string Label_Of(const Flow_Sheet& sheet) {
    return std::string(1, static_cast<char>('0' + sheet.Number())) + " - " +
           sheet.Text102(0).Text();
}

void Give_Side(const Control_Array& column, Side side) {
    constexpr int below_label = 11;
    for (int row = below_label; row <= last_lift_row; ++row) {
        Look look = column(row).Present_Look();
        look.side = side;
        column(row).Set_Look(look);
    }
}

void Fill_Test_Head(const Test_Columns& test, const Flow_Sheet& sheet, const Compare_Type& type) {
    constexpr int label_row = 10;
    constexpr int quarter_diameter_row = 11;
    constexpr int unit_row = 12;
    Give_Side(test.intake, Side::Intake);
    Give_Side(test.exhaust, Side::Exhaust);
    test.intake(label_row).Set_Text("Test " + test.label);
    test.intake(quarter_diameter_row).Set_Text(sheet.Text102(9).Text());
    test.exhaust(quarter_diameter_row).Set_Text(sheet.Text103(9).Text());
    const bool has_unit = type.Shows_Velocity_Unit();
    test.intake(unit_row).Set_Text(has_unit ? sheet.Text114(unit_row).Text() : "");
    test.exhaust(unit_row).Set_Text(has_unit ? sheet.Text115(unit_row).Text() : "");
}

void Copy_Values(const Test_Columns& test, const Flow_Sheet& sheet, const Compare_Type& type,
                 int row) {
    test.intake(row).Set_Text(sheet.Array(type.intake)(row).Text());
    test.exhaust(row).Set_Text(sheet.Array(type.exhaust)(row).Text());
}

/// Values of one test in one row, with its energy where the type asks for it; false for a type
/// without energies.
bool Fill_Energy(Session& session, const Test_Columns& test, const Flow_Sheet& sheet,
                 const Compare_Type& type, int row) {
    switch (type.comparison) {
    case Comparison::Port_Energy:
    case Comparison::Percent_Energy:
        Copy_Values(test, sheet, type, row);
        Port_Energy(session, test, sheet, row);
        return true;
    case Comparison::Port_Energy_Density:
    case Comparison::Percent_Density:
        Copy_Values(test, sheet, type, row);
        Port_Energy_Density(session, test, sheet, row);
        return true;
    default:
        return false;
    }
}

void Fill_From(Session& session, const Flow_Sheet& sheet, const Compare_Type& type) {
    const Compare_Screen& table = session.Form50();
    const Test_Columns from = From_Columns(session);
    table.Text101(11).Set_Text(".25D In/Ex");
    Fill_Test_Head(from, sheet, type);
    for (int row = first_heading_row; row <= last_lift_row; ++row) {
        from.x(row).Set_Text(X_Column(table, sheet)(row).Text());
        if (!Fill_Energy(session, from, sheet, type, row)) {
            Copy_Values(from, sheet, type, row);
            from.derived_intake(row).Set_Text("");
            from.derived_exhaust(row).Set_Text("");
        }
    }
}

/// Rows 10 to 12 of the four derived columns.
using Headings = std::array<std::array<std::string, 4>, 3>;

Headings Headings_For(Session& session, const Compare_Type& type) {
    const std::string energy_unit = session.Main().Is_Metric() ? "Joules" : "Ft-lbs";
    const std::string from = "Test " + Graph_Of(session).from_label;
    const std::string to = "Test " + Graph_Of(session).to_label;
    switch (type.comparison) {
    case Comparison::Difference:
    case Comparison::Intake_Difference:
        return {{{}, {"Intake", "", "Exhaust", ""}, {"Diff.", "", "Diff.", ""}}};
    case Comparison::Port_Energy:
        return {{{from, "", to, ""}, {}, {"", "Port", "Energy", energy_unit}}};
    case Comparison::Port_Energy_Density:
        return {{{from, "", to, ""}, {}, {"Port", "Energy", "Density", energy_unit}}};
    default:
        return {{{},
                 {"Intake", "Exhaust", "Intake", "Exhaust"},
                 {"% Change", "% Change", "% Change", "% Change"}}};
    }
}

std::array<const Control_Array*, 4> Derived_Columns(const Compare_Screen& table) {
    return {&table.Text107, &table.Text108, &table.Text109, &table.Text110};
}

using Column_Sides = std::array<Side, 4>;

/// Which valve each of the four derived columns belongs to.
Column_Sides Derived_Sides(const Compare_Type& type) {
    const bool differences = type.comparison == Comparison::Difference ||
                             type.comparison == Comparison::Intake_Difference;
    return differences ? Column_Sides{Side::Intake, Side::Both, Side::Exhaust, Side::Both}
                       : Column_Sides{Side::Intake, Side::Exhaust, Side::Intake, Side::Exhaust};
}

void Fill_Headings(Session& session, const Compare_Type& type) {
    constexpr int first_row = 10;
    const auto columns = Derived_Columns(session.Form50());
    const Headings headings = Headings_For(session, type);
    const Column_Sides sides = Derived_Sides(type);
    for (std::size_t column = 0; column < columns.size(); ++column) {
        Give_Side(*columns[column], sides[column]);
    }
    for (std::size_t line = 0; line < headings.size(); ++line) {
        for (std::size_t column = 0; column < columns.size(); ++column) {
            (*columns[column])(first_row + static_cast<int>(line)).Set_Text(headings[line][column]);
        }
    }
}

void Zero_First_Rows(const Compare_Screen& table) {
    for (const Control_Array* const column : Derived_Columns(table)) {
        (*column)(zero_lift_row).Set_Text("0");
        (*column)(first_test_row).Set_Text("0");
    }
}

void Fill_Differences(Session& session, const Flow_Sheet& sheet, const Compare_Type& type,
                      int row) {
    const Compare_Screen& table = session.Form50();
    const Numeric_Text& numbers = session.numbers;
    Copy_Values(To_Columns(session), sheet, type, row);
    table.Text109(row).Set_Text("");
    table.Text110(row).Set_Text("");
    if (row < zero_lift_row) {
        return;
    }
    const auto difference = [&](const Control& to, const Control& from) {
        const Real minuend = numbers(to); // read first
        return (numbers.*type.format)(minuend - numbers(from));
    };
    table.Text107(row).Set_Text(difference(table.Text104(row), table.Text102(row)));
    if (type.comparison == Comparison::Difference) {
        table.Text109(row).Set_Text(difference(table.Text105(row), table.Text103(row)));
    }
}

/// From here on the value columns of types 16 and 17 hold energies.
void Move_Energies(const Compare_Screen& table, int row) {
    table.Text102(row).Set_Text(table.Text107(row).Text());
    table.Text103(row).Set_Text(table.Text108(row).Text());
    table.Text104(row).Set_Text(table.Text109(row).Text());
    table.Text105(row).Set_Text(table.Text110(row).Text());
}

void Fill_To_Row(Session& session, const Flow_Sheet& sheet, const Compare_Type& type, int row) {
    const Test_Columns to = To_Columns(session);
    switch (type.comparison) {
    case Comparison::Difference:
    case Comparison::Intake_Difference:
        return Fill_Differences(session, sheet, type, row);
    case Comparison::Port_Energy:
    case Comparison::Port_Energy_Density:
        static_cast<void>(Fill_Energy(session, to, sheet, type, row));
        return;
    case Comparison::Percent_Energy:
    case Comparison::Percent_Density:
        static_cast<void>(Fill_Energy(session, to, sheet, type, row));
        Move_Energies(session.Form50(), row);
        break;
    default:
        Copy_Values(to, sheet, type, row);
    }
    if (row >= first_test_row) {
        Fill_Percent(session, type.comparison == Comparison::Signed_Percent, row);
    }
}

void Fill_To(Session& session, const Flow_Sheet& sheet, const Compare_Type& type) {
    const Compare_Screen& table = session.Form50();
    const Test_Columns to = To_Columns(session);
    Fill_Test_Head(to, sheet, type);
    Fill_Headings(session, type);
    if (type.comparison == Comparison::Percent || type.comparison == Comparison::Signed_Percent) {
        Zero_First_Rows(table);
    }
    for (int row = first_heading_row; row <= last_lift_row; ++row) {
        to.x(row).Set_Text(X_Column(table, sheet)(row).Text());
        Fill_To_Row(session, sheet, type, row);
    }
}

void Report_Failure(Session& session, const Run_Time_Error& failure) {
    // The From label stands here for both halves; wanted.
    std::string text = "Error Number " + session.numbers.Fmt_Whole(failure.Number()) + " -- " +
                       failure.Description() + "\r\n\r\nPlease Save your Data for Flow Test " +
                       Graph_Of(session).from_label +
                       "\r\n\r\nIf you can NOT Find the Reason for this Error. Please the Sent the "
                       "Saved Data file and a Print Screen of this Error to Software Support.";
    if (failure.Number() == error::division_by_zero) {
        text += "\r\n\r\nCheck for a Field that has a Value of Zero that should not be Zero";
    }
    session.Message(text, Box_Icon::Stop);
}

using Fill = void (*)(Session& session, const Flow_Sheet& sheet, const Compare_Type& type);

void Fill_Half(Session& session, const Control_Array& options, std::string& label, Fill fill) {
    const Flow_Sheet& sheet = session.Sheet(Compare_Screen::Chosen(options) + 1);
    label = Label_Of(sheet);
    try {
        fill(session, sheet, Compare_Type_Of(session.Form50().Type()));
    } catch (const Run_Time_Error& failure) {
        Report_Failure(session, failure);
    }
}

} // namespace

void Fill_Compare_Table(Session& session) {
    Compare_Screen& table = session.Form50();
    table.Note_Calculation();
    for (Control& control : table.Controls()) {
        control.Set_Left(control.Entry().use == Cell_Use::Result); // until it is written
    }
    Fill_Half(session, table.Option1, Graph_Of(session).from_label, Fill_From);
    Fill_Half(session, table.Option2, Graph_Of(session).to_label, Fill_To);
    Note_Filled_Table(session);
}

} // namespace kestrum
