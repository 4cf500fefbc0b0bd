#include "exchange/lift_rows.h"

#include "base/text.h"

#include <algorithm>

namespace kestrum {

void Empty_Lift_Rows(Flow_Sheet& sheet) {
    for (int row = zero_lift_row; row <= last_lift_row; ++row) {
        for (const Control_Array* const column :
             {&sheet.Text101, &sheet.Text106, &sheet.Text107, &sheet.Text108, &sheet.Text207,
              &sheet.Text210, &sheet.Text211}) {
            (*column)(row).Set_Text("0");
        }
    }
}

void Put_Lift(Flow_Sheet& sheet, int row, std::string_view lift) {
    sheet.Text101(row).Set_Text(lift);
    sheet.Text108(row).Set_Text(lift);
}

std::string Ending_Of(std::string_view path) {
    constexpr std::size_t length = 3;
    return Lower_Copy(path.substr(path.size() - std::min(length, path.size())));
}

} // namespace kestrum
