#include "sheet/flow_sort.h"

namespace kestrum {

namespace {

Real Lift_Of(Numeric_Text& numbers, const Control& field) {
    try {
        return numbers.Read_Either_Mark(field);
    } catch (const Run_Time_Error&) {
        return 0;
    }
}

bool In_Order(Real upper, Real lower) {
    if (upper == 0 && lower == 0) {
        return true;
    }
    const bool not_above = lower == 0 || !(upper > lower);
    const bool no_zero_above = upper != 0 || !(lower > 0);
    return not_above && no_zero_above;
}

void Exchange_Rows(Flow_Sheet& sheet, int row) {
    for (const Control_Array* const column :
         {&sheet.Text101, &sheet.Text106, &sheet.Text107, &sheet.Text207, &sheet.Text108,
          &sheet.Text210, &sheet.Text211}) {
        const std::string upper = (*column)(row).Text();
        (*column)(row).Set_Text((*column)(row + 1).Text());
        (*column)(row + 1).Set_Text(upper);
    }
}

} // namespace

void Sort_Flow_Sheet(Session& session, Flow_Sheet& sheet) {
    bool exchanged = true;
    while (exchanged) {
        exchanged = false;
        for (int row = first_test_row; row < last_lift_row; ++row) {
            const Real upper = Lift_Of(session.numbers, sheet.Text101(row));
            const Real lower = Lift_Of(session.numbers, sheet.Text101(row + 1));
            if (!In_Order(upper, lower)) {
                Exchange_Rows(sheet, row);
                exchanged = true;
            }
        }
    }
}

} // namespace kestrum
