#include "cli/graph_session.h"

#include "application/events.h"
#include "application/version.h"
#include "cli/line_text.h"
#include "core/logo_picture.h"
#include "files/flow_data_file.h"
#include "files/started_sheets.h"
#include "output/graph_saving.h"
#include "platform/file_store.h"

#include <array>
#include <utility>

namespace kestrum::cli {

namespace {

constexpr int from_sheet = 1;
constexpr int to_sheet = 2;

Surroundings Around(const Clock& clock) {
    Surroundings around;
    around.version = Program_Version();
    around.clock = clock;
    return around;
}

} // namespace

Graph_Session::Graph_Session(const Graph_Options& options, std::ostream& errors, const Clock& clock)
    : errors_(errors), session_(platform_, platform_, Around(clock)) {
    static_cast<void>(Started_Sheets(session_, to_sheet, options.metric));
    for (const Control& control : session_.Sheet(from_sheet).Controls()) {
        start_texts_.push_back(control.Text());
    }
    platform_.Clear();
    const Compare_Screen& table = session_.Form50();
    Click(session_, table.Option1(from_sheet - 1));
    Click(session_, table.Option2(to_sheet - 1));
    Click(session_, table.Option3(options.type));
    Click(session_, table.Option4(options.x_column));
    Set_Extras(options.extras);
}

void Graph_Session::Set_Extras(const Graph_Extras& extras) {
    const Compare_Screen& table = session_.Form50();
    const std::array<std::pair<Control*, bool>, 3> boxes{{{&table.Check1, extras.quarter},
                                                          {&table.Check2, extras.auto_lines},
                                                          {&table.Check3, extras.points}}};
    for (const auto& [box, wanted] : boxes) {
        if (wanted && box->Value() == 0) {
            Click(session_, *box);
        }
    }
    if (!extras.y_low.empty()) {
        table.Text1.Set_Text(extras.y_low);
    }
    if (!extras.y_high.empty()) {
        table.Text2.Set_Text(extras.y_high);
    }
    const std::array captions{&table.Text71, &table.Text72};
    for (std::size_t line = 0; line < extras.captions.size(); ++line) {
        captions.at(line)->Set_Text(extras.captions[line]);
    }
    if (!extras.logo.empty()) {
        Take_Logo(extras.logo);
    }
}

void Graph_Session::Take_Logo(const std::string& path) {
    try {
        kestrum::Take_Logo(session_, path);
        session_.settings.logo.on = true;
        session_.settings.logo.file = path;
        session_.Form60().Show_Logo(session_.settings.logo.size.value_or(Extent{}));
    } catch (const Run_Time_Error& failure) {
        Tell(path, "No logo -- " + failure.Description());
    }
}

/// No test may depend on the one that was in the sheet before it.
void Graph_Session::Start_Over(Flow_Sheet& sheet) const {
    std::size_t index = 0;
    for (Control& control : sheet.Controls()) {
        control.Set_Text(start_texts_[index]);
        ++index;
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
    for (const std::string& text : platform_.Texts()) {
        Tell(source, text);
    }
    platform_.Clear();
}

void Graph_Session::Tell(const std::string& source, const std::string& what) {
    errors_ << Escaped(source) + ": " + One_Line(what) + "\n";
}

} // namespace kestrum::cli
