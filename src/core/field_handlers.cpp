#include "core/field_handlers.h"

#include "base/run_time_error.h"
#include "base/text.h"

#include <algorithm>

namespace kestrum {

namespace {

bool Is_Editing_Key(char32_t key) {
    constexpr char32_t backspace = 8;
    constexpr char32_t enter = 13;
    return key >= backspace && key <= enter;
}

std::string Without_Marks(std::string_view text) {
    std::string rest(text);
    std::erase_if(rest,
                  [](char letter) { return letter == '-' || letter == '.' || letter == ','; });
    return rest;
}

void Refuse(Session& session, Control& field, std::string_view message) {
    session.windows.Focus(field);
    session.Message(message, Box_Icon::Exclamation);
}

} // namespace

bool Reads_As_Zero(const Numeric_Text& numbers, std::string_view text) {
    try {
        return numbers.Read(text) == 0;
    } catch (const Run_Time_Error&) {
        return false;
    }
}

bool Key_Digits_Only(char32_t key) {
    return (key >= U'0' && key <= U'9') || Is_Editing_Key(key);
}

bool Key_Unsigned_Decimal(const Numeric_Text& numbers, std::string_view text, char32_t key) {
    const char point = numbers.Point();
    const bool is_point = key == static_cast<char32_t>(point);
    // The whole text counts, selected or not.
    return Key_Digits_Only(key) || (is_point && text.find(point) == std::string_view::npos);
}

bool Key_Signed_Decimal(const Numeric_Text& numbers, std::string_view text, char32_t key) {
    return Key_Unsigned_Decimal(numbers, text, key) ||
           (key == U'-' && text.find('-') == std::string_view::npos);
}

bool Passes_Filter(const Numeric_Text& numbers, Key_Filter filter, std::string_view text,
                   char32_t key) {
    switch (filter) {
    case Key_Filter::Every_Key:
        return true;
    case Key_Filter::Unsigned_Decimal:
        return Key_Unsigned_Decimal(numbers, text, key);
    case Key_Filter::Digits_Only:
        return Key_Digits_Only(key);
    case Key_Filter::Signed_Decimal:
        return Key_Signed_Decimal(numbers, text, key);
    }
    return true;
}

bool Passes_Filter(const Numeric_Text& numbers, const Control& field, char32_t key) {
    return Passes_Filter(numbers, field.Entry().filter, field.Text(), key);
}

Selection Select_Field_Text(const Session& session, const Control& field) {
    const std::size_t length = Length(field.Text());
    if (field.Entry().selects_on_focus && !session.mouse_down) {
        return {.start = 0, .length = length};
    }
    return {.start = length, .length = 0};
}

bool Check_Not_Blank(Session& session, Control& field) {
    if (Without_Marks(field.Text()).empty()) {
        Refuse(session, field, msg_blank);
        return false;
    }
    return true;
}

bool Check_Not_Zero(Session& session, Control& field) {
    const std::string rest = Without_Marks(field.Text());
    if (rest.empty() || Reads_As_Zero(session.numbers, rest)) {
        Refuse(session, field, msg_zero);
        return false;
    }
    return true;
}

} // namespace kestrum
