#include "cli/library_output.h"

#include "chart/figure_text.h"
#include "cli/json_text.h"
#include "cli/line_text.h"
#include "library/library_columns.h"

#include <algorithm>
#include <array>

namespace kestrum::cli {

namespace {

void Append_Json_Entry(std::string& out, const Library_Entry& entry) {
    char before = '{';
    for (const Library_Column& column : Library_Columns()) {
        if (entry.problem && !column.of_every_file) {
            continue;
        }
        out += before;
        before = ',';
        Append_Json_Text(out, column.name);
        out += ':';
        const Library_Value value = Value_In(column, entry);
        if (const auto* const text = std::get_if<std::string>(&value)) {
            Append_Json_Text(out, *text);
        } else if (const auto* const number = std::get_if<double>(&value)) {
            Append_Json_Number(out, *number);
        } else {
            out += "null";
        }
    }
    if (entry.problem) {
        out += R"(,"problem":)";
        Append_Json_Text(out, *entry.problem);
    }
    out += "}\n";
}

std::string Plain(const Library_Value& value) {
    const auto* const text = std::get_if<std::string>(&value);
    const auto* const number = std::get_if<double>(&value);
    return text != nullptr ? *text : number != nullptr ? Shortest(*number) : std::string();
}

void Append_Csv_Entry(std::string& out, const Library_Entry& entry) {
    for (const Library_Column& column : Library_Columns()) {
        Append_Field(out, Plain(Value_In(column, entry)));
        out += ',';
    }
    Append_Field(out, entry.problem.value_or(""));
    out += '\n';
}

/// A column of the text form: what people look for first, in few letters.
struct Text_Column {
    std::string_view name;
    std::string_view title;
    std::size_t width;
    int decimals = 0;
};

constexpr auto text_columns = std::to_array<Text_Column>({{"intake_valve", "in.", 6, 3},
                                                          {"exhaust_valve", "ex.", 6, 3},
                                                          {"port_volume", "cc", 6, 1},
                                                          {"pressure", "H2O", 6, 2},
                                                          {"points", "rows", 5, 0},
                                                          {"intake_peak", "in.peak", 8, 1},
                                                          {"intake_mean", "in.mean", 8, 1},
                                                          {"exhaust_peak", "ex.peak", 8, 1},
                                                          {"exhaust_mean", "ex.mean", 8, 1},
                                                          {"ratio", "ratio", 6, 3}});

std::string Right(std::string_view text, std::size_t width) {
    return std::string(width - std::min(width, text.size()), ' ') + std::string(text);
}

std::string Text_Head() {
    std::string out;
    for (const Text_Column& column : text_columns) {
        out += Right(column.title, column.width);
    }
    return out + "  test\n";
}

void Append_Text_Entry(std::string& out, const Library_Entry& entry) {
    for (const Text_Column& column : text_columns) {
        const Library_Value value = Value_In(*Library_Column_Named(column.name), entry);
        const auto* const number = std::get_if<double>(&value);
        out += Right(number != nullptr ? Bare_Text(*number, column.decimals) : "-", column.width);
    }
    out += "  " + One_Line(entry.file);
    if (entry.problem) {
        out += ": " + One_Line(*entry.problem);
    } else {
        out += "  " + One_Line(entry.figures.name);
    }
    out += '\n';
}

std::string Csv_Head() {
    std::string out;
    for (const Library_Column& column : Library_Columns()) {
        out += std::string(column.name) + ",";
    }
    return out + "problem\n";
}

} // namespace

std::string Library_Lines(const std::vector<Library_Entry>& entries, Output_Format format) {
    std::string out = format == Output_Format::Csv    ? Csv_Head()
                      : format == Output_Format::Text ? Text_Head()
                                                      : std::string();
    for (const Library_Entry& entry : entries) {
        switch (format) {
        case Output_Format::Json:
            Append_Json_Entry(out, entry);
            break;
        case Output_Format::Csv:
            Append_Csv_Entry(out, entry);
            break;
        case Output_Format::Text:
            Append_Text_Entry(out, entry);
            break;
        }
    }
    return out;
}

} // namespace kestrum::cli
