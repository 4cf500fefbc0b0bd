#include "desktop/start_options.h"

#include "application/version.h"
#include "base/run_time_error.h"
#include "desktop/text_bridge.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLocale>
#include <QScreen>
#include <QStandardPaths>

#include <cmath>
#include <string_view>

namespace kestrum::desktop {

namespace {

constexpr std::string_view folder_option = "--folder";
const char* const session_file = "zxqw1234.sav";

bool Is_Portable(const QString& folder) {
    return QFileInfo(folder).isWritable() &&
           QFileInfo::exists(QDir(folder).filePath(QLatin1String(session_file)));
}

QString Wanted_Folder(const Start_Options& options) {
    if (!options.folder.empty()) {
        return To_Qt(options.folder);
    }
    QString from_environment = qEnvironmentVariable("KESTRUM_FOLDER");
    if (!from_environment.isEmpty()) {
        return from_environment;
    }
    QString own = QCoreApplication::applicationDirPath();
    if (Is_Portable(own)) {
        return own;
    }
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QLatin1String("/kestrum");
}

} // namespace

Start_Options Options_From(std::span<const std::string> arguments) {
    Start_Options options;
    for (std::size_t index = 0; index < arguments.size(); ++index) {
        const std::string& argument = arguments[index];
        const std::string with_value = std::string(folder_option) + "=";
        if (argument == "--help" || argument == "-h") {
            options.wants_help = true;
        } else if (argument == "--version") {
            options.wants_version = true;
        } else if (argument == folder_option) {
            if (index + 1 == arguments.size()) {
                options.fault = "--folder wants the name of a folder";
                break;
            }
            options.folder = arguments[++index];
        } else if (argument.starts_with(with_value)) {
            options.folder = argument.substr(with_value.size());
        } else {
            options.command_line += (options.command_line.empty() ? "" : " ") + argument;
        }
    }
    return options;
}

std::string Program_Folder(const Start_Options& options) {
    const QString folder = QDir::cleanPath(QFileInfo(Wanted_Folder(options)).absoluteFilePath());
    if (!QDir().mkpath(folder)) {
        throw Run_Time_Error(error::path_or_file_access,
                             "The program's folder cannot be made:\r\n" +
                                 From_Qt(QDir::toNativeSeparators(folder)) +
                                 "\r\n\r\nStart the program with --folder and a folder that can "
                                 "be written to.");
    }
    return From_Qt(QDir::toNativeSeparators(folder));
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
