#include "cli/graph_extras.h"

#include "base/numeric_text.h"
#include "base/run_time_error.h"

namespace kestrum::cli {

namespace {

std::string Axis_Limit(Argument_Reader& reader) {
    const std::string option(reader.Text());
    const std::string_view text = reader.Value();
    try {
        static_cast<void>(Numeric_Text{}.Read(text));
    } catch (const Run_Time_Error&) {
        throw reader.Wrong_Call(option + " wants a number");
    }
    return std::string(text);
}

void Add_Caption(Graph_Extras& extras, Argument_Reader& reader) {
    if (extras.captions.size() == 2) {
        throw reader.Wrong_Call("a graph takes two lines of --caption at most");
    }
    extras.captions.emplace_back(reader.Value());
}

bool Take_Switch(Graph_Extras& extras, const Argument_Reader& reader) {
    if (reader.Is("--points")) {
        extras.points = true;
    } else if (reader.Is("--quarter")) {
        extras.quarter = true;
    } else if (reader.Is("--auto-lines")) {
        extras.auto_lines = true;
    } else {
        return false;
    }
    return true;
}

} // namespace

Paper_Size Paper_From(Argument_Reader& reader) {
    return reader.Choice({"a4", "letter"}) == 0 ? Paper_Size::A4 : Paper_Size::Letter;
}

bool Take_Extra(Graph_Extras& extras, Argument_Reader& reader) {
    if (reader.Is("--y-low")) {
        extras.y_low = Axis_Limit(reader);
    } else if (reader.Is("--y-high")) {
        extras.y_high = Axis_Limit(reader);
    } else if (reader.Is("--caption")) {
        Add_Caption(extras, reader);
    } else if (reader.Is("--logo")) {
        extras.logo = reader.Value();
    } else if (reader.Is("--dpi")) {
        extras.settings.dots_per_inch = reader.Whole_Value(36, 1200);
    } else if (reader.Is("--paper")) {
        extras.settings.paper = Paper_From(reader);
    } else {
        return Take_Switch(extras, reader);
    }
    return true;
}

} // namespace kestrum::cli
