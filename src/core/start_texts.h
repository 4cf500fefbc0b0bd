#pragma once

#include "screens/screen.h"

#include <string>
#include <vector>

namespace kestrum {

/// Remembers the texts of a screen, so that each file of a batch finds it as the first did. To put
/// back what a file has changed is far cheaper than a new screen.
class Start_Texts {
public:
    explicit Start_Texts(Screen& screen) : screen_(screen) {
        for (const Control& control : screen.Controls()) {
            texts_.push_back(control.Text());
        }
        static_cast<void>(screen.Take_Changes());
    }

    /// Gives every text that was changed since back.
    void Put_Back() {
        const Control* const first = screen_.Controls().data();
        for (Control* const control : screen_.Take_Changes()) {
            control->Set_Text(texts_[static_cast<std::size_t>(control - first)]);
        }
    }

private:
    Screen& screen_;
    std::vector<std::string> texts_;
};

} // namespace kestrum
