#include "cli/field_editor.h"

#include "base/text.h"

namespace kestrum::cli {

namespace {

constexpr char32_t backspace = 8;
constexpr char32_t tab = 9;
constexpr char32_t first_printable = 32;
constexpr char32_t enter = 13;

std::string Encoded(char32_t key) {
    std::string text;
    const auto put = [&text](char32_t value) { text += static_cast<char>(value); };
    if (key < 0x80) {
        put(key);
    } else if (key < 0x800) {
        put(0xC0U | (key >> 6U));
        put(0x80U | (key & 0x3FU));
    } else if (key < 0x10000) {
        put(0xE0U | (key >> 12U));
        put(0x80U | ((key >> 6U) & 0x3FU));
        put(0x80U | (key & 0x3FU));
    } else {
        put(0xF0U | (key >> 18U));
        put(0x80U | ((key >> 12U) & 0x3FU));
        put(0x80U | ((key >> 6U) & 0x3FU));
        put(0x80U | (key & 0x3FU));
    }
    return text;
}

bool Starts_Character(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

/// The character at the end of a text; a line break counts as one.
std::string_view Last_Character(std::string_view text) {
    if (text.ends_with(cr_lf)) {
        return text.substr(text.size() - cr_lf.size());
    }
    std::size_t start = text.size();
    while (start > 0) {
        --start;
        if (Starts_Character(text[start])) {
            break;
        }
    }
    return text.substr(start);
}

} // namespace

Field_Editor::Field_Editor(Session& session, Control& field) : session_(session), field_(field) {
    const Selection selection = Select_Field_Text(session, field);
    const std::string_view text = field.Text();
    before_ = Left(text, selection.start);
    selected_ = Left(text.substr(before_.size()), selection.length);
    behind_ = text.substr(before_.size() + selected_.size());
    Count_Marks(text, 1);
}

void Field_Editor::Type(std::string_view keys) {
    for (const char32_t key : Characters_Of(keys)) {
        Press(key);
    }
    field_.Set_Text(before_ + selected_ + behind_);
}

void Field_Editor::Press(char32_t key) {
    if (!Passes(key)) {
        session_.dialogs.Beep();
        return;
    }
    if (field_.Present_Look().locked) {
        return;
    }
    if (key == backspace) {
        Erase_Back();
    } else if (key == enter && field_.Entry().many_lines) {
        Insert(cr_lf);
    } else if (key >= first_printable || (key == tab && field_.Entry().many_lines)) {
        Insert(Encoded(key));
    }
}

/// Of the text a filter asks only whether a mark stands in it, selected or not.
bool Field_Editor::Passes(char32_t key) const {
    std::string marks;
    if (points_ > 0) {
        marks += session_.numbers.Point();
    }
    if (minuses_ > 0) {
        marks += '-';
    }
    return Passes_Filter(session_.numbers, field_.Entry().filter, marks, key);
}

void Field_Editor::Insert(std::string_view characters) {
    Count_Marks(selected_, -1);
    selected_.clear();
    Count_Marks(characters, 1);
    before_ += characters;
}

void Field_Editor::Erase_Back() {
    if (selected_.empty()) {
        selected_ = Last_Character(before_);
        before_.resize(before_.size() - selected_.size());
    }
    Insert("");
}

void Field_Editor::Count_Marks(std::string_view characters, int step) {
    for (const char letter : characters) {
        points_ += letter == session_.numbers.Point() ? step : 0;
        minuses_ += letter == '-' ? step : 0;
    }
}

} // namespace kestrum::cli
