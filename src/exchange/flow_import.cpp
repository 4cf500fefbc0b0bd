#include "exchange/flow_import.h"

#include "base/text.h"
#include "base/units.h"
#include "core/decimal_switch.h"
#include "exchange/lift_rows.h"
#include "platform/file_store.h"
#include "records/named_files.h"

namespace kestrum {

namespace {

// The second entry has lost its pattern, which moves all that follow; users know it so.
constexpr std::string_view flow_filter =
    "Flow Files (*.flw, *.dfw)|*.flw; *.dfw|DeskTop Dyno Files (*.dyn)|Dynomation Files "
    "(*.dym)|*.dym|All Files (*.*)|*.*";

void Tell_Count(Session& session) {
    session.Message(session.numbers.Fmt_Thousands(session.file.records_read) + " Records Read");
}

/// Brings the two series, each with lifts of its own, into the one lift column of the sheet. Both
/// must ascend; nothing is sorted.
class Flow_Merge {
public:
    Flow_Merge(const Numeric_Text& numbers, Flow_Sheet& sheet, const Flow_Points& points)
        : numbers_(numbers), sheet_(sheet), points_(points) {}

    /// Gives whether all points found a row.
    [[nodiscard]] bool Run() {
        for (int row = first_test_row; row <= last_lift_row && !Is_At_End(); ++row) {
            Fill(row);
        }
        return Is_At_End();
    }

private:
    [[nodiscard]] Real In_Lift() const { return points_.intake.lift.at(intake_at_); }

    [[nodiscard]] Real In_Flow() const { return points_.intake.flow.at(intake_at_); }

    [[nodiscard]] Real Ex_Lift() const { return points_.exhaust.lift.at(exhaust_at_); }

    [[nodiscard]] Real Ex_Flow() const { return points_.exhaust.flow.at(exhaust_at_); }

    /// Two points without flow end the merge, also when they stand first.
    [[nodiscard]] bool Is_At_End() const { return In_Flow() == 0 && Ex_Flow() == 0; }

    void Fill(int row) {
        if (In_Lift() == Ex_Lift()) {
            Put_Lift_In_Thousandths(row, In_Lift());
            Put_Intake(row);
            Put_Exhaust(row);
        } else if ((In_Lift() >= Ex_Lift() || In_Lift() == 0) && Ex_Lift() != 0) {
            Put_Lift_In_Thousandths(row, Ex_Lift());
            Put_Exhaust(row);
        } else {
            Put_Lift_In_Thousandths(row, In_Lift());
            Put_Intake(row);
        }
    }

    void Put_Lift_In_Thousandths(int row, Real inches) {
        Put_Lift(sheet_, row, numbers_.Fmt_Whole(inches * factor::thousandths));
    }

    void Put_Intake(int row) {
        sheet_.Text106(row).Set_Text(numbers_.Fmt_Eight_Wide(In_Flow()));
        ++intake_at_;
    }

    void Put_Exhaust(int row) {
        sheet_.Text107(row).Set_Text(numbers_.Fmt_Eight_Wide(Ex_Flow()));
        // The sheet has one pressure, the intake's; exhaust flow at another one says so itself.
        if (points_.intake.pressure != points_.exhaust.pressure) {
            sheet_.Text211(row).Set_Text(numbers_.Fmt_Four_Place(points_.exhaust.pressure));
        }
        ++exhaust_at_;
    }

    const Numeric_Text& numbers_;
    Flow_Sheet& sheet_;
    const Flow_Points& points_;
    std::size_t intake_at_ = 0;
    std::size_t exhaust_at_ = 0;
};

bool Read_And_Merge(Session& session, Flow_Sheet& sheet, Flow_Layout layout,
                    std::string_view content, Flow_Calculation calculate) {
    Flow_Points points;
    if (Read_Flow_Points(session, sheet, layout, content, points) != Flow_Reading::Done) {
        session.Message("NO Flow Infomation Found!!!");
        return false;
    }
    Tell_Count(session);
    Empty_Lift_Rows(sheet);
    if (!Flow_Merge(session.numbers, sheet, points).Run()) {
        session.Message("NOT ALL Flow Infomation Could be Pocessed!!!");
    }
    Apply_Decimal_Mode(session.numbers, sheet);
    calculate(session, sheet);
    return true;
}

} // namespace

void Import_Flow_File(Session& session, Flow_Sheet& sheet) {
    std::string bytes;
    try {
        const Chosen_Path choice = Choice_Of_File(session, Chooser_Mode::Open, flow_filter,
                                                  session.settings.flow_filter_index);
        session.settings.flow_filter_index = choice.filter_index;
        session.file.path = choice.path;
        bytes = Read_Whole_File(session.file.path);
    } catch (const Run_Time_Error&) {
        session.Message("No Flow File Selected");
        return;
    }
    Read_Flow_Lines(session, sheet, Flow_Layout_Of(session.file.path), bytes);
}

bool Read_Flow_Lines(Session& session, Flow_Sheet& sheet, Flow_Layout layout,
                     std::string_view bytes, Flow_Calculation calculate) {
    const std::string content = Decoded(bytes);
    try {
        if (!Read_And_Merge(session, sheet, layout, content, calculate)) {
            return false;
        }
    } catch (const Run_Time_Error&) {
        session.Message("Problem Reading Flow File -- May Not have all needed Information");
        Tell_Count(session);
        return false;
    }
    sheet.Text39.Set_Text(session.file.path);
    return true;
}

} // namespace kestrum
