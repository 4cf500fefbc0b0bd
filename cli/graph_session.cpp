#include "cli/graph_session.h"

#include "application/events.h"
#include "cli/line_text.h"
#include "engine/unit_conversion.h"
#include "files/flow_data_file.h"
#include "output/graph_saving.h"
#include "platform/file_store.h"
#include "sheet/flow_calculation.h"

namespace kestrum::cli {

namespace {

constexpr int from_sheet = 1;
constexpr int to_sheet = 2;

} // namespace

Graph_Session::Graph_Session(const Graph_Options& options, std::ostream& errors)
    : errors_(errors), session_(boxes_, windows_, Surroundings{}) {
    // As at a start: the stored tests are calculated in US units, then the metric box is set.
    for (const int number : {from_sheet, to_sheet}) {
        Calc_Flow_Test(session_, session_.Sheet(number));
    }
    Set_Metric(session_, options.metric);
    for (const Control& control : session_.Sheet(from_sheet).Controls()) {
        start_texts_.push_back(control.Text());
    }
    boxes_.Clear();
    const Compare_Screen& table = session_.Form50();
    Click(session_, table.Option1(from_sheet - 1));
    Click(session_, table.Option2(to_sheet - 1));
    Click(session_, table.Option3(options.type));
    Click(session_, table.Option4(options.x_column));
}

/// No test may depend on the one that was in the sheet before it.
void Graph_Session::Start_Over(Flow_Sheet& sheet) const {
    std::size_t at = 0;
    for (Control& control : sheet.Controls()) {
        control.Set_Text(start_texts_[at]);
        ++at;
    }
}

bool Graph_Session::Load_Sheet(int number, const std::string& path) {
    Flow_Sheet& sheet = session_.Sheet(number);
    Start_Over(sheet);
    std::string bytes;
    try {
        bytes = Read_Whole_File(path);
    } catch (const Run_Time_Error& failure) {
        Tell(path, "Flow Data File has Not been Loaded -- " + failure.Description());
        return false;
    }
    const bool loaded = Read_Flow_Records(session_, sheet, bytes);
    Pass_On_Boxes(path);
    return loaded;
}

bool Graph_Session::Load(const File_Pair& pair) {
    const bool has_from = Load_Sheet(from_sheet, pair.from);
    const bool has_to = Load_Sheet(to_sheet, pair.to); // so that both are told of in one run
    return has_from && has_to;
}

bool Graph_Session::Press(std::string_view button) {
    Control* const control = session_.Form50().Find(button, std::nullopt);
    try {
        Click(session_, *control);
    } catch (const Run_Time_Error& failure) {
        Pass_On_Boxes("kestrum-cli");
        Tell("kestrum-cli", failure.Description());
        return false;
    }
    Pass_On_Boxes("kestrum-cli");
    return true;
}

bool Graph_Session::Save(Painter& painter, const std::string& path) {
    session_.painter = &painter;
    try {
        Write_Graph(session_, path);
    } catch (const Run_Time_Error& failure) {
        Tell(path, "Graph has Not been Saved -- " + failure.Description());
        return false;
    }
    return true;
}

void Graph_Session::Pass_On_Boxes(const std::string& source) {
    for (const std::string& text : boxes_.Texts()) {
        Tell(source, text);
    }
    boxes_.Clear();
}

void Graph_Session::Tell(const std::string& source, const std::string& what) {
    errors_ << One_Line(source) + ": " + One_Line(what) + "\n";
}

} // namespace kestrum::cli
