#include "cli/calc_output.h"

#include "cli/calc_tables.h"
#include "cli/json_text.h"
#include "cli/line_text.h"

#include <algorithm>

namespace kestrum::cli {

namespace {

constexpr std::string_view before_lift = ", lift ";

void Append_Member(std::string& out, std::string_view key, std::string_view text) {
    out += '"';
    out += key;
    out += "\":\"";
    Append_Json_Letters(out, text);
    out += '"';
}

} // namespace

Calc_Output::Calc_Output(Calc_Format format, const Calc_Sheet& sheet, bool to_terminal)
    : format_(format), sheet_(sheet), to_terminal_(to_terminal) {
    for (const Flow_Figure& figure : sheet.Figures()) {
        words_.push_back(format == Calc_Format::Json ? Json_Words(figure) : Csv_Words(figure));
    }
}

Calc_Output::Figure_Words Calc_Output::Csv_Words(const Flow_Figure& figure) const {
    Figure_Words words;
    words.before_lift = "," + figure.field + ",";
    if (figure.lift == nullptr) {
        Append_Field(words.before_lift, figure.name);
    } else { // always in quotes, for the comma before the lift
        words.before_lift += '"';
        Append_Doubling_Quotes(words.before_lift, figure.name);
        words.before_lift += before_lift;
        words.before_value += '"';
    }
    words.before_value += ",";
    words.before_value += figure.unit;
    words.before_value += ",";
    return words;
}

Calc_Output::Figure_Words Calc_Output::Json_Words(const Flow_Figure& figure) const {
    Figure_Words words;
    words.before_lift = &figure == &sheet_.Figures().front() ? "{" : ",{";
    Append_Member(words.before_lift, "field", figure.field);
    words.before_lift += R"(,"caption":")";
    Append_Json_Letters(words.before_lift, figure.name);
    words.before_lift += figure.lift == nullptr ? "" : before_lift;
    words.before_value = "\",";
    Append_Member(words.before_value, "unit", figure.unit);
    words.before_value += R"(,"value":")";
    return words;
}

void Calc_Output::Append_Head(std::string& out) const {
    if (format_ == Calc_Format::Csv) {
        out += "file,field,caption,unit,value\n";
    }
}

void Calc_Output::Append_Result(std::string& out, std::string_view file, bool loaded) const {
    if (format_ == Calc_Format::Json) {
        Append_Json(out, file, loaded);
        return;
    }
    const std::string shown = to_terminal_ ? Escaped(file) : std::string(file);
    if (format_ == Calc_Format::Text) {
        Append_Text(out, shown, loaded);
    } else if (loaded) {
        Append_Csv(out, shown);
    }
}

void Calc_Output::Append_Text(std::string& out, std::string_view file, bool loaded) const {
    out += file;
    out += loaded ? "\n\n" : ": not loaded\n\n";
    if (loaded) {
        Append_Tables(out, sheet_.Figures());
    }
}

void Calc_Output::Append_Csv(std::string& out, std::string_view file) const {
    std::string name;
    Append_Field(name, file);
    std::size_t place = 0;
    for (const Flow_Figure& figure : sheet_.Figures()) {
        const Figure_Words& words = words_[place];
        ++place;
        out += name;
        out += words.before_lift;
        if (figure.lift != nullptr) {
            Append_Doubling_Quotes(out, figure.lift->Text());
        }
        out += words.before_value;
        Append_Field(out, figure.cell->Text());
        out += '\n';
    }
}

void Calc_Output::Append_Json_Figures(std::string& out) const {
    std::size_t place = 0;
    for (const Flow_Figure& figure : sheet_.Figures()) {
        const Figure_Words& words = words_[place];
        ++place;
        out += words.before_lift;
        if (figure.lift != nullptr) {
            Append_Json_Letters(out, figure.lift->Text());
        }
        out += words.before_value;
        Append_Json_Letters(out, figure.cell->Text());
        out += "\"}";
    }
}

void Calc_Output::Append_Json(std::string& out, std::string_view file, bool loaded) const {
    out += '{';
    Append_Member(out, "file", file);
    out += loaded ? R"(,"loaded":true)" : R"(,"loaded":false)";
    out += sheet_.Is_Metric() ? R"(,"metric":true)" : R"(,"metric":false)";
    out += R"(,"figures":[)";
    if (loaded) {
        Append_Json_Figures(out);
    }
    out += R"(],"boxes":[)";
    for (const std::string& box : sheet_.Boxes()) {
        out += &box == &sheet_.Boxes().front() ? "\"" : ",\"";
        Append_Json_Letters(out, box);
        out += '"';
    }
    out += "]}\n";
}

} // namespace kestrum::cli
