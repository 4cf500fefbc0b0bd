#include "application/commands.h"
#include "exchange/csv_export.h"
#include "exchange/csv_import.h"
#include "exchange/dfw_export.h"
#include "exchange/flow_import.h"
#include "exchange/ptpfa_import.h"
#include "files/flow_data_file.h"
#include "output/flow_sheet_print.h"
#include "sheet/flow_calculation.h"
#include "sheet/flow_sort.h"

#include <array>

namespace kestrum {

namespace {

Flow_Sheet& Sheet_Of(Session& session, const Control& control) {
    return session.Sheet(control.Owner().Id().number);
}

/// A routine that asks for the sheet of the control.
template <auto routine>
void Run_On_Sheet(Session& session, Control& control) {
    static_cast<void>(routine(session, Sheet_Of(session, control)));
}

void Sort_Rows(Session& session, Control& control) {
    Flow_Sheet& sheet = Sheet_Of(session, control);
    Sort_Flow_Sheet(session, sheet);
    session.windows.Focus(sheet.Text101(zero_lift_row));
}

void Show_Page_2(Session& session, Control& control) {
    Flow_Sheet& sheet = Sheet_Of(session, control);
    sheet.Frame1.Set_Visible(true);
    session.windows.Focus(sheet.Text207(last_lift_row)); // the last row, not the first
}

void Show_Page_1(Session& session, Control& control) {
    Flow_Sheet& sheet = Sheet_Of(session, control);
    sheet.Frame1.Set_Visible(false);
    session.windows.Focus(sheet.Text101(zero_lift_row));
}

void Load_Sheet(Session& session, Control& control) {
    Flow_Sheet& sheet = Sheet_Of(session, control);
    Load_Flow_File(session, sheet, "");
    session.windows.Focus(sheet.Text101(zero_lift_row));
}

constexpr auto sheet_commands = std::to_array<Command>({
    {"Command1", Run_On_Sheet<Calc_Flow_Test>},
    {"Sort", Sort_Rows},
    {"NextPage", Show_Page_2},
    {"Exit", Show_Page_1},
    {"Load_Data", Load_Sheet},
    {"Save_Data", Run_On_Sheet<Save_Flow_File>},
    {"Import_PTPFA", Run_On_Sheet<Import_PTPFA_File>},
    {"Import_Flow_Data_Files", Run_On_Sheet<Import_Flow_File>},
    {"Export", Run_On_Sheet<Export_DFW_File>},
    {"Import_CSV", Run_On_Sheet<Import_CSV_File>},
    {"Export_CSV", Run_On_Sheet<Export_CSV_File>},
    {"PrtSc", Capture_Owner},
    {"Print_Sheet", Run_On_Sheet<Print_Flow_Sheet>},
    {"subend", Hide_Owner},
});

} // namespace

std::span<const Command> Sheet_Commands() {
    return sheet_commands;
}

} // namespace kestrum
