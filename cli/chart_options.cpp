#include "cli/chart_options.h"

#include "base/text.h"
#include "cli/line_text.h"
#include "cli/usage_texts.h"

namespace kestrum::cli {

namespace {

void Take_Side(Argument_Reader& reader, Chart_Request& request) {
    const int side = reader.Choice({"intake", "exhaust", "both"});
    request.shows = {.intake = side != 1, .exhaust = side != 0};
}

bool Take_Request(Argument_Reader& reader, Chart_Request& request) {
    if (reader.Is("--quantity")) {
        request.quantity = static_cast<Chart_Quantity>(
            reader.Choice({"flow", "velocity", "per-area", "cd", "effective-cd", "swirl"}));
    } else if (reader.Is("--side")) {
        Take_Side(reader, request);
    } else if (reader.Is("--at")) {
        request.pressure = reader.Positive_Value();
    } else if (reader.Is("--to")) {
        request.mean_to = reader.Positive_Value();
    } else if (reader.Is("--cam")) {
        request.cam_lift = reader.Positive_Value();
    } else if (reader.Is("--step")) {
        request.step = reader.Positive_Value();
    } else if (reader.Is("--units")) {
        const bool metric = reader.Choice({"us", "metric"}) == 1;
        request.lift_unit = metric ? Lift_Unit::Millimetre : Lift_Unit::Inch;
        request.flow_unit = metric ? Flow_Unit::Cubic_Metres : Flow_Unit::Cubic_Feet;
    } else {
        return false;
    }
    return true;
}

void Take_Output(Argument_Reader& reader, Chart_Options& options) {
    options.output = reader.Value();
    const std::string lower = Lower_Copy(options.output);
    if (lower.ends_with(".svg")) {
        options.picture = Picture_Format::Svg;
    } else if (lower.ends_with(".pdf")) {
        options.picture = Picture_Format::Pdf;
    } else if (lower.ends_with(".png")) {
        options.picture = Picture_Format::Png;
    } else {
        throw reader.Wrong_Call("a picture ends in .svg, .pdf or .png: " + Quoted(options.output));
    }
}

void Take_Option(Argument_Reader& reader, Chart_Options& options) {
    if (Takes_Format(reader, options.format) || Take_Request(reader, options.request)) {
        return;
    }
    if (reader.Is("--metric")) {
        options.metric_files = true;
    } else if (reader.Is("-o")) {
        Take_Output(reader, options);
    } else {
        throw reader.Unknown_Option();
    }
}

} // namespace

Chart_Options Chart_Options_From(std::span<const char* const> arguments) {
    Chart_Options options;
    Argument_Reader reader("chart", usage::chart, arguments);
    while (reader.Next()) {
        if (reader.Is_Option()) {
            Take_Option(reader, options);
        } else {
            options.files.push_back(reader.File());
        }
    }
    if (options.files.empty()) {
        throw reader.Wrong_Call("no file is named");
    }
    if (options.files.size() > most_chart_tests) {
        throw reader.Wrong_Call("a chart shows eight tests at most");
    }
    return options;
}

} // namespace kestrum::cli
