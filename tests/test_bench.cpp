#include "tests/test_bench.h"

#include "application/events.h"
#include "application/start_up.h"
#include "base/text.h"
#include "cli/field_editor.h"

#include <gtest/gtest.h>

#include <array>
#include <charconv>
#include <stdexcept>
#include <utility>

namespace kestrum {

namespace {

std::string Words_Of(const Box& box) {
    constexpr std::array icons{"plain", "information", "exclamation", "stop", "question"};
    constexpr std::array buttons{"", " [OK, Cancel]", " [Yes, No]"};
    std::string words = icons.at(static_cast<std::size_t>(box.icon));
    words += " box";
    words += buttons.at(static_cast<std::size_t>(box.buttons));
    if (!box.title.empty()) {
        words += " titled " + box.title;
    }
    return words + ": " + box.text;
}

Surroundings Around(const Bench_Options& options, const Temp_Folder& folder) {
    Surroundings around;
    around.folder = folder.Path();
    around.command_line = options.command_line;
    around.display = options.display;
    around.decimal_point = options.point;
    around.version = "5.0.0";
    if (!options.now.empty()) {
        EXPECT_TRUE(around.clock.Stop_At(options.now));
    }
    return around;
}

template <typename Answer>
std::optional<Answer> Next(std::deque<Answer>& queue) {
    if (queue.empty()) {
        return std::nullopt;
    }
    Answer answer = queue.front();
    queue.pop_front();
    return answer;
}

} // namespace

Scripted_Platform::~Scripted_Platform() {
    for (const std::string& event : events_) {
        if (event == "beep" || event.find(" box") != std::string::npos) {
            ADD_FAILURE() << "nobody expected this: " << event;
        }
    }
    EXPECT_TRUE(answers_.empty()) << "a box did not come";
    EXPECT_TRUE(files_.empty()) << "a chooser did not come";
}

Events Scripted_Platform::Take_Events() {
    return std::exchange(events_, {});
}

Box_Answer Scripted_Platform::Show_Box(const Box& box) {
    events_.push_back(Words_Of(box));
    return Next(answers_).value_or(box.buttons == Box_Buttons::Yes_No ? Box_Answer::Yes
                                                                      : Box_Answer::Ok);
}

std::optional<Chosen_Path> Scripted_Platform::Choose_File(const Chooser& chooser) {
    events_.push_back(chooser.mode == Chooser_Mode::Open ? "chooser to open" : "chooser to save");
    const std::optional<std::string> path = Next(files_).value_or(std::nullopt);
    if (!path) {
        return std::nullopt;
    }
    // The user picks another entry of the filter only where a test says so.
    return Chosen_Path{.path = *path, .filter_index = filter_entry_.value_or(chooser.filter_index)};
}

void Scripted_Platform::Beep() {
    events_.emplace_back("beep");
}

void Scripted_Platform::Show(Screen& screen) {
    events_.push_back("show " + screen.Name());
}

void Scripted_Platform::Hide(Screen& screen) {
    events_.push_back("hide " + screen.Name());
}

void Scripted_Platform::Unload(Screen& screen) {
    events_.push_back("unload " + screen.Name());
}

void Scripted_Platform::Focus(Control& control) {
    events_.push_back("focus " + control.Address());
}

Test_Bench::Test_Bench(const Bench_Options& options)
    : session(platform, platform, Around(options, folder)) {
    Start_Up(session);
    at_start = platform.Take_Events();
}

Control& Test_Bench::At(std::string_view address) {
    const std::size_t dot = address.find('.');
    const std::size_t bracket = address.find('(');
    std::optional<int> index;
    if (bracket != std::string_view::npos) {
        index.emplace();
        std::from_chars(address.data() + bracket + 1, address.data() + address.size(), *index);
    }
    Screen* const screen = session.Screen_Named(address.substr(0, dot));
    Control* const control = screen == nullptr
                                 ? nullptr
                                 : screen->Find(address.substr(dot + 1, bracket - dot - 1), index);
    if (control == nullptr) {
        throw std::logic_error("there is no " + std::string(address));
    }
    return *control;
}

std::string Test_Bench::Get(std::string_view address) {
    return At(address).Text();
}

void Test_Bench::Set(std::string_view address, std::string_view text) {
    At(address).Set_Text(text);
}

void Test_Bench::Type(std::string_view address, std::string_view keys) {
    cli::Field_Editor(session, At(address)).Type(keys);
}

Events Test_Bench::Leave(std::string_view address) {
    kestrum::Leave(session, At(address));
    return Take_Events();
}

Events Test_Bench::Click(std::string_view address) {
    kestrum::Click(session, At(address));
    return Take_Events();
}

Events Test_Bench::Close(std::string_view screen) {
    Close_Window(session, *session.Screen_Named(screen));
    return Take_Events();
}

void Expect_Texts(Test_Bench& bench, std::initializer_list<Expected_Text> expected) {
    for (const auto& [address, text] : expected) {
        EXPECT_EQ(bench.Get(address), text) << address;
    }
}

} // namespace kestrum
