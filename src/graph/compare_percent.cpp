#include "graph/compare_percent.h"

namespace kestrum {

namespace {

void Fill_Positive(const Numeric_Text& numbers, const Compare_Screen& table, int row) {
    const Real from_intake = numbers(table.Text102(row));
    const Real to_intake = numbers(table.Text104(row));
    if (from_intake > 0 && to_intake > 0) {
        // From over To, though a change goes the other way; wanted.
        table.Text107(row).Set_Text(numbers.Fmt_Two_Place(from_intake / to_intake * 100 - 100));
        table.Text109(row).Set_Text(table.Text107(row).Text());
    } else {
        table.Text109(row).Set_Text(""); // the other three keep what they hold; wanted
    }
    const Real from_exhaust = numbers(table.Text103(row));
    const Real to_exhaust = numbers(table.Text105(row));
    if (from_exhaust > 0 && to_exhaust > 0) {
        table.Text108(row).Set_Text(numbers.Fmt_Two_Place(from_exhaust / to_exhaust * 100 - 100));
        table.Text110(row).Set_Text(table.Text108(row).Text());
    }
}

Real Signed_Change(Real from, Real to) {
    if (from > 0 && to < 0) {
        return (from - 2 * to) / (to * -1) * 100 - 100;
    }
    if (from < 0 && to > 0) {
        return from * -1 / (to - 2 * from) * 100 - 100;
    }
    return from / to * 100 - 100;
}

void Fill_Signed(const Numeric_Text& numbers, const Compare_Screen& table, int row) {
    const Real from = numbers(table.Text102(row));
    const Real to = numbers(table.Text104(row));
    if (from == 0 || to == 0) {
        return; // the row keeps what an earlier comparison left; wanted
    }
    table.Text107(row).Set_Text(numbers.Fmt_Two_Place(Signed_Change(from, to)));
    table.Text109(row).Set_Text(table.Text107(row).Text());
    table.Text108(row).Set_Text(table.Text107(row).Text());
    table.Text110(row).Set_Text(table.Text108(row).Text());
}

} // namespace

void Fill_Percent(Session& session, bool signed_values, int row) {
    if (signed_values) {
        Fill_Signed(session.numbers, session.Form50(), row);
    } else {
        Fill_Positive(session.numbers, session.Form50(), row);
    }
}

} // namespace kestrum
