#include "presentation/box_fonts.h"

#include "base/run_time_error.h"
#include "presentation/styled_boxes.h"

namespace kestrum {

namespace {

enum class Boxes { All, Entry };

Font Answered_Font(Session& session) {
    constexpr std::size_t longest_name = 255; // each box keeps it
    const Font_Answer& answer = session.answers.font;
    const double size = session.numbers.Read_Either_Mark(answer.size).Value();
    if (answer.name.empty() || answer.name.size() > longest_name || !Is_Font_Size(size)) {
        Fail(error::invalid_property_value);
    }
    return {.name = answer.name, .size = size, .bold = answer.bold, .italic = answer.italic};
}

void Put_Font(Screen& screen, const Font& answered, Boxes boxes, Font_Size meaning) {
    Font font = answered;
    font.size *= meaning == Font_Size::As_Designed ? screen.scale.font : 1;
    for (Control& control : screen.Controls()) {
        Look look = control.Present_Look();
        if (Is_Styled_Box(control) && (boxes == Boxes::All || !look.locked)) {
            look.font = font;
            control.Set_Look(look);
        }
    }
}

void Put_On_Main(Session& session, Boxes boxes, Font_Size meaning) {
    if (!session.answers.font.cancelled) {
        Put_Font(session.Main(), Answered_Font(session), boxes, meaning);
    }
}

void Put_On_Flow(Session& session, Boxes boxes, Font_Size meaning) {
    if (session.answers.font.cancelled) {
        return;
    }
    const Font font = Answered_Font(session);
    for (int number = 1; number <= sheet_count; ++number) {
        Put_Font(session.Sheet(number), font, boxes, meaning);
    }
    Put_Font(session.Form50(), font, boxes, meaning);
}

} // namespace

void Pick_Font(Session& session, const Font& shown) {
    Font_Answer& answer = session.answers.font;
    const auto chosen = session.dialogs.Choose_Font(shown);
    answer.cancelled = !chosen;
    if (chosen) {
        answer.name = chosen->name;
        answer.size = session.numbers.Plain(chosen->size);
        answer.bold = chosen->bold;
        answer.italic = chosen->italic;
    }
}

void Apply_All_Box_Main(Session& session, Font_Size meaning) {
    Put_On_Main(session, Boxes::All, meaning);
}

void Apply_Entry_Box_Main(Session& session, Font_Size meaning) {
    Put_On_Main(session, Boxes::Entry, meaning);
}

void Apply_All_Box_Flow(Session& session, Font_Size meaning) {
    Put_On_Flow(session, Boxes::All, meaning);
}

void Apply_Entry_Box_Flow(Session& session, Font_Size meaning) {
    Put_On_Flow(session, Boxes::Entry, meaning);
}

} // namespace kestrum
