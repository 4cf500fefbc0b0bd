#include "desktop/desktop_shell.h"

#include "desktop/text_bridge.h"
#include "platform/sound_file.h"
#include "platform/system_sound.h"

#include <QDesktopServices>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

#include <array>

namespace kestrum::desktop {

namespace {

struct Player {
    const char* program;
    const char* option; // empty for none
};

constexpr std::array<Player, 5> players{
    {{"pw-play", ""}, {"paplay", ""}, {"aplay", "-q"}, {"play", "-q"}, {"afplay", ""}}};

bool Start(const Player& player, const QString& path) {
    const QString program = QStandardPaths::findExecutable(QString::fromLatin1(player.program));
    if (program.isEmpty()) {
        return false;
    }
    QProcess process;
    process.setProgram(program);
    QStringList arguments(path);
    if (*player.option != '\0') {
        arguments.prepend(QString::fromLatin1(player.option));
    }
    process.setArguments(arguments);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    return process.startDetached();
}

/// The opener of a desktop tells nobody that it has found no program for mails, so it is asked
/// before. A system that cannot be asked is taken to have one.
bool Has_Mail_Program() {
    const QString asking = QStandardPaths::findExecutable(QStringLiteral("xdg-mime"));
    if (asking.isEmpty()) {
        return true;
    }
    constexpr int patience = 3000; // milliseconds
    QProcess process;
    process.start(asking, {QStringLiteral("query"), QStringLiteral("default"),
                           QStringLiteral("x-scheme-handler/mailto")});
    const bool answered = process.waitForFinished(patience) &&
                          process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    return !answered || !process.readAllStandardOutput().trimmed().isEmpty();
}

} // namespace

bool Desktop_Shell::Open(const std::string& address) {
    if (address.starts_with("mailto:") && !Has_Mail_Program()) {
        return false;
    }
    return QDesktopServices::openUrl(QUrl(To_Qt(address), QUrl::TolerantMode));
}

bool Desktop_Shell::Play(const std::string& path) {
    if (!Is_Sound_File(path)) {
        return false;
    }
    if (Play_By_System(path)) {
        return true;
    }
    for (const Player& player : players) {
        if (Start(player, To_Qt(path))) {
            return true;
        }
    }
    return false;
}

} // namespace kestrum::desktop
