#include "desktop/arrivals.h"
#include "desktop/text_bridge.h"
#include "tests/desktop/desktop_bench.h"

#include <QDropEvent>
#include <QFile>
#include <QMimeData>
#include <QProcess>
#include <QTest>
#include <QUrl>
#include <QWindow>

#include <gtest/gtest.h>

namespace kestrum::desktop {
namespace {

constexpr int patience = 30'000;
const std::string short_test = "Text102_0 = ";

Start_Options With_Files(std::vector<std::string> files) {
    Start_Options options;
    options.files = std::move(files);
    return options;
}

TEST(Arguments, A_Switch_Is_A_Whole_Argument_And_All_Else_Is_A_File) {
    const Start_Options options = Options_From(std::vector<std::string>{
        "--folder", "/home/x/fs1", "/FS", "/x/mp/fs.dat", "/mp", "file:///a%20b.dat", "-platform",
        "--new-test", "--", "--library", "/fn"});
    EXPECT_EQ(options.folder, "/home/x/fs1");
    EXPECT_EQ(options.command_line, "/FS /mp");
    const std::string here = From_Qt(QDir::currentPath());
    EXPECT_EQ(options.files,
              (Words{"/x/mp/fs.dat", "/a b.dat", here + "/-platform", here + "/--library", "/fn"}));
    EXPECT_TRUE(options.wants_new_test);
    EXPECT_FALSE(options.wants_library);
    EXPECT_EQ(Options_From(Words_For_Running(options)).files, options.files);
    EXPECT_TRUE(Options_From(Words_For_Running(options)).wants_new_test);
    EXPECT_EQ(Options_From(std::vector<std::string>{"--folder=here"}).folder, "here");
    EXPECT_FALSE(Options_From(std::vector<std::string>{"--folder"}).fault.empty());
    EXPECT_TRUE(Options_From(std::vector<std::string>{"--version"}).wants_version);
}

TEST(Program_Folder, Without_A_Home_Lies_Among_The_Temporary_Files_And_Says_So) {
    const Temp_Folder folder;
    const QByteArray data = qgetenv("XDG_DATA_HOME");
    const QByteArray temporary = qgetenv("TMPDIR");
    qputenv("XDG_DATA_HOME", "/proc/nowhere"); // not even the administrator can make it
    qputenv("TMPDIR", folder.Path().c_str());
    const Program_Place place = Program_Folder({});
    EXPECT_TRUE(place.folder.starts_with(folder.File("kestrum-"))) << place.folder;
    EXPECT_NE(place.notice.find("/proc/nowhere/kestrum"), std::string::npos) << place.notice;
    Start_Options asked;
    asked.folder = "/proc/nowhere";
    EXPECT_EQ(Error_Of([&] { static_cast<void>(Program_Folder(asked)); }), 75);
    asked.folder = folder.Path();
    EXPECT_EQ(Program_Folder(asked).notice, "");
    data.isEmpty() ? qunsetenv("XDG_DATA_HOME") : qputenv("XDG_DATA_HOME", data);
    temporary.isEmpty() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", temporary);
}

TEST(Arrivals, Files_Go_Into_The_Free_Sheets_And_The_Rest_Is_Named_In_One_Box) {
    Desktop_Bench bench;
    Arrivals arrivals(bench.program);
    bench.Click("Main.Check2"); // a switch of the units is no edit of the sheets
    bench.Click("Main.Command2");
    ASSERT_TRUE(QTest::qWaitForWindowActive(bench.Widget("Form2.Text102(0)").window()));
    bench.Enter("Form2.Text102(0)", "mine");
    static_cast<void>(bench.Take_Events());
    bench.folder.Write("preload.dat", short_test + "preload\r\n");
    bench.folder.Write("engine.DTA", "Text103_3 = 4.5\r\nFlow1 = preload.dat\r\n");
    bench.folder.Write("a.dat", short_test + "E7TE\r\n"); // what the sheet begins with, loaded
    std::vector<std::string> files;
    for (const char* const name :
         {"gone.dat", "a.dat", "b.dat", "engine.DTA", "c.dat", "other.dta", "d.dat", "e.dat"}) {
        files.push_back(bench.folder.File(name));
        if (std::string_view("bcde").find(name[0]) != std::string_view::npos &&
            !files.back().ends_with("A")) {
            bench.folder.Write(name, short_test + name + "\r\n");
        }
    }
    arrivals.Take(With_Files(files));
    EXPECT_EQ(bench.Text("Main.Text103(3)"), "4.5");
    EXPECT_EQ(bench.Text("Form1.Text102(0)"), "preload");
    EXPECT_EQ(bench.Text("Form2.Text102(0)"), "mine");
    EXPECT_EQ(bench.Text("Form3.Text39"), bench.folder.File("a.dat"));
    EXPECT_EQ(bench.Text("Form4.Text102(0)"), "b.dat");
    EXPECT_EQ(bench.Text("Form5.Text102(0)"), "c.dat");
    std::vector<std::string> boxes;
    for (const std::string& event : bench.Take_Events()) {
        if (event.find("box") != std::string::npos) {
            boxes.push_back(event);
        }
    }
    ASSERT_EQ(boxes.size(), 2U);
    EXPECT_NE(boxes[0].find("Not been Loaded\r\n\r\n" + bench.folder.File("gone.dat")),
              std::string::npos);
    EXPECT_TRUE(boxes[1].ends_with("\r\n\r\n" + bench.folder.File("other.dta") + "\r\n" +
                                   bench.folder.File("d.dat") + "\r\n" +
                                   bench.folder.File("e.dat")))
        << boxes[1];
}

TEST(Arrivals, A_Dropped_File_Loads_Into_Its_Sheet_And_One_Step_Takes_It_Back) {
    Desktop_Bench bench;
    Arrivals arrivals(bench.program);
    bench.Open_Sheet();
    bench.Enter("Form1.Text102(0)", "mine");
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(To_Qt(bench.folder.Write("a.dat", short_test + "A\r\n"))),
                  QUrl::fromLocalFile(To_Qt(bench.folder.Write("b.dat", short_test + "B\r\n")))});
    QWindow* const window =
        bench.program.Its_Windows().Window_Of(bench.At("Form1.Text102(0)").Owner())->windowHandle();
    QDropEvent drop(QPointF(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window, &drop);
    EXPECT_TRUE(drop.isAccepted());
    EXPECT_EQ(bench.Text("Form1.Text102(0)"), "A");
    EXPECT_EQ(bench.Text("Form2.Text102(0)"), "B");
    static_cast<void>(bench.program.Its_Gate().History()->Undo());
    static_cast<void>(bench.program.Its_Gate().History()->Undo());
    EXPECT_EQ(bench.Text("Form1.Text102(0)"), "mine");
    static_cast<void>(bench.Take_Events());
}

TEST(Arrivals, Wait_Until_No_Routine_Runs) {
    Desktop_Bench bench;
    Arrivals arrivals(bench.program);
    const std::string file = bench.folder.Write("a.dat", short_test + "A\r\n");
    bench.program.Its_Gate().Enter([&] {
        arrivals.Take(With_Files({file}));
        EXPECT_NE(bench.Text("Form1.Text102(0)"), "A");
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return bench.Text("Form1.Text102(0)") == "A"; }, patience));
    static_cast<void>(bench.Take_Events());
}

