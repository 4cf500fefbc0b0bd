#pragma once

#include "core/field_handlers.h"

namespace kestrum::cli {

/// The keyboard's way into a field where no toolkit keeps caret and selection. It works on the text
/// before and behind the caret, so that any number of keys costs no more than their text is long.
class Field_Editor {
public:
    /// The focus comes to the field by the Tab key.
    Field_Editor(Session& session, Control& field);

    /// Presses the key of each character. One that the filter refuses beeps.
    void Type(std::string_view keys);

private:
    void Press(char32_t key);
    [[nodiscard]] bool Passes(char32_t key) const;
    void Insert(std::string_view characters);
    void Erase_Back();
    /// Keeps count of the marks that a filter allows but once.
    void Count_Marks(std::string_view characters, int step);

    Session& session_;
    Control& field_;
    std::string before_;   // the caret or the selection
    std::string selected_; // the caret stands at its end
    std::string behind_;
    int points_ = 0;
    int minuses_ = 0;
};

} // namespace kestrum::cli
