#include "files/gui_file.h"

#include "base/text.h"
#include "platform/file_store.h"
#include "presentation/alignment.h"
#include "presentation/box_fonts.h"
#include "records/named_files.h"
#include "records/records.h"
#include "sheet/flow_calculation.h"

#include <array>

namespace kestrum {

namespace {

constexpr std::string_view gui_filter =
    "Text Files (*.txt)|*.txt|All Files (*.*)|*.*|GUI Files (*.gui)|*.gui";
constexpr int gui_files = 3;

constexpr std::string_view comment =
    "; Please Do not Edit or Change the Order of any of these Lines";
constexpr std::string_view alignment_key = "Box Alignment";
constexpr std::string_view colour_key = "Graph Font Color";

constexpr int whole_row = 7; // of a caption
constexpr int entry_row = 3;

/// Boxes that have one font: where it is written from, and who gives it to all of them.
struct Font_Group {
    std::string_view name;
    Control& (*model)(Session& session);
    void (*apply)(Session& session, Font_Size meaning);
};

Control& Box_Of_Main(Session& session) {
    return session.Main().Text101(whole_row);
}

constexpr std::array<Font_Group, 4> groups{{
    {"All Box Main", Box_Of_Main, Apply_All_Box_Main},
    {"Entry Box Main",
     [](Session& session) -> Control& { return session.Main().Text104(entry_row); },
     Apply_Entry_Box_Main},
    {"All Box Flow",
     [](Session& session) -> Control& { return session.Sheet(1).Text101(whole_row); },
     Apply_All_Box_Flow},
    {"Entry Box Flow",
     [](Session& session) -> Control& { return session.Sheet(1).Text104(entry_row); },
     Apply_Entry_Box_Flow},
}};

std::string Key_Of(const Font_Group& group, std::string_view property) {
    return std::string(group.name).append(" Font ").append(property);
}

bool Truth_Of(Numeric_Text& numbers, std::string_view text) {
    const std::string word = Lower_Copy(Without_Outer_Blanks(text));
    if (word == "true" || word == "false") {
        return word == "true";
    }
    return numbers.Read_Either_Mark(text) != 0;
}

/// A line "key = value". Keys are read without regard to case, values as they stand.
class Gui_Line {
public:
    explicit Gui_Line(std::string_view line) : line_(line) {
        constexpr std::size_t longest_key = 40; // a line may have megabytes
        lower_ = Lower_Copy(line.substr(0, longest_key));
    }

    /// Whether the line has this key. Then its value begins behind the "=" and, usually, one more
    /// character, whatever that is.
    [[nodiscard]] bool Has(std::string_view key, std::size_t skipped = 1) {
        const std::string start = Lower_Copy(key) + " =";
        if (!lower_.starts_with(start)) {
            return false;
        }
        value_ = Middle(line_, start.size() + skipped + 1); // whole characters
        return true;
    }

