#pragma once

#include "platform/dialogs.h"
#include "screens/windows.h"

#include <string>
#include <utility>
#include <vector>

namespace kestrum {

/// Dialogs of a batch: they note what the boxes say. Cancel is the answer where there is one, so
/// that a file with a line of an unknown key is given up instead of being taken without it.
class Batch_Dialogs : public Dialogs {
public:
    Box_Answer Show_Box(const Box& box) override;
    std::optional<Chosen_Path> Choose_File(const Chooser& chooser) override;

    void Beep() override {}

    [[nodiscard]] const std::vector<std::string>& Texts() const { return texts_; }

    void Note(std::string text) { texts_.push_back(std::move(text)); }

    void Clear() { texts_.clear(); }

private:
    std::vector<std::string> texts_;
};

/// A platform where nobody sits: the dialogs of a batch, and no windows at all.
class Null_Platform : public Batch_Dialogs, public Windows {
public:
    void Show(Screen& /*screen*/) override {}

    void Hide(Screen& /*screen*/) override {}

    void Unload(Screen& /*screen*/) override {}

    void Focus(Control& /*control*/) override {}
};

} // namespace kestrum
