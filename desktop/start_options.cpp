#include "desktop/start_options.h"

#include "application/version.h"
#include "base/run_time_error.h"
#include "base/text.h"
#include "desktop/native_path.h"
#include "desktop/text_bridge.h"
#include "platform/file_store.h"
#include "platform/program_module.h"
#include "platform/running_program.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLocale>
#include <QScreen>
#include <QStandardPaths>
#include <QUrl>

#include <cmath>
#include <string_view>

namespace kestrum::desktop {

namespace {

constexpr std::string_view folder_option = "--folder";
constexpr std::string_view new_test_option = "--new-test";
constexpr std::string_view library_option = "--library";
const char* const session_file = "zxqw1234.sav";

bool Is_Portable(const QString& folder) {
    return QFileInfo::exists(QDir(folder).filePath(QLatin1String(session_file))) &&
           May_Write_In(From_Qt(folder));
}

/// The folder that is wanted, and whether somebody has named it.
struct Wish {
    QString folder;
    bool is_asked_for = false;
};

Wish Wanted_Folder(const Start_Options& options) {
    if (!options.folder.empty()) {
        return {To_Qt(options.folder), true};
    }
    QString from_environment = qEnvironmentVariable("KESTRUM_FOLDER");
    if (!from_environment.isEmpty()) {
        return {from_environment, true};
    }
    QString own = QCoreApplication::applicationDirPath();
    if (Is_Portable(own)) {
        return {own};
    }
    return {QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
            QLatin1Char('/') + To_Qt(Name_Of_Own_Folder())};
}

/// A folder of this user's alone; empty when there is none to be had.
QString Stand_In_Folder() {
    const std::string temporary = From_Qt(QDir::tempPath());
    // Another program that ends takes it away while it is empty.
    constexpr int most_tries = 2;
    for (int tries = 0; tries < most_tries; ++tries) {
        const std::string own = Meeting_Folder({}, temporary);
        QString folder = To_Qt(own) + QLatin1String("/session");
        if (!own.empty() && (QDir(folder).exists() || QDir().mkdir(folder)) &&
            Meeting_Folder({}, temporary) == own) {
            return folder;
        }
    }
    return {};
}

bool Is_Session_Switch(const std::string& argument) {
    const std::string lower = Lower_Copy(argument);
    return lower == "/fs" || lower == "/fn" || lower == "/mp";
}

/// Takes an argument that is a switch by itself; false when it is none.
bool Take_Switch(Start_Options& options, const std::string& argument) {
    const std::string with_value = std::string(folder_option) + "=";
    if (argument == "--help" || argument == "-h") {
        options.wants_help = true;
    } else if (argument == "--version") {
        options.wants_version = true;
    } else if (argument == new_test_option) {
        options.wants_new_test = true;
    } else if (argument == library_option) {
        options.wants_library = true;
    } else if (argument == "--new-instance") {
        options.is_new_instance = true;
    } else if (argument.starts_with(with_value)) {
        options.folder = argument.substr(with_value.size());
    } else if (Is_Session_Switch(argument)) {
        options.command_line += (options.command_line.empty() ? "" : " ") + argument;
    } else {
        return false;
    }
    return true;
}

void Take_Files(Start_Options& options, std::span<const std::string> names) {
    for (const std::string& name : names) {
        const QUrl url(To_Qt(name));
        const QString path = url.isLocalFile() ? url.toLocalFile() : To_Qt(name);
        if (!path.isEmpty()) {
            options.files.push_back(Native_Path(QFileInfo(path).absoluteFilePath()));
        }
    }
}

} // namespace

Start_Options Options_From(std::span<const std::string> arguments) {
    Start_Options options;
    for (std::size_t index = 0; index < arguments.size(); ++index) {
        const std::string& argument = arguments[index];
        if (argument == "--") {
            Take_Files(options, arguments.subspan(index + 1));
            break;
        }
        if (argument == folder_option) {
            if (index + 1 == arguments.size()) {
                options.fault = "--folder wants the name of a folder";
                break;
            }
            options.folder = arguments[++index];
        } else if (!Take_Switch(options, argument)) {
            Take_Files(options, arguments.subspan(index, 1));
        }
    }
    return options;
}

std::vector<std::string> Words_For_Running(const Start_Options& options) {
    std::vector<std::string> words;
    if (options.wants_new_test) {
        words.emplace_back(new_test_option);
    }
    if (options.wants_library) {
        words.emplace_back(library_option);
    }
    words.emplace_back("--");
    words.insert(words.end(), options.files.begin(), options.files.end());
    return words;
}

Program_Place Program_Folder(const Start_Options& options) {
    const Wish wish = Wanted_Folder(options);
    const QString folder = QDir::cleanPath(QFileInfo(wish.folder).absoluteFilePath());
    if (QDir().mkpath(folder)) {
        return {.folder = Native_Path(folder), .notice = {}};
    }
    const QString stand_in = wish.is_asked_for ? QString() : Stand_In_Folder();
    if (stand_in.isEmpty()) {
        throw Run_Time_Error(error::path_or_file_access,
                             "The program's folder cannot be made:\r\n" + Native_Path(folder) +
                                 "\r\n\r\nStart the program with --folder and a folder that can "
                                 "be written to.");
    }
    return {.folder = Native_Path(stand_in),
            .notice = "The program's folder cannot be made in your home:\r\n" +
                      Native_Path(folder) +
                      "\r\n\r\nThis session and its rescue copies are kept among the temporary "
                      "files, which the system clears:\r\n" +
                      Native_Path(stand_in) + "\r\n\r\nSave your tests to a place that stays."};
}

Surroundings Present_Surroundings(const Start_Options& options, const std::string& folder) {
    Surroundings facts;
    facts.folder = folder;
    facts.command_line = options.command_line;
    facts.decimal_point = QLocale::system().decimalPoint() == QLatin1String(",") ? "," : ".";
    facts.version = Program_Version();
    if (const QScreen* const screen = QGuiApplication::primaryScreen()) {
        // In dots of the device; the desktop's scale is told by their number in an inch.
        constexpr double dots_in_inch = 96;
        const double scale = screen->devicePixelRatio();
        facts.display = {.width = static_cast<int>(std::lround(screen->size().width() * scale)),
                         .height = static_cast<int>(std::lround(screen->size().height() * scale)),
                         .dpi = static_cast<int>(std::lround(dots_in_inch * scale))};
    }
    return facts;
}

} // namespace kestrum::desktop
