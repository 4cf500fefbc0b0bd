#include "cli/calc_output.h"

#include "cli/calc_tables.h"
#include "cli/line_text.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace kestrum::cli {

namespace {

void Append_Csv(std::string& out, const Calc_Result& result) {
    if (!result.loaded) {
        return;
    }
    for (const Flow_Figure& figure : result.sheet.Figures()) {
        Append_Field(out, result.file);
        out += ',';
        out += figure.field;
        out += ',';
        Append_Field(out, figure.Caption());
        out += ',';
        out += figure.unit;
        out += ',';
        Append_Field(out, figure.cell->Text());
        out += '\n';
    }
}

bool Needs_Escapes(std::string_view text) {
    return std::ranges::any_of(text, [](char letter) {
        return letter < ' ' || letter > '~' || letter == '"' || letter == '\\';
    });
}

/// Texts are nearly always plain, and the thousands of a long run need not be built as objects.
void Append_Json_Text(std::string& out, std::string_view text) {
    if (Needs_Escapes(text)) {
        constexpr int one_line = -1;
        out += nlohmann::json(text).dump(one_line, ' ', false,
                                         nlohmann::json::error_handler_t::replace);
        return;
    }
    out += '"';
    out += text;
    out += '"';
}

void Append_Member(std::string& out, std::string_view key, std::string_view text) {
    out += '"';
    out += key;
    out += "\":";
    Append_Json_Text(out, text);
}

void Append_Json_Figures(std::string& out, const std::vector<Flow_Figure>& figures) {
    for (const Flow_Figure& figure : figures) {
        out += &figure == &figures.front() ? "{" : ",{";
        Append_Member(out, "field", figure.field);
        out += ',';
        Append_Member(out, "caption", figure.Caption());
        out += ',';
        Append_Member(out, "unit", figure.unit);
        out += ',';
        Append_Member(out, "value", figure.cell->Text());
        out += '}';
    }
}

void Append_Json(std::string& out, const Calc_Result& result) {
    out += '{';
    Append_Member(out, "file", result.file);
    out += result.loaded ? R"(,"loaded":true)" : R"(,"loaded":false)";
    out += result.sheet.Is_Metric() ? R"(,"metric":true)" : R"(,"metric":false)";
    out += R"(,"figures":[)";
    if (result.loaded) {
        Append_Json_Figures(out, result.sheet.Figures());
    }
    out += R"(],"boxes":[)";
    for (const std::string& box : result.sheet.Boxes()) {
        out += &box == &result.sheet.Boxes().front() ? "" : ",";
        Append_Json_Text(out, box);
    }
    out += "]}\n";
}

void Append_Text(std::string& out, const Calc_Result& result) {
    out += result.file;
    out += result.loaded ? "\n\n" : ": not loaded\n\n";
    if (result.loaded) {
        Append_Tables(out, result.sheet.Figures());
    }
}

} // namespace

void Append_Head(std::string& out, Calc_Format format) {
    if (format == Calc_Format::Csv) {
        out += "file,field,caption,unit,value\n";
    }
}

void Append_Result(std::string& out, Calc_Format format, const Calc_Result& result) {
    switch (format) {
    case Calc_Format::Text:
        return Append_Text(out, result);
    case Calc_Format::Csv:
        return Append_Csv(out, result);
    case Calc_Format::Json:
        return Append_Json(out, result);
    }
}

} // namespace kestrum::cli
