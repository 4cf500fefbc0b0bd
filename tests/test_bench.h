#pragma once

#include "core/session.h"
#include "tests/temp_folder.h"

#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kestrum {

/// What happened, one line each: "plain box: ...", "focus Main.Text104(3)", "show Form1".
using Events = std::vector<std::string>;

/// The user and the windows of a session, by script. What nobody asked about fails the test at
/// its end: a box or a beep that no `Take_Events` took, an answer that no box wanted.
class Scripted_Platform : public Dialogs, public Windows {
public:
    Scripted_Platform() = default;
    Scripted_Platform(const Scripted_Platform&) = delete;
    Scripted_Platform& operator=(const Scripted_Platform&) = delete;
    ~Scripted_Platform() override;

    void Answer(Box_Answer answer) { answers_.push_back(answer); }

    /// Nothing stands for a cancel.
    void Choose(std::optional<std::string> path) { files_.push_back(std::move(path)); }

    /// From now on every chooser is left with this entry of its filter.
    void Pick_Filter_Entry(int entry) { filter_entry_ = entry; }

    [[nodiscard]] Events Take_Events();

    /// What the next colour dialog gives; a cancel without it.
    std::optional<int> colour;

    /// What the next font dialog gives; a cancel without it.
    std::optional<Font> font;

    Box_Answer Show_Box(const Box& box) override;

    std::optional<int> Choose_Colour() override { return std::exchange(colour, std::nullopt); }

    std::optional<Font> Choose_Font(const Font& /*shown*/) override {
        return std::exchange(font, std::nullopt);
    }

    std::optional<Chosen_Path> Choose_File(const Chooser& chooser) override;
    void Beep() override;
    void Show(Screen& screen) override;
    void Hide(Screen& screen) override;
    void Unload(Screen& screen) override;
    void Focus(Control& control) override;

private:
    Events events_;
    std::deque<Box_Answer> answers_;
    std::deque<std::optional<std::string>> files_;
    std::optional<int> filter_entry_;
};

struct Bench_Options {
    std::string point = ".";
    std::string command_line{};
    /// Where the clock stands still, as "2026-11-16T09:05:03"; empty: it goes.
    std::string now{};
    Display display{};
};

/// A running session in a folder of its own, and the hands of its user.
class Test_Bench {
public:
    explicit Test_Bench(const Bench_Options& options = {});

    Temp_Folder folder;
    Scripted_Platform platform;
    Session session;
    /// What happened at the start.
    Events at_start;

    [[nodiscard]] Control& At(std::string_view address);
    [[nodiscard]] std::string Get(std::string_view address);
    void Set(std::string_view address, std::string_view text);
    /// The Tab key leads to the field, then the keys are pressed.
    void Type(std::string_view address, std::string_view keys);
    /// Each of these gives what happened.
    Events Leave(std::string_view address);
    Events Click(std::string_view address);
    Events Close(std::string_view screen);

    [[nodiscard]] Events Take_Events() { return platform.Take_Events(); }
};

/// A field and the text that it must show.
struct Expected_Text {
    std::string_view address;
    std::string_view text;
};

void Expect_Texts(Test_Bench& bench, std::initializer_list<Expected_Text> expected);

/// Number of the run-time error that a routine raises, 0 for none.
template <typename Routine>
int Error_Of(Routine routine) {
    try {
        routine();
    } catch (const Run_Time_Error& failure) {
        return failure.Number();
    }
    return 0;
}

} // namespace kestrum
