#include "cli/headless_dialogs.h"

#include <array>

namespace kestrum::cli {

namespace {

const char* Icon_Name(Box_Icon icon) {
    static constexpr std::array names{"none", "information", "exclamation", "stop", "question"};
    return names.at(static_cast<std::size_t>(icon));
}

const char* Buttons_Name(Box_Buttons buttons) {
    static constexpr std::array names{"ok", "ok-cancel", "yes-no"};
    return names.at(static_cast<std::size_t>(buttons));
}

const char* Answer_Name(Box_Answer answer) {
    static constexpr std::array names{"ok", "cancel", "yes", "no"};
    return names.at(static_cast<std::size_t>(answer));
}

bool Has_Button(Box_Buttons buttons, Box_Answer answer) {
    switch (answer) {
    case Box_Answer::Ok:
        return buttons != Box_Buttons::Yes_No;
    case Box_Answer::Cancel:
        return buttons == Box_Buttons::Ok_Cancel;
    case Box_Answer::Yes:
    case Box_Answer::No:
        return buttons == Box_Buttons::Yes_No;
    }
    return false;
}

/// Takes the next answer off a queue; an empty one cancels.
template <typename Answer>
std::optional<Answer> Next_Of(std::deque<std::optional<Answer>>& queue) {
    std::optional<Answer> answer;
    if (!queue.empty()) {
        answer = std::move(queue.front());
        queue.pop_front();
    }
    return answer;
}

} // namespace

Box_Answer Headless_Dialogs::Next_Answer(Box_Buttons buttons) {
    const Box_Answer usual = buttons == Box_Buttons::Yes_No ? Box_Answer::Yes : Box_Answer::Ok;
    if (answers_.empty()) {
        return usual;
    }
    const Box_Answer answer = answers_.front();
    answers_.pop_front();
    // Nobody can press a button that the box does not have.
    return Has_Button(buttons, answer) ? answer : usual;
}

Box_Answer Headless_Dialogs::Show_Box(const Box& box) {
    const Box_Answer answer = Next_Answer(box.buttons);
    printer_.Print({{"box",
                     {{"text", box.text},
                      {"title", box.title},
                      {"icon", Icon_Name(box.icon)},
                      {"buttons", Buttons_Name(box.buttons)},
                      {"answer", Answer_Name(answer)}}}});
    return answer;
}

std::optional<Chosen_Path> Headless_Dialogs::Choose_File(const Chooser& chooser) {
    std::optional<std::string> path = Next_Of(files_);
    printer_.Print({{"chooser",
                     {{"mode", chooser.mode == Chooser_Mode::Open ? "open" : "save"},
                      {"filter", chooser.filter},
                      {"filter_index", chooser.filter_index},
                      {"overwrite_prompt", chooser.Overwrite_Prompt()},
                      {"path", path ? Event(*path) : Event()}}}});
    if (!path) {
        return std::nullopt;
    }
    return Chosen_Path{.path = *std::move(path), .filter_index = chooser.filter_index};
}

std::optional<int> Headless_Dialogs::Choose_Colour() {
    return Next_Of(colours_);
}

std::optional<Font> Headless_Dialogs::Choose_Font(const Font& /*shown*/) {
    return Next_Of(fonts_);
}

void Headless_Dialogs::Beep() {
    printer_.Print({{"beep", true}});
}

void Headless_Dialogs::Drop_Queues() {
    answers_.clear();
    files_.clear();
    colours_.clear();
    fonts_.clear();
}

} // namespace kestrum::cli
