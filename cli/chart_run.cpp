#include "cli/chart_run.h"

#include "base/run_time_error.h"
#include "chart/chart_page.h"
#include "cli/chart_output.h"
#include "cli/line_text.h"
#include "cli/standard_streams.h"
#include "cli/usage_error.h"
#include "library/test_reader.h"
#include "platform/file_store.h"

namespace kestrum::cli {

namespace {

std::string In_Format(const Chart& chart, Output_Format format) {
    switch (format) {
    case Output_Format::Json:
        return Chart_Json(chart);
    case Output_Format::Csv:
        return Chart_Csv(chart);
    case Output_Format::Text:
        break;
    }
    return Chart_Text(chart);
}

Chart Laid_Out(const std::vector<Chart_Test>& tests, const Chart_Request& request) {
    try {
        return Chart_Of(tests, request);
    } catch (const Run_Time_Error&) {
        throw Usage_Error("chart: --step is too small for these lifts");
    }
}

bool Save(const Chart& chart, const Chart_Options& options, Painter& painter,
          std::ostream& errors) {
    try {
        const std::vector<Figure> pages = Chart_Pages(chart, {}, {});
        // SVG is letters: the painting, which takes its time to start, has no part in it.
        Write_Whole_File(options.output, options.picture == Picture_Format::Svg
                                             ? Figure_Svg(Below_Each_Other(pages))
                                             : painter.Picture_Of(pages, options.picture));
    } catch (const Run_Time_Error& failure) {
        errors << Escaped(options.output) + ": the chart has not been saved -- " +
                      failure.Description() + "\n";
        return false;
    }
    return true;
}

} // namespace

int Run_Chart(const Chart_Options& options, Painter& painter, std::ostream& out,
              std::ostream& errors) {
    Test_Reader reader(options.metric_files);
    std::vector<Chart_Test> tests;
    for (const std::string& file : options.files) {
        Test_Reading reading = reader.Read(file);
        if (reading.figures) {
            tests.push_back({.file = file, .figures = std::move(*reading.figures)});
        } else {
            errors << Escaped(file) + ": " + One_Line(reading.problem) + "\n";
        }
    }
    const Chart chart = Laid_Out(tests, options.request);
    if (options.Prints()) {
        const std::string text = In_Format(chart, options.format);
        const bool spells = options.to_terminal && options.format != Output_Format::Json;
        out << (spells ? Escaped(text, "\n") : text);
        Finish(out, "chart: the figures cannot be written");
    }
    const bool saved =
        options.output.empty() || tests.empty() || Save(chart, options, painter, errors);
    return saved && tests.size() == options.files.size() ? 0 : 1;
}

} // namespace kestrum::cli
