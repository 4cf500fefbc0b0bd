#pragma once

#include "core/session.h"

namespace kestrum {

/// A platform that answers at once and shows nothing.
class Silent_Platform : public Dialogs, public Windows {
public:
    Box_Answer Show_Box(const Box& /*box*/) override { return Box_Answer::Ok; }

    std::optional<std::string> Choose_File(const Chooser& /*chooser*/) override {
        return std::nullopt;
    }

    void Beep() override {}

    void Show(Screen& /*screen*/) override {}

    void Hide(Screen& /*screen*/) override {}

    void Unload(Screen& /*screen*/) override {}

    void Focus(Control& /*control*/) override {}
};

} // namespace kestrum
