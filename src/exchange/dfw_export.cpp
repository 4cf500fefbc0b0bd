#include "exchange/dfw_export.h"

#include "base/text.h"
#include "base/units.h"
#include "platform/file_store.h"
#include "records/named_files.h"

namespace kestrum {

namespace {

constexpr std::string_view dfw_filter = "Flow Data Files (*.dfw)|*.dfw";

struct Point_Lines {
    std::string lifts;
    std::string flows;
    int count = 0;
};

void Add_Line(std::string& text, std::string_view line) {
    text.append(line).append(cr_lf);
}

void Add_Value(std::string& text, std::string_view value) {
    text.append("1 ").append(value).append(cr_lf);
}

/// Rows with a lift and a flow. All are read, so that a text that is no number is never passed by.
Point_Lines Points_Of(Numeric_Text& numbers, const Flow_Sheet& sheet, const Control_Array& flows) {
    const auto read = [&numbers](const Control& field) {
        return numbers.Read_Either_Mark(field.Text());
    };
    Point_Lines points;
    for (int row = zero_lift_row; row <= last_lift_row; ++row) {
        const Real lift = read(sheet.Text101(row));
        const Real flow = read(flows(row));
        if (lift != 0 && flow != 0) {
            Add_Value(points.lifts, numbers.Fmt_Six_Place(lift / factor::thousandths));
            Add_Value(points.flows, numbers.Fmt_Six_Place(flow));
            ++points.count;
        }
    }
    return points;
}

void Add_Side(std::string& text, const Numeric_Text& numbers, const Control& valve,
              const Point_Lines& points) {
    Add_Value(text, numbers.Fmt_Up_To_Six(numbers(valve)));
    Add_Value(text, "28"); // the corrected flow's usual pressure, whatever the sheet has
    text += points.lifts;
    text += points.flows;
}

void Add_Engine_Analyzer_Lines(std::string& text, const Flow_Sheet& sheet) {
    Add_Line(text, "Performance Trends ONLY Information");
    Add_Line(text, "IVol = " + sheet.Text102(1).Text());
    Add_Line(text, "EVol = " + sheet.Text104(1).Text());
    Add_Line(text, "ILen = " + sheet.Text102(8).Text());
    Add_Line(text, "ELen = " + sheet.Text104(8).Text());
}

bool Is_For_Engine_Analyzer(Session& session) {
    return session.Message({.text = "Will This Flow File be Used With Performance Trends - Engine "
                                    "Analyzer?",
                            .title = {},
                            .buttons = Box_Buttons::Yes_No}) == Box_Answer::Yes;
}

} // namespace

Dfw_File Dfw_File_Of(Session& session, const Flow_Sheet& sheet, bool for_engine_analyzer) {
    Numeric_Text& numbers = session.numbers;
    const Point_Lines intake = Points_Of(numbers, sheet, sheet.Text102);
    const Point_Lines exhaust = Points_Of(numbers, sheet, sheet.Text103);
    Dfw_File file{.text = {}, .intake_points = intake.count, .exhaust_points = exhaust.count};
    Add_Line(file.text, "5.00");
    Add_Line(file.text, "T A R V E X - Exported Flow Data From Kestrum Program");
    Add_Line(file.text, "0");
    Add_Line(file.text, numbers.Fmt_Whole(intake.count));
    Add_Line(file.text, numbers.Fmt_Whole(exhaust.count));
    Add_Side(file.text, numbers, sheet.Text102(3), intake);
    Add_Side(file.text, numbers, sheet.Text104(3), exhaust);
    Add_Line(file.text, sheet.Text106(6).Text());
    Add_Line(file.text, sheet.Text108(6).Text());
    Add_Line(file.text, "***");
    Add_Line(file.text, "***");
    if (for_engine_analyzer) {
        Add_Engine_Analyzer_Lines(file.text, sheet);
    }
    // A reader would take this character for the end of the file.
    constexpr char end_of_file = 26;
    std::erase(file.text, end_of_file);
    file.text += cr_lf;
    return file;
}

void Warn_Of_Many_Points(Session& session, const Dfw_File& file, bool for_engine_analyzer) {
    constexpr int harmless = 10;
    if (!for_engine_analyzer && (file.intake_points > harmless || file.exhaust_points > harmless)) {
        session.Message(
            "There are more than 10 Data Point. This may cuase problems with some software.",
            Box_Icon::Exclamation);
    }
}

void Export_DFW_File(Session& session, const Flow_Sheet& sheet) {
    const bool for_engine_analyzer = Is_For_Engine_Analyzer(session);
    Dfw_File file;
    try {
        session.file.path = Chosen_File(session, Chooser_Mode::Save, dfw_filter, 1,
                                        {.proposal = Proposal_For(session, sheet, ".dfw")});
        // Composed first: a text that is no number must not cost the file that is there.
        file = Dfw_File_Of(session, sheet, for_engine_analyzer);
        Keep_File(session, session.file.path, file.text);
    } catch (const Run_Time_Error&) {
        session.Message("Problem - DFW File was Not Saved");
        return;
    }
    Warn_Of_Many_Points(session, file, for_engine_analyzer);
}

} // namespace kestrum
