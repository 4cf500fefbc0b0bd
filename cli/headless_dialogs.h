#pragma once

#include "cli/event_printer.h"
#include "platform/dialogs.h"

#include <deque>
#include <optional>
#include <string>

namespace kestrum::cli {

/// Dialogs that take their answers from queues and print what was asked.
class Headless_Dialogs : public Dialogs {
public:
    explicit Headless_Dialogs(Event_Printer& printer) : printer_(printer) {}

    Box_Answer Show_Box(const Box& box) override;
    std::optional<Chosen_Path> Choose_File(const Chooser& chooser) override;
    std::optional<int> Choose_Colour() override;
    std::optional<Font> Choose_Font(const Font& shown) override;
    void Beep() override;

    void Queue_Answer(Box_Answer answer) { answers_.push_back(answer); }

    /// Nothing queues a cancel.
    void Queue_File(std::optional<std::string> path) { files_.push_back(std::move(path)); }

    void Queue_Colour(std::optional<int> colour) { colours_.push_back(colour); }

    void Queue_Font(std::optional<Font> font) { fonts_.push_back(std::move(font)); }

    void Drop_Queues();

private:
    [[nodiscard]] Box_Answer Next_Answer(Box_Buttons buttons);

    Event_Printer& printer_;
    std::deque<Box_Answer> answers_;
    std::deque<std::optional<std::string>> files_;
    std::deque<std::optional<int>> colours_;
    std::deque<std::optional<Font>> fonts_;
};

} // namespace kestrum::cli
