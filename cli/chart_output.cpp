#include "cli/chart_output.h"

#include "chart/figure_text.h"
#include "cli/json_text.h"
#include "cli/line_text.h"

#include <algorithm>

namespace kestrum::cli {

namespace {

std::string_view Name_Of(Chart_Side side) {
    return side == Chart_Side::Intake ? "intake" : "exhaust";
}

using Cell_Number = std::optional<double> Chart_Cell::*;

struct Cell_Column {
    std::string_view suffix;
    Cell_Number number;
};

constexpr std::array cell_columns{Cell_Column{"", &Chart_Cell::value},
                                  Cell_Column{"_gain", &Chart_Cell::gain},
                                  Cell_Column{"_percent", &Chart_Cell::percent}};

void Append_Key(std::string& out, std::string_view key) {
    out += '"';
    out += key;
    out += "\":";
}

void Append_Json_Point(std::string& out, const Lift_Point& point) {
    out += '[';
    Append_Json_Number(out, point.lift);
    out += ',';
    Append_Json_Number(out, point.value);
    out += ']';
}

void Append_Json_Curve(std::string& out, const Chart_Curve& curve) {
    out += R"({"points":[)";
    for (const Lift_Point& point : curve.points) {
        out += &point == &curve.points.front() ? "" : ",";
        Append_Json_Point(out, point);
    }
    out += R"(],"peak":)";
    if (curve.peak) {
        Append_Json_Point(out, *curve.peak);
    } else {
        out += "null";
    }
    out += R"(,"mean":)";
    Append_Json_Number(out, curve.mean);
    out += R"(,"event_mean":)";
    Append_Json_Number(out, curve.event_mean);
    out += '}';
}

void Append_Json_Test(std::string& out, const Chart_Entry& test, const Chart_Request& request) {
    out += R"({"file":)";
    Append_Json_Text(out, test.file);
    out += R"(,"name":)";
    Append_Json_Text(out, test.name);
    out += R"(,"pressure":)";
    Append_Json_Number(out, test.pressure);
    for (const Chart_Side side : chart_sides) {
        if (request.shows[side]) {
            out += ',';
            Append_Key(out, Name_Of(side));
            Append_Json_Curve(out, test.sides[side]);
        }
    }
    out += R"(,"ratio":)";
    Append_Json_Number(out, test.ratio);
    out += '}';
}

void Append_Json_Row(std::string& out, const Chart_Row& row, const Chart_Request& request) {
    out += R"({"lift":)";
    Append_Json_Number(out, row.lift);
    for (const Chart_Side side : chart_sides) {
        if (!request.shows[side]) {
            continue;
        }
        for (const Cell_Column& column : cell_columns) {
            out += ',';
            Append_Key(out, std::string(Name_Of(side)).append(column.suffix));
            char before = '[';
            for (const Chart_Cell& cell : row.cells[side]) {
                out += before;
                Append_Json_Number(out, cell.*column.number);
                before = ',';
            }
            out += ']';
        }
    }
    out += '}';
}

} // namespace

std::string Chart_Json(const Chart& chart) {
    const Chart_Request& request = chart.request;
    std::string out = R"({"at":)";
    Append_Json_Number(out, request.pressure);
    out += R"(,"quantity":)";
    Append_Json_Text(out, Entry_Of(request.quantity).name);
    out += R"(,"lift_unit":)";
    Append_Json_Text(out, Entry_Of(request.lift_unit).name);
    out += R"(,"unit":)";
    Append_Json_Text(out, request.Unit().name);
    out += R"(,"tests":[)";
    for (const Chart_Entry& test : chart.tests) {
        out += &test == &chart.tests.front() ? "" : ",";
        Append_Json_Test(out, test, request);
    }
    out += R"(],"table":[)";
    for (const Chart_Row& row : chart.table) {
        out += &row == &chart.table.front() ? "" : ",";
        Append_Json_Row(out, row, request);
    }
    out += "]}\n";
    return out;
}

namespace {

/// The figures of one side in a test's line.
constexpr std::array<std::string_view, 4> curve_columns{"_peak", "_peak_lift", "_mean",
                                                        "_event_mean"};

std::array<std::optional<double>, curve_columns.size()> Figures_Of(const Chart_Curve& curve) {
    const auto of_peak = [&](double Lift_Point::*number) {
        return curve.peak ? std::optional((*curve.peak).*number) : std::nullopt;
    };
    return {of_peak(&Lift_Point::value), of_peak(&Lift_Point::lift), curve.mean, curve.event_mean};
}

std::vector<Chart_Side> Shown_Sides(const Chart_Request& request) {
    std::vector<Chart_Side> sides;
    std::ranges::copy_if(chart_sides, std::back_inserter(sides),
                         [&](Chart_Side side) { return request.shows[side]; });
    return sides;
}

void Append_Csv_Head(std::string& out, const Chart& chart) {
    out += "file,name,pressure";
    for (const Chart_Side side : Shown_Sides(chart.request)) {
        for (const std::string_view column : curve_columns) {
            out.append(",").append(Name_Of(side)).append(column);
        }
    }
    out += ",ratio,lift";
    for (const Chart_Side side : Shown_Sides(chart.request)) {
        for (std::size_t test = 1; test <= chart.tests.size(); ++test) {
            for (const Cell_Column& column : cell_columns) {
                out.append(",").append(Name_Of(side)).append(column.suffix).append("_");
                out += Shortest(static_cast<double>(test));
            }
        }
    }
    out += '\n';
}

} // namespace

std::string Chart_Csv(const Chart& chart) {
    const std::vector<Chart_Side> sides = Shown_Sides(chart.request);
    const std::size_t test_columns = 4 + sides.size() * curve_columns.size();
    const std::size_t lift_columns = 1 + sides.size() * chart.tests.size() * cell_columns.size();
    std::string out;
    Append_Csv_Head(out, chart);
    for (const Chart_Entry& test : chart.tests) {
        Append_Field(out, test.file);
        out += ',';
        Append_Field(out, test.name);
        out += "," + Shortest(test.pressure);
        for (const Chart_Side side : sides) {
            for (const std::optional<double>& figure : Figures_Of(test.sides[side])) {
                out += "," + Shortest(figure);
            }
        }
        out += "," + Shortest(test.ratio) + std::string(lift_columns, ',') + "\n";
    }
    for (const Chart_Row& row : chart.table) {
        out += std::string(test_columns, ',') + Shortest(row.lift);
        for (const Chart_Side side : sides) {
            for (const Chart_Cell& cell : row.cells[side]) {
                for (const Cell_Column& column : cell_columns) {
                    out += "," + Shortest(cell.*column.number);
                }
            }
        }
        out += '\n';
    }
    return out;
}

namespace {

std::string Or_Dash(std::string text) {
    return text.empty() ? "-" : std::move(text);
}

std::string Curve_Words(const Chart_Curve& curve, const Chart_Request& request) {
    const int decimals = request.Unit().decimals;
    std::string words = "peak ";
    words += curve.peak ? Fixed_Text(curve.peak->value, decimals) + " at " +
                              Lift_Text(curve.peak->lift, request.lift_unit)
                        : "-";
    words += ", mean " + Or_Dash(Fixed_Text(curve.mean, decimals));
    if (request.cam_lift) {
        words += ", event mean " + Or_Dash(Fixed_Text(curve.event_mean, decimals));
    }
    return words;
}

std::string Cell_Words(const Chart_Cell& cell, int decimals) {
    std::string words = Or_Dash(Fixed_Text(cell.value, decimals));
    if (cell.gain) {
        words +=
            " (" + Signed_Text(cell.gain, decimals) + ", " + Signed_Text(cell.percent, 1) + " %)";
    }
    return words;
}

} // namespace

std::string Chart_Text(const Chart& chart) {
    const Chart_Request& request = chart.request;
    const Chart_Quantity_Entry& entry = Entry_Of(request.quantity);
    const std::vector<Chart_Side> sides = Shown_Sides(request);
    std::string out(entry.title);
    out += request.Unit().name.empty() ? "" : " [" + std::string(request.Unit().name) + "]";
    out += " at " + Bare_Text(request.pressure, 4) + " in. H2O, lifts [" +
           std::string(Entry_Of(request.lift_unit).name) + "], the first test is the baseline\n";
    for (const Chart_Entry& test : chart.tests) {
        out += One_Line(test.name);
        for (const Chart_Side side : sides) {
            out.append("  ").append(Name_Of(side)).append(" ");
            out += Curve_Words(test.sides[side], request);
        }
        out += test.ratio ? "  ratio " + Fixed_Text(test.ratio, 3) + "\n" : "\n";
    }
    for (const Chart_Row& row : chart.table) {
        out += Lift_Text(row.lift, request.lift_unit);
        for (const Chart_Side side : sides) {
            out.append("  ").append(Name_Of(side));
            for (const Chart_Cell& cell : row.cells[side]) {
                out += "  " + Cell_Words(cell, request.Unit().decimals);
            }
        }
        out += '\n';
    }
    return out;
}

} // namespace kestrum::cli
