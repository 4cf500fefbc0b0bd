#include "desktop/desktop_run.h"

#include "application/version.h"
#include "base/run_time_error.h"
#include "desktop/desktop_dialogs.h"
#include "desktop/program.h"
#include "desktop/program_icon.h"
#include "desktop/safe_application.h"
#include "desktop/start_options.h"
#include "desktop/text_access.h"
#include "desktop/text_bridge.h"
#include "desktop/theme_style.h"

#include <QApplication>

#include <cstdio>
#include <exception>
#include <string>
#include <vector>

namespace kestrum::desktop {

namespace {

constexpr int unusable = 2;

const char* const usage =
    "usage: kestrum [--folder DIR] [ARGUMENTS OF THE SESSION]\n"
    "       kestrum --help | --version\n\n"
    "  --folder DIR   the program's own folder, for the session file and the choosers;\n"
    "                 also taken from the environment variable KESTRUM_FOLDER\n"
    "  /fs, /fn, /mp  full screen, full screen with a free aspect ratio, plain mouse pointer\n";

/// What can be answered without a display. Gives false when there is nothing of the kind.
bool Answers_At_Once(const Start_Options& options) {
    if (options.wants_help) {
        std::fputs(usage, stdout);
    } else if (options.wants_version) {
        std::fputs(("kestrum " + Program_Version() + "\n").c_str(), stdout);
    } else if (!options.fault.empty()) {
        std::fputs(("kestrum: " + options.fault + "\n").c_str(), stderr);
    }
    return options.wants_help || options.wants_version || !options.fault.empty();
}

/// What can wait until `Main` is to be seen.
void Do_The_Rest_When_Painted(Program& program) {
    Screen_Window& window = *program.Its_Windows().Window_Of(program.Its_Session().Main());
    window.on_first_paint = [&program, before = window.on_first_paint] {
        if (before) {
            before();
        }
        QApplication::setWindowIcon(Program_Icon());
        program.Keep_Rescue_Copies();
    };
}

int Run(const Start_Options& options, const Program_Hook& before_start) {
    Desktop_Dialogs dialogs;
    std::string folder;
    try {
        folder = Program_Folder(options);
    } catch (const Run_Time_Error& failure) {
        dialogs.Show_Box({.text = failure.Description(), .title = {}, .icon = Box_Icon::Stop});
        return 1;
    }
    Program program(dialogs, Present_Surroundings(options, folder));
    dialogs.Set_Title(program.Its_Session().title_text);
    if (before_start) {
        before_start(program);
    }
    if (program.Start()) {
        Do_The_Rest_When_Painted(program);
        QApplication::exec();
    }
    return program.Exit_Status();
}

} // namespace

int Run_Desktop(int count, char* values[],
                const Program_Hook& before_start) { // NOLINT(*-avoid-c-arrays)
    try {
        const Start_Options first_look =
            Options_From(std::vector<std::string>(values + 1, values + count));
        if (Answers_At_Once(first_look)) {
            return first_look.fault.empty() ? 0 : unusable;
        }
        // Takes its own arguments out of the list.
        const Safe_Application application(count, values);
        QApplication::setApplicationName(QStringLiteral("kestrum"));
        QApplication::setDesktopFileName(QStringLiteral("kestrum"));
        QApplication::setQuitOnLastWindowClosed(false); // the session ends the program
        Apply_Theme();
        Install_Text_Access();
        return Run(Options_From(std::vector<std::string>(values + 1, values + count)),
                   before_start);
    } catch (const std::exception& fault) {
        std::fputs("kestrum: ", stderr);
        std::fputs(fault.what(), stderr);
        std::fputs("\n", stderr);
        return 1;
    }
}

} // namespace kestrum::desktop