TEST(Arrivals, A_New_Test_Takes_A_Free_Sheet) {
    Desktop_Bench bench;
    Arrivals arrivals(bench.program);
    Start_Options options;
    options.wants_new_test = true;
    arrivals.Take(options);
    arrivals.Take(options);
    EXPECT_EQ(bench.Text("Form1.Text102(3)"), "0");
    EXPECT_EQ(bench.Text("Form2.Text102(3)"), "0");
    EXPECT_NE(bench.Text("Form3.Text102(3)"), "0");
    static_cast<void>(bench.Take_Events());
}

TEST(Second_Start, Hands_Its_Files_To_The_Running_Program) {
    const Temp_Folder folder;
    QProcessEnvironment around = QProcessEnvironment::systemEnvironment();
    around.remove(QStringLiteral("XDG_RUNTIME_DIR"));
    around.insert(QStringLiteral("TMPDIR"), To_Qt(folder.Path()));
    const QStringList own{QStringLiteral("--folder"), To_Qt(folder.Path())};
    QProcess first;
    first.setProcessEnvironment(around);
    first.start(QStringLiteral(KESTRUM_PROGRAM), own);
    ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(To_Qt(folder.File("rescue/in-use"))); },
                                patience));
    QProcess second;
    second.setProcessEnvironment(around);
    second.start(QStringLiteral(KESTRUM_PROGRAM),
                 own + QStringList{To_Qt(folder.Write("a.dat", short_test + "A\r\n"))});
    ASSERT_TRUE(second.waitForFinished(patience));
    EXPECT_EQ(second.exitCode(), 0);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return QFile::exists(To_Qt(folder.File("rescue/Form1.dat"))); }, patience))
        << "the running program has the test";
    first.kill();
    first.waitForFinished(patience);
}

} // namespace
} // namespace kestrum::desktop
