#include "desktop/desktop_run.h"

#include "application/version.h"
#include "base/run_time_error.h"
#include "desktop/arrivals.h"
#include "desktop/desktop_dialogs.h"
#include "desktop/field_tips.h"
#include "desktop/program.h"
#include "desktop/program_icon.h"
#include "desktop/safe_application.h"
#include "desktop/start_options.h"
#include "desktop/text_access.h"
#include "desktop/text_bridge.h"
#include "desktop/theme_style.h"
#include "painting/own_fonts.h"
#include "platform/program_start.h"
#include "platform/running_program.h"

#include <QApplication>
#include <QDir>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <exception>
#include <iterator>
#include <string>
#include <vector>

namespace kestrum::desktop {

namespace {

constexpr int exit_unusable = 2;

const char* const usage =
    "usage: kestrum [OPTIONS] [--] [FILE...]\n"
    "       kestrum --help | --version\n\n"
    "Opens flow tests in the first free sheets and engine data (.dta) on Main. A program that "
    "runs\n"
    "already in the same folder is used.\n\n"
    "  --new-test     begin a new test in the first free sheet\n"
    "  --library      open the library of tests\n"
    "  --new-instance start another program even if one runs already\n"
    "  --folder DIR   the program's own folder, for the session file and the choosers;\n"
    "                 also taken from the environment variable KESTRUM_FOLDER\n"
    "  /fs, /fn, /mp  full screen, full screen with a free aspect ratio, plain mouse pointer\n";

/// What can be answered without a display. Gives false when there is nothing of the kind.
bool Answers_At_Once(const Start_Options& options) {
    if (!options.wants_help && !options.wants_version && options.fault.empty()) {
        return false;
    }
    Borrow_Terminal();
    if (options.wants_help) {
        std::fputs(usage, stdout);
    } else if (options.wants_version) {
        std::fputs(("kestrum " + Program_Version() + "\n").c_str(), stdout);
    } else {
        std::fputs(("kestrum: " + options.fault + "\n").c_str(), stderr);
    }
    return true;
}

/// Where this start meets others; empty when it can meet nobody.
std::string Place_To_Meet(const std::string& folder) {
    const std::string meeting =
        Meeting_Folder(From_Qt(qEnvironmentVariable("XDG_RUNTIME_DIR")), From_Qt(QDir::tempPath()));
    const QString display = qEnvironmentVariable("WAYLAND_DISPLAY") + QLatin1Char(' ') +
                            qEnvironmentVariable("DISPLAY");
    return meeting.empty() ? meeting : Meeting_Place(meeting, folder, From_Qt(display));
}

/// Whether a program that runs already does what this start is for.
bool Is_Done_By_Another(Running_Program& running, const Start_Options& options,
                        const std::string& folder) {
    constexpr std::chrono::seconds patience{5};
    const std::string place = Place_To_Meet(folder);
    if (place.empty() || running.Take(place) || options.is_new_instance) {
        return false;
    }
    return Tell_Running_Program(place, Words_For_Running(options), patience);
}

/// What can wait until `Main` is to be seen.
void Do_The_Rest_When_Painted(Program& program, Arrivals& arrivals, Running_Program& running,
                              const Start_Options& options, const std::string& notice) {
    Screen_Window& window = *program.Its_Windows().Window_Of(program.Its_Session().Main());
    window.on_first_paint = [&, before = window.on_first_paint] {
        if (before) {
            before();
        }
        QApplication::setWindowIcon(Program_Icon());
        if (!notice.empty()) {
            program.Its_Gate().Enter(
                [&] { program.Its_Session().Message(notice, Box_Icon::Exclamation); });
        }
        program.Keep_Rescue_Copies();
        arrivals.Take(options);
        if (running.Handle() >= 0) {
            arrivals.Listen(running);
        }
    };
}

int Run(const Start_Options& options, const Program_Hook& before_start) {
    Desktop_Dialogs dialogs;
    Program_Place place;
    try {
        place = Program_Folder(options);
    } catch (const Run_Time_Error& failure) {
        dialogs.Show_Box({.text = failure.Description(), .title = {}, .icon = Box_Icon::Stop});
        return 1;
    }
    Running_Program running;
    if (Is_Done_By_Another(running, options, place.folder)) {
        return 0;
    }
    Program program(dialogs, Present_Surroundings(options, place.folder));
    dialogs.Set_Title(program.Its_Session().title_text);
    if (before_start) {
        before_start(program);
    }
    Arrivals arrivals(program);
    const Field_Tips tips(program);
    if (program.Start()) {
        Do_The_Rest_When_Painted(program, arrivals, running, options, place.notice);
        QApplication::exec();
    }
    return program.Exit_Status();
}

} // namespace

int Run_Desktop(int count, char* values[],
                const Program_Hook& before_start) { // NOLINT(*-avoid-c-arrays)
    try {
        std::vector<std::string> texts = Program_Arguments(count, values);
        const Start_Options first_look = Options_From(texts);
        if (Answers_At_Once(first_look)) {
            return first_look.fault.empty() ? 0 : exit_unusable;
        }
        std::vector<char*> arguments{values[0]};
        std::ranges::transform(texts, std::back_inserter(arguments),
                               [](std::string& text) { return text.data(); });
        arguments.push_back(nullptr);
        // Takes its own arguments out of the list.
        count = static_cast<int>(texts.size()) + 1;
        const Safe_Application application(count, arguments.data());
        QApplication::setApplicationName(QStringLiteral("kestrum"));
        QApplication::setDesktopFileName(QStringLiteral("kestrum"));
        QApplication::setQuitOnLastWindowClosed(false); // the session ends the program
        painting::Know_Own_Fonts();
        Apply_Theme();
        Install_Text_Access();
        return Run(Options_From(
                       std::vector<std::string>(arguments.begin() + 1, arguments.begin() + count)),
                   before_start);
    } catch (const std::exception& fault) {
        std::fputs("kestrum: ", stderr);
        std::fputs(fault.what(), stderr);
        std::fputs("\n", stderr);
        return 1;
    }
}

} // namespace kestrum::desktop
