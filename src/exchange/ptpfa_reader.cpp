#include "exchange/ptpfa_reader.h"

#include "base/text.h"
#include "base/units.h"
#include "core/decimal_switch.h"
#include "exchange/lift_rows.h"
#include "records/records.h"

#include <algorithm>
#include <array>
#include <limits>

namespace kestrum {

namespace {

constexpr int count_line = 2;
constexpr int pipe_line = 68;
constexpr int first_record_part_line = 250; // where the second pass begins
constexpr int last_flag_read = 140;

// A record grows by these when the line of the flag is "1". The flag in line 73 adds nothing.
constexpr std::array flag_lines{69, 70, 71, 72, 74};
constexpr int lines_of_flag = 2;

/// A line whose text goes into a field as it stands.
struct Fixed_Line {
    int line;
    std::string_view array;
    int index;
    bool also_when_blank = false;
};

constexpr auto sheet_lines = std::to_array<Fixed_Line>({
    {34, "Text102", 3},       {35, "Text102", 4},       {36, "Text102", 6},  {37, "Text202", 4},
    {39, "Text102", 1},       {40, "Text106", 2},       {41, "Text108", 2},  {42, "Text102", 8},
    {44, "Text104", 3},       {45, "Text104", 4},       {46, "Text104", 6},  {47, "Text204", 4},
    {49, "Text104", 1},       {50, "Text106", 3},       {51, "Text108", 3},  {52, "Text104", 8},
    {63, "Text108", 7, true}, {66, "Text104", 0, true}, {113, "Text110", 5},
});

constexpr auto engine_lines = std::to_array<Fixed_Line>({
    {110, "Text104", 3},
    {111, "Text105", 3},
    {112, "Text111", 3},
    {113, "Text101", 8},
});

/// The file's counts are 16 bits wide.
int In_16_Bits(int value) {
    if (value < std::numeric_limits<short>::min() || value > std::numeric_limits<short>::max()) {
        Fail(error::overflow);
    }
    return value;
}

/// The one of the lines that goes into a field, null when there is none.
template <std::size_t size>
const Fixed_Line* Entry_Of(const std::array<Fixed_Line, size>& entries, int line,
                           std::string_view text) {
    const auto* const found = std::ranges::find(entries, line, &Fixed_Line::line);
    const bool is_blank = Without_Outer_Blanks(text).empty();
    return found != entries.end() && (found->also_when_blank || !is_blank) ? found : nullptr;
}

} // namespace

PTPFA_Reader::PTPFA_Reader(Session& session, Flow_Sheet& sheet, bool is_pti)
    : session_(session), sheet_(sheet), is_pti_(is_pti), record_line_(is_pti ? 271 : 258) {}

void PTPFA_Reader::Read(std::string_view content) {
    Line_Reader lines(content);
    while (lines.Next()) {
        if (line_ < first_record_part_line) {
            Take_Fixed_Line(lines.Line());
        } else {
            Take_Record_Line(lines.Line());
        }
        line_ = In_16_Bits(line_ + 1);
    }
}

void PTPFA_Reader::Apply_Decimal_Mode_To_Engine() {
    for (Control* const field : engine_fields_) {
        std::string text = field->Text();
        const std::size_t foreign = text.find(session_.numbers.comma_mode != 0 ? '.' : ',');
        if (foreign != std::string::npos) {
            text[foreign] = session_.numbers.Point();
            field->Set_Text(text);
        }
    }
}

Real PTPFA_Reader::Number_In(std::string_view line) {
    return session_.numbers.Read_Either_Mark(line);
}

void PTPFA_Reader::Take_Fixed_Line(std::string_view line) {
    if (line_ == count_line) {
        point_count_ = session_.numbers.Read_Integer_Either_Mark(line);
    } else if (line_ == pipe_line) {
        sheet_.Text102(10).Set_Text(Lower_Copy(Left(line, 4)) == "none" ? "No" : "Yes");
    } else if (std::ranges::find(flag_lines, line_) != flag_lines.end()) {
        record_size_ += line == "1" ? lines_of_flag : 0;
    } else if (line_ > last_flag_read) {
        Set_Last_Intake_Line();
    } else {
        Put_Fixed_Text(line);
    }
}

void PTPFA_Reader::Put_Fixed_Text(std::string_view line) {
    if (const Fixed_Line* const entry = Entry_Of(engine_lines, line_, line)) {
        Control& field = session_.Main().Array(entry->array)(entry->index);
        field.Set_Text(line);
        engine_fields_.push_back(&field);
    }
    if (const Fixed_Line* const entry = Entry_Of(sheet_lines, line_, line)) {
        sheet_.Array(entry->array)(entry->index).Set_Text(line);
    }
}

/// Only here, since the flags must have been read.
void PTPFA_Reader::Set_Last_Intake_Line() {
    if (last_intake_line_ == 0) {
        const int before_last = In_16_Bits(In_16_Bits(point_count_ - 1) * record_size_);
        last_intake_line_ = In_16_Bits(before_last + (is_pti_ ? 270 : 258));
    }
}

void PTPFA_Reader::Take_Record_Line(std::string_view line) {
    if (phase_ == Phase::Intake) {
        Take_Intake_Line(line);
    } else if (phase_ == Phase::Exhaust) {
        Take_Exhaust_Line(line);
    }
}

void PTPFA_Reader::Take_Intake_Line(std::string_view line) {
    constexpr int pressure = 2;
    constexpr int flow = 6;
    constexpr int swirl = 8;
    const int place = line_ - record_line_;
    if (place == (is_pti_ ? 0 : -1)) {
        Put_Lift_In_Inches(line);
    } else if (place == pressure) {
        Put_Depression(sheet_.Text210, line);
    } else if (place == flow) {
        Take_Intake_Flow(line);
    } else if (place == swirl - record_size_) {
        Put_Swirl_Of_Record_Before(line);
    }
}

void PTPFA_Reader::Take_Exhaust_Line(std::string_view line) {
    constexpr int pressure = -4;
    const int place = line_ - record_line_;
    if (place == pressure) {
        Put_Depression(sheet_.Text211, line);
    } else if (place == 0) {
        Take_Exhaust_Flow(line);
    }
}

void PTPFA_Reader::Put_Lift_In_Inches(std::string_view line) {
    if (!line.empty()) {
        Put_Lift(sheet_, row_, session_.numbers.Fmt_Whole(Number_In(line) * factor::thousandths));
    }
}

/// A point that was run at the test's own pressure has no depression of its own. The texts decide:
/// "28.0" is another pressure than "28".
void PTPFA_Reader::Put_Depression(const Control_Array& column, std::string_view line) {
    if (!line.empty() && line != sheet_.Text108(7).Text()) {
        column(row_).Set_Text(line);
    }
}

void PTPFA_Reader::Put_Swirl_Of_Record_Before(std::string_view line) {
    // The place of this line also fits in front of the first record, where no row is filled yet.
    if (row_ > first_test_row && !Without_Outer_Blanks(line).empty()) {
        sheet_.Text207(row_ - 1).Set_Text(line);
    }
}

void PTPFA_Reader::Take_Intake_Flow(std::string_view line) {
    if (line.empty()) {
        Next_Record();
    } else if (session_.numbers(sheet_.Text101(row_)) == 0) {
        // The flow at zero lift is what leaks past the valve; it goes off every other flow. The
        // next record takes the row over.
        zero_lift_intake_ = Number_In(line);
        Next_Record();
        return;
    } else {
        Put_Flow(sheet_.Text106, line, zero_lift_intake_);
        ++row_;
        Next_Record();
    }
    End_Intake_Behind_Last();
}

void PTPFA_Reader::Take_Exhaust_Flow(std::string_view line) {
    if (line.empty()) {
        Next_Record();
    } else if (zero_lift_intake_ != 0 && zero_lift_exhaust_ == 0) {
        zero_lift_exhaust_ = Number_In(line);
        Next_Record();
        return;
    } else {
        Put_Flow(sheet_.Text107, line, zero_lift_exhaust_);
        ++row_;
        Next_Record();
    }
    End_Exhaust_Behind_Last();
}

void PTPFA_Reader::Put_Flow(const Control_Array& column, std::string_view line, Real zero_lift) {
    if (zero_lift != 0) {
        column(row_).Set_Text(session_.numbers.Fmt_One_Place(Number_In(line) - zero_lift));
    } else {
        column(row_).Set_Text(line);
    }
}

void PTPFA_Reader::Next_Record() {
    record_line_ = In_16_Bits(record_line_ + record_size_);
}

void PTPFA_Reader::End_Intake_Behind_Last() {
    if (record_line_ <= last_intake_line_) {
        return;
    }
    row_ = first_test_row;
    phase_ = Phase::Exhaust;
    const int intake_lines = In_16_Bits(point_count_ * record_size_);
    const int before_last = In_16_Bits(In_16_Bits(point_count_ - 1) * record_size_);
    record_line_ = In_16_Bits(intake_lines + (is_pti_ ? 280 : 267));
    last_exhaust_line_ = In_16_Bits(before_last + record_line_ - (is_pti_ ? 1 : 0));
}

void PTPFA_Reader::End_Exhaust_Behind_Last() {
    if (record_line_ > last_exhaust_line_) {
        phase_ = Phase::Finished;
    }
}

} // namespace kestrum
