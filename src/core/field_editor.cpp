#include "core/field_editor.h"

#include "core/text.h"

namespace kestrum {

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

} // namespace

Field_Editor::Field_Editor(Session& session, Control& field)
    : session_(session), field_(field), selection_(Select_Field_Text(session, field)) {}

void Field_Editor::Press(char32_t key) {
    if (!Passes_Filter(session_.number, field_, key)) {
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

void Field_Editor::Insert(std::string_view characters) {
    const std::string& old = field_.Text();
    std::string text(Left(old, selection_.start));
    text += characters;
    text += Middle(old, selection_.start + selection_.length + 1);
    selection_ = {.start = selection_.start + Length(characters), .length = 0};
    field_.Set_Text(text);
}

void Field_Editor::Erase_Back() {
    if (selection_.length == 0 && selection_.start > 0) {
        const bool behind_line_break = Left(field_.Text(), selection_.start).ends_with(cr_lf);
        const std::size_t erased = behind_line_break ? cr_lf.size() : 1;
        selection_ = {.start = selection_.start - erased, .length = erased};
    }
    Insert("");
}

std::u32string Characters_Of(std::string_view text) {
    std::u32string characters;
    for (std::size_t at = 0; at < text.size();) {
        const auto lead = static_cast<unsigned char>(text[at]);
        const std::size_t tail = lead < 0xC0 ? 0 : lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
        char32_t code = tail == 0 ? lead : lead & (0x3FU >> tail);
        for (std::size_t next = 1; next <= tail && at + next < text.size(); ++next) {
            code = (code << 6U) | (static_cast<unsigned char>(text[at + next]) & 0x3FU);
        }
        characters += code;
        at += tail + 1;
    }
    return characters;
}

} // namespace kestrum
