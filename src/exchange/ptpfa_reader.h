#pragma once

#include "core/session.h"

#include <string_view>
#include <vector>

namespace kestrum {

/// Goes through the lines of a PTPFA file, which have no keys: a line's number, counted from 0,
/// says what it holds. Values go into the sheet and into `Main` as they come.
class PTPFA_Reader {
public:
    /// There are two generations of the layout: that of the ending "pti" and that of all others.
    PTPFA_Reader(Session& session, Flow_Sheet& sheet, bool is_pti);

    /// Reads a file's decoded content. Raises 13 for a number that is none, 6 beyond 16-bit counts
    /// and 340 for a row that the sheet does not have; what was read by then stays.
    void Read(std::string_view content);

    /// Exchanges the separators of the fields of `Main` that the file has filled.
    void Apply_Decimal_Mode_To_Engine();

private:
    enum class Phase { Intake, Exhaust, Finished };

    void Take_Fixed_Line(std::string_view line);
    void Put_Fixed_Text(std::string_view line);
    void Set_Last_Intake_Line();

    void Take_Record_Line(std::string_view line);
    void Take_Intake_Line(std::string_view line);
    void Take_Exhaust_Line(std::string_view line);
    void Put_Lift_In_Inches(std::string_view line);
    void Put_Depression(const Control_Array& column, std::string_view line);
    void Put_Swirl_Of_Record_Before(std::string_view line);
    void Take_Intake_Flow(std::string_view line);
    void Take_Exhaust_Flow(std::string_view line);
    void Put_Flow(const Control_Array& column, std::string_view line, Real zero_lift);
    void Next_Record();
    void End_Intake_Behind_Last();
    void End_Exhaust_Behind_Last();

    [[nodiscard]] Real Number_In(std::string_view line);

    Session& session_;
    Flow_Sheet& sheet_;
    bool is_pti_;
    std::vector<Control*> engine_fields_;

    int line_ = 0;
    int point_count_ = 0;
    int record_size_ = 13;
    int record_line_;
    int last_intake_line_ = 0;
    int last_exhaust_line_ = 0;
    int row_ = first_test_row;
    Phase phase_ = Phase::Intake;
    Real zero_lift_intake_;
    Real zero_lift_exhaust_;
};

} // namespace kestrum
