#include "sheet/flow_calculation.h"

#include "base/text.h"
#include "sheet/flow_header.h"
#include "sheet/flow_rows.h"
#include "sheet/flow_units.h"
#include "sheet/seat_geometry.h"
#include "sheet/sheet_state.h"

namespace kestrum {

namespace {

void Report_Failure(Session& session, const Run_Time_Error& failure) {
    std::string text = "Error Number " + session.numbers.Fmt_Whole(failure.Number()) + " -- " +
                       failure.Description() +
                       "\r\n\r\nPlease Save your Data.\r\n\r\nIf you can NOT Find the Reason for "
                       "this Error. Please the Sent the Saved Data file and a Print Screen of this "
                       "Error to Software Support.";
    if (failure.Number() == error::division_by_zero) {
        text += "\r\n\r\nCheck for a Field that has a Value of Zero that should not be Zero";
    }
    session.Message(text, Box_Icon::Stop);
}

/// `Calc_Flow_US` and `Calc_Flow_Metric`: one body, two descriptions of units.
void Calc_Flow(Session& session, Flow_Sheet& sheet, const Flow_Units& units) {
    try {
        const Flow_Context context{session, sheet, units,
                                   Valve_Side_Of(session, sheet, Side::Intake),
                                   Valve_Side_Of(session, sheet, Side::Exhaust)};
        Calc_Header(context);
        if (units.sets_up_seats) {
            Seat_Geometry_Setup(session.numbers, context.intake, units.factors);
            Seat_Geometry_Setup(session.numbers, context.exhaust, units.factors);
        }
        Sheets_Of(session).flow_totals = {};
        for (int row = zero_lift_row; row <= last_lift_row; ++row) {
            Calc_Lift_Row(context, row);
        }
        Calc_Averages(context);
        sheet.Note_Calculation();
    } catch (const Run_Time_Error& failure) {
        Report_Failure(session, failure);
    }
}

} // namespace

void Take_Valve_Counts(Session& session, Flow_Sheet& sheet) {
    Sheets_Of(session).intake_valves = session.numbers.Read_Integer(sheet.Text106(6));
    Sheets_Of(session).exhaust_valves = session.numbers.Read_Integer(sheet.Text108(6));
}

void Calc_Flow_Test(Session& session, Flow_Sheet& sheet) {
    Take_Valve_Counts(session, sheet);
    Calc_Flow(session, sheet, session.Main().Is_Metric() ? Metric_Flow_Units() : Us_Flow_Units());
}

void Calc_All_Flow_Tests(Session& session) {
    for (int number = 1; number <= sheet_count; ++number) {
        Calc_Flow_Test(session, session.Sheet(number));
    }
}

} // namespace kestrum
