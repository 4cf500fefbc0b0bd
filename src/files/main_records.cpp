#include "files/main_records.h"

#include "base/text.h"
#include "core/settings.h"
#include "engine/mode_switches.h"
#include "engine/unit_conversion.h"
#include "files/flow_data_file.h"
#include "files/logo.h"
#include "records/record_reading.h"

#include <algorithm>
#include <array>
#include <limits>
#include <span>

namespace kestrum {

namespace {

/// Fields of `Main` that a file holds, with their rows in the order of the file.
struct Field_Key {
    std::string_view array;
    std::array<int, 2> rows; // the second may be the first again
};

constexpr std::array field_keys{Field_Key{"Text101", {3, 8}}, Field_Key{"Text102", {9, 9}},
                                Field_Key{"Text103", {3, 8}}, Field_Key{"Text104", {3, 9}},
                                Field_Key{"Text105", {3, 3}}, Field_Key{"Text106", {9, 9}},
                                Field_Key{"Text109", {3, 3}}, Field_Key{"Text111", {3, 3}}};

std::string_view Yes_Or_No(int value) {
    return value == 1 ? "Yes" : "No";
}

bool Is_Yes(const Record& record) {
    return record.Lower_Value() == "yes";
}

/// The five company lines with their keys.
struct Company_Key {
    std::string_view key;
    Control& (*field)(const Engine_Screen& main);
};

constexpr std::array company_keys{
    Company_Key{"Comp_Name", [](const Engine_Screen& main) -> Control& { return main.Text94; }},
    Company_Key{"Comp_Street", [](const Engine_Screen& main) -> Control& { return main.Text95; }},
    Company_Key{"Comp_City", [](const Engine_Screen& main) -> Control& { return main.Text96; }},
    Company_Key{"Comp_Phone", [](const Engine_Screen& main) -> Control& { return main.Text97; }},
    Company_Key{"Comp_Web", [](const Engine_Screen& main) -> Control& { return main.Text98; }}};

/// The four check boxes of `Form50` with the shared variables that follow them.
struct Compare_Switch {
    Control& (*box)(const Compare_Screen& compare);
    bool Settings::*variable;
};

constexpr std::array compare_switches{
    Compare_Switch{[](const Compare_Screen& compare) -> Control& { return compare.Check1; },
                   &Settings::show_quarter_diameter_line},
    Compare_Switch{[](const Compare_Screen& compare) -> Control& { return compare.Check2; },
                   &Settings::auto_x_lines},
    Compare_Switch{[](const Compare_Screen& compare) -> Control& { return compare.Check3; },
                   &Settings::show_data_points},
    Compare_Switch{[](const Compare_Screen& compare) -> Control& { return compare.Check4; },
                   &Settings::show_big}};

/// A key with a number of 1 to `count` at its end: the number less one, or -1.
int Numbered(const Record& record, std::string_view stem, int count) {
    const std::string_view key = record.Key(stem.size() + 1);
    if (key.size() != stem.size() + 1 || !key.starts_with(stem)) {
        return -1;
    }
    const int index = key.back() - '1';
    return index >= 0 && index < count ? index : -1;
}

bool Begins(const Record& record, std::string_view key) {
    return record.Key(key.size()) == Lower_Copy(key);
}

bool Put_Field(Session& session, const Record& record) {
    constexpr std::size_t key_length = 8;
    const std::string_view key = record.Key(key_length);
    const auto* const found = std::ranges::find_if(field_keys, [&](const Field_Key& candidate) {
        return key.starts_with("text") && key.ends_with('_') &&
               key.substr(4, key.size() - 5) == candidate.array.substr(4);
    });
    if (found == field_keys.end()) {
        return false;
    }
    const int row = session.numbers.Read_Integer(record.Row_Text());
    if (std::ranges::find(found->rows, row) == found->rows.end()) {
        return false;
    }
    session.Main().Array(found->array)(row).Set_Text(record.Lower_Value());
    return true;
}

bool Put_Mode(Session& session, const Record& record) {
    Engine_Screen& main = session.Main();
    switch (Numbered(record, "check", 3)) {
    case 0:
        main.Check1.Set_Value(Is_Yes(record) ? 1 : 0);
        Apply_Mach_Mode(session);
        return true;
    case 1:
        Set_Metric(session, Is_Yes(record));
        return true;
    case 2:
        main.Check3.Set_Value(Is_Yes(record) ? 1 : 0);
        Apply_Rpm_Mode(session);
        return true;
    default:
        return false;
    }
}

/// The default "No" and every other name of up to four characters load nothing.
bool Put_Preload(Session& session, const Record& record) {
    const int index = Numbered(record, "flow", sheet_count);
    if (index < 0) {
        return false;
    }
    constexpr std::size_t longest_ignored = 4;
    const std::string name(record.Lower_Value());
    if (Length(name) > longest_ignored) {
        const Own_File_State own(session);
        session.Main().Text1(index).Set_Text(name);
        Load_Flow_File(session, session.Sheet(index + 1), name);
    }
    return true;
}

bool Put_Option(Session& session, const Record& record) {
    constexpr std::string_view key = "option4 = ";
    if (!Begins(record, key)) {
        return false;
    }
    const int chosen = session.numbers.Read_Integer(Middle(record.Line(), key.size() + 1));
    const Control_Array& options = session.Main().Option4;
    static_cast<void>(options(chosen)); // raises before any option changes
    for (int index = 0; index < options.Size(); ++index) {
        options(index).Set_Value(index == chosen ? 1 : 0);
    }
    return true;
}

bool Put_Company(Session& session, const Record& record) {
    for (const Company_Key& entry : company_keys) {
        if (Begins(record, entry.key)) {
            entry.field(session.Main()).Set_Text(record.Value());
            return true;
        }
    }
    return false;
}

/// A place written in either decimal mode, of single precision's range.
double Place_Value(Session& session, const Record& record) {
    constexpr auto most = static_cast<double>(std::numeric_limits<float>::max());
    const Real value = session.numbers.Read_Either_Mark(record.Value());
    if (value > most || value < -most) {
        Fail(error::overflow);
    }
    return value.Value();
}

bool Put_Logo(Session& session, const Record& record) {
    Control& picture = session.Form60().Picture2;
    Position position = picture.Moved_To();
    if (Begins(record, "logo_sw")) {
        session.settings.logo.on = Switch_Of(session.numbers.Read_Integer(record.Value()));
        if (!session.settings.logo.on) {
            Show_Logo(session);
        }
    } else if (Begins(record, "logo_name")) {
        session.settings.logo.file = record.Value();
        Show_Logo(session);
    } else if (Begins(record, "logo_top")) {
        position.top = Place_Value(session, record);
        picture.Move_To(position);
    } else if (Begins(record, "logo_left")) {
        position.left = Place_Value(session, record);
        picture.Move_To(position);
    } else {
        return false;
    }
    return true;
}

bool Put_Compare_Switch(Session& session, const Record& record) {
    const int index = Numbered(record, "form50check", static_cast<int>(compare_switches.size()));
    if (index < 0) {
        return false;
    }
    const Compare_Switch& entry = compare_switches[static_cast<std::size_t>(index)];
    const int value = Is_Yes(record) ? 1 : 0;
    entry.box(session.Form50()).Set_Value(value);
    session.settings.*entry.variable = value;
    return true;
}

bool Put_Grid(Session& session, const Record& record) {
    if (Begins(record, "grid_sw")) {
        session.settings.grid.on = Switch_Of(session.numbers.Read_Integer(record.Value()));
    } else if (Begins(record, "grid_color")) {
        session.settings.grid.colour = Colour_Of(session.numbers.Read_Long(record.Value()));
    } else if (Begins(record, "grid_drawstyle")) {
        session.settings.grid.style =
            Choice_Of(session.numbers.Read_Integer(record.Value()), Line_Style::Dot);
    } else {
        return false;
    }
    return true;
}

void Write_Look(Session& session, Record_Writer& writer) {
    const Numeric_Text& numbers = session.numbers;
    const Position logo = session.Form60().Picture2.Moved_To();
    writer.Write_Line("Logo_SW", numbers.Plain(session.settings.logo.on));
    writer.Write_Line("Logo_Name", session.settings.logo.file);
    writer.Write_Line("Logo_Top", numbers.Plain(logo.top));
    writer.Write_Line("Logo_Left", numbers.Plain(logo.left));
    for (std::size_t index = 0; index < compare_switches.size(); ++index) {
        writer.Write_Line("Form50Check" + numbers.Fmt_Whole(static_cast<int>(index) + 1),
                          Yes_Or_No(session.settings.*compare_switches[index].variable));
    }
    writer.Write_Line("Grid_SW", numbers.Plain(session.settings.grid.on));
    writer.Write_Line("Grid_Color", numbers.Plain(session.settings.grid.colour));
    writer.Write_Line("Grid_DrawStyle",
                      numbers.Plain(static_cast<int>(session.settings.grid.style)));
}

void Write_Fields(Session& session, Record_Writer& writer) {
    for (const Field_Key& entry : field_keys) {
        for (std::size_t index = 0; index < entry.rows.size(); ++index) {
            const int row = entry.rows.at(index);
            if (index == 0 || row != entry.rows.front()) {
                writer.Write_Line(std::string(entry.array) + "_" + session.numbers.Fmt_Whole(row),
                                  session.Main().Array(entry.array)(row).Text());
            }
        }
    }
}

} // namespace

void Write_Main_Records(Session& session, Record_Writer& writer) {
    const Engine_Screen& main = session.Main();
    const Numeric_Text& numbers = session.numbers;
    // The boxes before the fields: a reader converts what its fields hold and then fills them.
    writer.Write_Line("Check1", Yes_Or_No(main.Check1.Value()));
    writer.Write_Line("Check2", Yes_Or_No(main.Check2.Value()));
    writer.Write_Line("Check3", Yes_Or_No(main.Check3.Value()));
    for (int index = 0; index < main.Text1.Size(); ++index) {
        writer.Write_Line("Flow" + numbers.Fmt_Whole(index + 1), main.Text1(index).Text());
    }
    for (int index = 0; index < main.Option4.Size(); ++index) {
        if (main.Option4(index).Value() != 0) {
            writer.Write_Line("Option4", numbers.Fmt_Whole(index));
        }
    }
    for (const Company_Key& entry : company_keys) {
        writer.Write_Line(entry.key, entry.field(main).Text());
    }
    Write_Look(session, writer);
    Write_Fields(session, writer);
    writer.Write_Line("Comments", main.Text38.Text());
}

bool Put_Main_Record(Session& session, const Record& record) {
    return Put_Field(session, record) || Put_Mode(session, record) ||
           Put_Preload(session, record) || Put_Option(session, record) ||
           Put_Company(session, record) || Put_Logo(session, record) ||
           Put_Compare_Switch(session, record) || Put_Grid(session, record);
}

bool Put_Preload_Name(Session& session, const Record& record) {
    const int index = Numbered(record, "flow", sheet_count);
    if (index >= 0) {
        session.Main().Text1(index).Set_Text(record.Value());
    }
    return index >= 0;
}

} // namespace kestrum
