#include "desktop/desktop_dialogs.h"
#include "desktop/desktop_shell.h"
#include "desktop/file_filters.h"
#include "desktop/text_bridge.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFile>
#include <QFileDialog>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>
#include <QUrl>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kestrum::desktop {
namespace {

struct Filter_Case {
    const char* filter;
    QStringList entries;
};

TEST(Dialogs, Filters_Keep_Their_Words_And_Work_Even_When_Defective) {
    const std::vector<Filter_Case> cases{
        {"Flow Files (*.dat)|*.dat|All Files (*.*)|*.*",
         {QStringLiteral("Flow Files (*.dat) (*.dat)"), QStringLiteral("All Files (*.*) (*)")}},
        {"Two|*.flw;*.dfw", {QStringLiteral("Two (*.flw *.dfw)")}},
        {"No pattern", {QStringLiteral("No pattern (*)")}},
        {"Empty pattern||", {QStringLiteral("Empty pattern (*)")}},
        {"Bracket|*.(dat", {QStringLiteral("Bracket (*)")}},
        // One pattern is missing: every entry behind it shows all files.
        {"Flow Files (*.flw, *.dfw)|*.flw; *.dfw|DeskTop Dyno Files (*.dyn)|Dynomation Files "
         "(*.dym)|*.dym|All Files (*.*)|*.*",
         {QStringLiteral("Flow Files (*.flw, *.dfw) (*.flw *.dfw)"),
          QStringLiteral("DeskTop Dyno Files (*.dyn) (Dynomation Files *)"),
          QStringLiteral("*.dym (All Files *)"), QStringLiteral("*.* (*)")}},
        {"", {}},
    };
    for (const Filter_Case& line : cases) {
        EXPECT_EQ(Name_Filters(line.filter), line.entries) << line.filter;
    }
}

TEST(Dialogs, A_Chooser_Tells_The_Entry_That_Was_Picked) {
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.dym"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    QTimer::singleShot(0, [&] {
        auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        dialog->selectNameFilter(dialog->nameFilters().at(2));
        dialog->selectFile(path);
        static_cast<QDialog*>(dialog)->accept();
    });
    Desktop_Dialogs dialogs;
    const auto choice = dialogs.Choose_File({.mode = Chooser_Mode::Open,
                                             .filter = "One|*.a|Two|*.b|*.dym|All Files (*.*)",
                                             .filter_index = 2,
                                             .folder = From_Qt(folder.path())});
    ASSERT_TRUE(choice.has_value());
    EXPECT_EQ(choice->path, From_Qt(path));
    EXPECT_EQ(choice->filter_index, 3);
}

TEST(Dialogs, A_Box_Shows_The_Text_To_The_Letter_And_Cuts_What_No_Display_Holds) {
    EXPECT_EQ(Text_For_Box("one\r\ntwo"), QStringLiteral("one\ntwo"));
    EXPECT_EQ(Text_For_Box("<b>&"), QStringLiteral("<b>&"));
    const QString shown = Text_For_Box("Invalid\r\n" + std::string(10'000'000, 'x'));
    EXPECT_LT(shown.size(), 1000);
    EXPECT_TRUE(shown.startsWith(QStringLiteral("Invalid\nxxx")));
    EXPECT_TRUE(shown.endsWith(QChar(0x2026)));
}

TEST(Dialogs, A_Font_Comes_Back_As_It_Was_Shown_Or_Not_At_All) {
    const Font shown{.name = "DejaVu Sans", .size = 12, .bold = true};
    Desktop_Dialogs dialogs;
    for (const bool takes : {true, false}) {
        QTimer::singleShot(0, [takes] {
            auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            takes ? dialog->accept() : dialog->reject();
        });
        EXPECT_EQ(dialogs.Choose_Font(shown), takes ? std::optional(shown) : std::nullopt);
    }
}

TEST(Sounds, Are_Played_By_A_Program_Of_Their_Own_And_Only_If_They_Are_Sounds) {
    const QTemporaryDir folder;
    const auto path = [&folder](const char* name) {
        return folder.filePath(QString::fromLatin1(name));
    };
    const auto write = [&path](const char* name, const QByteArray& bytes) {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    };
    write("a b.wav", QByteArray("RIFF\x04\0\0\0WAVE", 12));
    write("text.wav", "no sound");
    write("cut.wav", "RIFF");
    Desktop_Shell shell;
    const auto plays = [&](const char* name) { return shell.Play(From_Qt(path(name))); };
    const QByteArray usual_path = qgetenv("PATH");
    qputenv("PATH", folder.path().toLocal8Bit());
    EXPECT_FALSE(plays("a b.wav")) << "no player";
    write("aplay", "#!/bin/sh\necho \"$1 $2\" > \"" + path("part").toLocal8Bit() +
                       "\"; /bin/mv \"" + path("part").toLocal8Bit() + "\" \"" +
                       path("played").toLocal8Bit() + "\"\nexec /bin/sleep 1\n");
    QFile::setPermissions(path("aplay"), QFile::ReadOwner | QFile::ExeOwner);
    EXPECT_FALSE(plays("text.wav"));
    EXPECT_FALSE(plays("cut.wav"));
    EXPECT_FALSE(plays("gone.wav"));
    EXPECT_TRUE(plays("a b.wav"));
    qputenv("PATH", usual_path);
    QFile played(path("played"));
    EXPECT_TRUE(QTest::qWaitFor([&played] { return played.exists(); }));
    ASSERT_TRUE(played.open(QIODevice::ReadOnly));
    EXPECT_EQ(played.readAll().trimmed(), "-q " + path("a b.wav").toLocal8Bit());
}

TEST(Mails, Are_Handed_On_Unless_The_Desktop_Names_No_Program_For_Them) {
    const QTemporaryDir folder;
    QTextBrowser opener;
    QUrl opened;
    QObject::connect(&opener, &QTextBrowser::anchorClicked,
                     [&opened](const QUrl& address) { opened = address; });
    QDesktopServices::setUrlHandler(QStringLiteral("mailto"), &opener, "anchorClicked");
    const QByteArray usual_path = qgetenv("PATH");
    qputenv("PATH", folder.path().toLocal8Bit());
    Desktop_Shell shell;
    const auto opens = [&](const QByteArray& answer) {
        QFile asking(folder.filePath(QStringLiteral("xdg-mime")));
        QFile::remove(asking.fileName());
        EXPECT_TRUE(asking.open(QIODevice::WriteOnly));
        asking.write("#!/bin/sh\n" + answer);
        asking.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
        asking.close();
        opened.clear();
        return shell.Open("mailto:a@b.c");
    };
    EXPECT_FALSE(opens("echo\n"));
    EXPECT_TRUE(opened.isEmpty());
    EXPECT_TRUE(opens("echo mail.desktop\n"));
    EXPECT_EQ(opened, QUrl(QStringLiteral("mailto:a@b.c")));
    EXPECT_TRUE(opens("exit 2\n")) << "it cannot tell";
    qputenv("PATH", usual_path);
    QDesktopServices::unsetUrlHandler(QStringLiteral("mailto"));
}

} // namespace
} // namespace kestrum::desktop