    [[nodiscard]] std::string_view Value() const { return value_; }

private:
    std::string_view line_;
    std::string lower_;
    std::string_view value_;
};

/// The first three lines of a group are kept for the fourth, which gives all to its boxes.
bool Put_Font(Session& session, Gui_Line& line) {
    Font_Answer& answer = session.answers.font;
    for (const Font_Group& group : groups) {
        if (line.Has(Key_Of(group, "Name"))) {
            answer.name = line.Value();
        } else if (line.Has(Key_Of(group, "Size"))) {
            answer.size = line.Value();
        } else if (line.Has(Key_Of(group, "Bold"))) {
            answer.bold = Truth_Of(session.numbers, line.Value());
        } else if (line.Has(Key_Of(group, "Italic"))) {
            answer.italic = Truth_Of(session.numbers, line.Value());
            group.apply(session, Font_Size::As_Designed);
        } else {
            continue;
        }
        return true;
    }
    return false;
}

void Put_Alignment(Session& session, std::string_view value) {
    const Alignment mode =
        Choice_Of<Alignment>(session.numbers.Read_Integer_Either_Mark(value), Alignment::Center);
    session.numbers.align_mode = mode;
    if (Box_Of_Main(session).Present_Look().alignment != mode) {
        Apply_Alignment(session);
    }
    if (mode == Alignment::Right) {
        Calc_All_Flow_Tests(session);
    }
}

void Put_Graph_Colour(Session& session, std::string_view value) {
    Control& canvas = session.Form60().Picture1;
    Look look = canvas.Present_Look();
    look.text_colour =
        Colour_Of(session.numbers.Read_Long(session.numbers.Text_To_Number_String(value)));
    canvas.Set_Look(look);
}

/// False when no key fits.
bool Put_Look(Session& session, std::string_view text) {
    Gui_Line line(text);
    if (Put_Font(session, line)) {
        return true;
    }
    if (line.Has(alignment_key)) {
        Put_Alignment(session, line.Value());
    } else if (line.Has(colour_key, 0)) {
        Put_Graph_Colour(session, line.Value());
    } else {
        return text.starts_with(';');
    }
    return true;
}

bool Goes_On_After(Session& session, std::string_view line) {
    return session.Message(Box{.text = "Invalid Input Record # - " +
                                       session.numbers.Fmt_Thousands(session.file.records_read) +
                                       "   Data --> " + std::string(line),
                               .title = {},
                               .buttons = Box_Buttons::Ok_Cancel}) == Box_Answer::Ok;
}

bool Take_Lines(Session& session, std::string_view content) {
    Line_Reader lines(content);
    while (lines.Next()) {
        Count_Record(session.file.records_read);
        if (!Put_Look(session, lines.Line()) && !Goes_On_After(session, lines.Line())) {
            return false;
        }
    }
    return true;
}

/// Runs the taking with the one box that tells of every failure of it.
template <typename Taking>
bool Tells_Of_Failure(Session& session, Taking taking) {
    session.answers.font.cancelled = false; // of a dialog long gone
    session.file.records_read = 0;
    try {
        if (taking()) {
            return true;
        }
    } catch (const Run_Time_Error&) { // NOLINT(bugprone-empty-catch): told below
    }
    session.Message("Error Reading Parameter File --- If you have Not edited it, email US",
                    Box_Icon::Exclamation);
    return false;
}

} // namespace

bool Take_GUI(Session& session, std::string_view bytes) {
    return Tells_Of_Failure(session, [&] { return Take_Lines(session, Decoded(bytes)); });
}

void Read_GUI_File(Session& session) {
    Tells_Of_Failure(session, [&session] {
        return Take_Lines(session, Decoded(Read_Whole_File(session.file.path)));
    });
}

void Read_GUI(Session& session) {
    try {
        session.file.path = Chosen_File(session, Chooser_Mode::Open, gui_filter, gui_files);
    } catch (const Run_Time_Error&) {
        session.Message("Parameter File has Not been Read");
        return;
    }
    Read_GUI_File(session);
    session.Message(session.numbers.Fmt_Thousands(session.file.records_read) + " Records Read");
}

std::string GUI_Text(Session& session) {
    constexpr int yes = -1;
    const Numeric_Text& numbers = session.numbers;
    Record_Writer writer(session.file.records_written);
    const auto write_number = [&](std::string_view key, double value) {
        writer.Write_Line(key, numbers.Fmt_Whole(value));
    };
    writer.Write_Text(comment);
    for (const Font_Group& group : groups) {
        const Control& model = group.model(session);
        const Font& font = model.Present_Look().font;
        writer.Write_Line(Key_Of(group, "Name"), font.name);
        write_number(Key_Of(group, "Size"), font.size / model.Owner().scale.font);
        write_number(Key_Of(group, "Bold"), font.bold ? yes : 0);
        write_number(Key_Of(group, "Italic"), font.italic ? yes : 0);
    }
    write_number(alignment_key, static_cast<int>(Box_Of_Main(session).Present_Look().alignment));
    write_number(colour_key, session.Form60().Picture1.Present_Look().text_colour);
    return writer.Text();
}

void Write_GUI(Session& session) {
    try {
        session.file.path = Chosen_File(session, Chooser_Mode::Save, gui_filter, gui_files);
        Keep_File(session, session.file.path, GUI_Text(session));
    } catch (const Run_Time_Error&) {
        session.Message("GUI File has NOT been Saved");
        return;
    }
    session.Message(session.numbers.Fmt_Thousands(session.file.records_written) +
                    " Records Written");
}

} // namespace kestrum
