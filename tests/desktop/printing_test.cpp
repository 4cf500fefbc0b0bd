#include "desktop/desktop_printers.h"
#include "output/print_state.h"
#include "tests/desktop/desktop_bench.h"

#include <QAction>
#include <QApplication>
#include <QPixmap>
#include <QTimer>

#include <gtest/gtest.h>

namespace kestrum::desktop {

namespace {

/// An entry of the menus of sheet 1.
void Trigger(Desktop_Bench& bench, const char* entry) {
    Session& session = bench.program.Its_Session();
    const Screen_Window* const window = bench.program.Its_Windows().Window_Of(session.Sheet(1));
    auto* const action = window->findChild<QAction*>(QLatin1String(entry));
    ASSERT_NE(action, nullptr) << entry;
    action->trigger();
}

TEST(Printing, Pdf_File_Is_The_Last_Printer_And_Asks_For_A_Name) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    EXPECT_EQ(bench.program.Its_Printers().Devices().back(), "PDF file");
    QString said;
    bench.program.Its_Printers().say = [&said](const QString& words) { said = words; };
    Print_Of(bench.program.Its_Session()).printer = "PDF file";
    bench.dialogs.Choose(bench.folder.File("o.pdf"));
    Trigger(bench, "Form1.Print_Sheet");
    EXPECT_TRUE(bench.folder.Read("o.pdf").starts_with("%PDF"));
    EXPECT_EQ(said.toStdString(), "Saved to " + bench.folder.File("o.pdf"));
    bench.dialogs.Choose(std::nullopt);
    Trigger(bench, "Form1.Print_Sheet"); // a cancel is no failure
    EXPECT_EQ(bench.Take_Events().back(), "chooser to save");
}

TEST(Printing, Printer_That_Has_Gone_Is_Told) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    static_cast<void>(bench.Take_Events());
    Print_Of(bench.program.Its_Session()).printer = "Gone";
    Trigger(bench, "Form1.Print_Sheet");
    EXPECT_EQ(bench.Take_Events(), Events{"exclamation box: Printer error"});
}

TEST(Printing, Preview_Comes_Before_The_Next_Print_Alone) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    int shown = 0;
    bench.program.Its_Printers().show_preview = [&](Desktop_Printers&, const std::string&,
                                                    const Printable& printable) {
        ++shown;
        EXPECT_EQ(printable.title, QStringLiteral("Flow Sheet"));
        EXPECT_TRUE(Pdf_Bytes(printable, Paper_Size::Letter).starts_with("%PDF"));
    };
    Print_Of(bench.program.Its_Session()).printer = "PDF file";
    Trigger(bench, "Form1.Preview");
    EXPECT_EQ(shown, 1);
    bench.dialogs.Choose(bench.folder.File("o.pdf"));
    Trigger(bench, "Form1.Print_Sheet");
    EXPECT_EQ(shown, 1);
    static_cast<void>(bench.Take_Events());
}

TEST(Printing, Preview_Shows_The_Page_Until_It_Is_Closed) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    std::string seen;
    QTimer::singleShot(0, qApp, [&seen] {
        QWidget* const window = QApplication::activeModalWidget();
        seen = window == nullptr ? "nothing" : window->objectName().toStdString();
        if (window != nullptr) {
            window->close();
        }
    });
    Trigger(bench, "Form1.Preview");
    EXPECT_EQ(seen, "PrintPreview");
    EXPECT_EQ(bench.folder.Names(), std::vector<std::string>{});
}

TEST(Printing, Picture_Of_A_Window_Is_Kept_And_Main_Comes_Back) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    Trigger(bench, "Form1.PrtSc");
    EXPECT_TRUE(bench.program.Its_Session().Main().visible);
    const auto names = bench.folder.Names();
    ASSERT_EQ(names.size(), 1U);
    EXPECT_TRUE(names[0].starts_with("Flow_"));
    const QPixmap picture(QString::fromStdString(bench.folder.File(names[0])));
    EXPECT_GE(picture.width(), 600);
}

} // namespace

} // namespace kestrum::desktop
