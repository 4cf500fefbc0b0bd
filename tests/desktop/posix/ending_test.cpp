#include "tests/desktop/desktop_bench.h"

#include <QCoreApplication>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QSessionManager>
#include <QTest>

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <sys/types.h>

namespace kestrum::desktop {
namespace {

constexpr int patience = 30'000;

void End_With(QProcess& process, int signal) {
    ::kill(static_cast<pid_t>(process.processId()), signal);
    ASSERT_TRUE(process.waitForFinished(patience));
    EXPECT_EQ(process.exitStatus(), QProcess::CrashExit) << "the signal takes its usual course";
}

TEST(Ending, A_Signal_Finds_What_Was_Typed_A_Moment_Before) {
    for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
        const Temp_Folder folder;
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(),
                    {QStringLiteral("--type-and-wait"), QString::fromStdString(folder.Path())});
        ASSERT_TRUE(child.waitForReadyRead(patience));
        End_With(child, signal);
        EXPECT_NE(folder.Read("rescue/Main.dta").find("4.1357"), std::string::npos) << signal;
    }
}

TEST(Ending, The_Program_Itself_Ends_By_The_Signal_And_Starts_Again) {
    const Temp_Folder folder;
    for (const int signal : {SIGTERM, SIGTERM}) {
        QProcess program;
        program.start(QStringLiteral(KESTRUM_PROGRAM),
                      {QStringLiteral("--folder"), QString::fromStdString(folder.Path())});
        const std::string lock = folder.File("rescue/in-use");
        ASSERT_TRUE(QTest::qWaitFor([&lock] { return QFile::exists(QString::fromStdString(lock)); },
                                    patience));
        QTest::qWait(200);
        End_With(program, signal);
    }
}

TEST(Ending, The_End_Of_The_Users_Session_Finds_What_Was_Typed) {
    Desktop_Bench bench;
    bench.program.Keep_Rescue_Copies();
    bench.Enter("Main.Text103(3)", "4.1357");
    // The signal brings a manager that only the platform can make, and nobody asks it anything.
    std::array<char, sizeof(QSessionManager)> nobody{};
    Q_EMIT qGuiApp->commitDataRequest(
        *reinterpret_cast<QSessionManager*>(nobody.data())); // NOLINT(*-reinterpret-cast)
    EXPECT_NE(bench.folder.Read("rescue/Main.dta").find("4.1357"), std::string::npos);
}

} // namespace
} // namespace kestrum::desktop
