#pragma once

#include "platform/dialogs.h"

#include <QString>

namespace kestrum::desktop {

/// Message boxes and choosers of the toolkit. Each holds its caller until the user has answered.
class Desktop_Dialogs : public Dialogs {
public:
    /// The title of the program, for boxes that have none of their own.
    void Set_Title(const std::string& title) { title_ = title; }

    Box_Answer Show_Box(const Box& box) override;
    std::optional<Chosen_Path> Choose_File(const Chooser& chooser) override;
    std::optional<int> Choose_Colour() override;
    std::optional<Font> Choose_Font(const Font& shown) override;
    void Beep() override;

private:
    std::string title_ = "Kestrum Suite";
};

/// A text as a box shows it: its line breaks the toolkit's, and cut to what a display can hold.
[[nodiscard]] QString Text_For_Box(std::string_view text);

} // namespace kestrum::desktop
