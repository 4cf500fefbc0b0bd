#include "desktop/desktop_dialogs.h"
#include "desktop/file_filters.h"
#include "desktop/start_options.h"
#include "desktop/text_bridge.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kestrum::desktop {
namespace {

struct Filter_Case {
    const char* filter;
    QStringList entries;
};

TEST(Dialogs, filters_keep_their_words_and_work_even_when_defective) {
    const std::vector<Filter_Case> cases{
        {"Flow Files (*.dat)|*.dat|All Files (*.*)|*.*",
         {QStringLiteral("Flow Files (*.dat) (*.dat)"), QStringLiteral("All Files (*.*) (*)")}},
        {"Two|*.flw;*.dfw", {QStringLiteral("Two (*.flw *.dfw)")}},
        {"No pattern", {QStringLiteral("No pattern (*)")}},
        {"Empty pattern||", {QStringLiteral("Empty pattern (*)")}},
        {"Bracket|*.(dat", {QStringLiteral("Bracket (*)")}},
        {"", {}},
    };
    for (const Filter_Case& line : cases) {
        EXPECT_EQ(Name_Filters(line.filter), line.entries) << line.filter;
    }
}

TEST(Dialogs, a_box_shows_the_text_to_the_letter_and_cuts_what_no_display_holds) {
    EXPECT_EQ(Text_For_Box("one\r\ntwo"), QStringLiteral("one\ntwo"));
    EXPECT_EQ(Text_For_Box("<b>&"), QStringLiteral("<b>&"));
    const QString shown = Text_For_Box("Invalid\r\n" + std::string(10'000'000, 'x'));
    EXPECT_LT(shown.size(), 1000);
    EXPECT_TRUE(shown.startsWith(QStringLiteral("Invalid\nxxx")));
    EXPECT_TRUE(shown.endsWith(QChar(0x2026)));
}

TEST(Arguments, what_is_no_option_goes_to_the_session) {
    const std::vector<std::string> arguments{"--folder", "/home/x/fs1", "/FS", "and", "/mp"};
    const Start_Options options = Options_From(arguments);
    EXPECT_EQ(options.folder, "/home/x/fs1");
    EXPECT_EQ(options.command_line, "/FS and /mp");
    EXPECT_EQ(Options_From(std::vector<std::string>{"--folder=here"}).folder, "here");
    EXPECT_FALSE(Options_From(std::vector<std::string>{"--folder"}).fault.empty());
    EXPECT_TRUE(Options_From(std::vector<std::string>{"--version"}).wants_version);
}

} // namespace
} // namespace kestrum::desktop
