#pragma once

#include "core/field_handlers.h"

namespace kestrum {

/// The keyboard's way into a field where no toolkit keeps caret and selection.
class Field_Editor {
public:
    /// The focus comes to the field by the Tab key.
    Field_Editor(Session& session, Control& field);

    /// One key press, as a character code. A key that the filter refuses beeps.
    void Press(char32_t key);

    [[nodiscard]] Selection Selected() const { return selection_; }

private:
    void Insert(std::string_view characters);
    void Erase_Back();

    Session& session_;
    Control& field_;
    Selection selection_;
};

/// The characters of a UTF-8 text.
[[nodiscard]] std::u32string Characters_Of(std::string_view text);

} // namespace kestrum
