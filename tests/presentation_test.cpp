#include "platform/shell.h"
#include "presentation/links.h"
#include "tests/test_bench.h"

#include <gtest/gtest.h>

namespace kestrum {

namespace {

Font Font_Of(Test_Bench& bench, std::string_view address) {
    return bench.At(address).Present_Look().font;
}

const Font courier{.name = "Courier", .size = 12.5, .bold = true};
const Font times{.name = "Times", .size = 9, .italic = true};
const Font stored{};

TEST(Box_Fonts, Go_To_All_Boxes_Or_To_Those_That_Can_Be_Typed_In) {
    Test_Bench bench;
    bench.platform.font = courier;
    bench.Click("Main.AllFont");
    bench.platform.font = times;
    bench.Click("Main.EntryFont");
    bench.Click("Main.AllFont_Flow"); // cancelled
    EXPECT_TRUE(bench.session.answers.font.cancelled);
    EXPECT_EQ(bench.session.answers.font.name, "Times");
    EXPECT_EQ(Font_Of(bench, "Form1.Text101(7)"), stored);
    EXPECT_EQ(Font_Of(bench, "Main.Text101(7)"), courier);
    EXPECT_EQ(Font_Of(bench, "Main.Text104(3)"), times);
    EXPECT_EQ(Font_Of(bench, "Main.Text101(3)"), courier) << "locked: the program finds Mach";
    EXPECT_EQ(Font_Of(bench, "Main.Command51"), stored);
    bench.Click("Main.Check1");
    EXPECT_EQ(Font_Of(bench, "Main.Text101(3)"), times) << "that of an entry box";
    bench.platform.font = courier;
    bench.Click("Main.EntryFont_Flow");
    EXPECT_EQ(Font_Of(bench, "Form5.Text104(6)"), courier);
    EXPECT_EQ(Font_Of(bench, "Form50.Text3"), courier);
    EXPECT_EQ(Font_Of(bench, "Form50.Text71"), stored) << "a caption of the graph";
    EXPECT_EQ(Font_Of(bench, "Form1.Text101(7)"), stored);
}

TEST(Menus, Mark_The_Alignment_And_The_Grid_In_Force) {
    Test_Bench bench;
    const auto marked = [&bench] {
        std::string names;
        for (const Control& control : bench.session.Main().Controls()) {
            if (control.Entry().kind == Control_Kind::Menu_Entry && control.Value() != 0) {
                names.append(control.Entry().array).append(" ");
            }
        }
        return names;
    };
    EXPECT_EQ(marked(), "AligLeft Grid_Long ");
    bench.Click("Main.AligCenter");
    bench.Click("Main.Grid_None");
    EXPECT_EQ(marked(), "AligCenter Grid_None ");
    bench.Click("Main.Grid_Dot");
    EXPECT_EQ(marked(), "AligCenter Grid_Dot ");
}

class Noting_Shell : public Shell {
public:
    bool works = true;
    std::vector<std::string> taken;

    bool Open(const std::string& address) override { return Take("open " + address); }

    bool Play(const std::string& path) override { return Take("play " + path); }

private:
    bool Take(std::string what) {
        taken.push_back(std::move(what));
        return works;
    }
};

TEST(Links, Lead_To_The_System_And_Tell_When_It_Takes_Nothing) {
    Test_Bench bench;
    Noting_Shell shell;
    bench.session.shell = &shell;
    const std::string sound = bench.folder.File("a.wav");
    const auto use_all = [&] {
        Open_Web_Page(bench.session, "");
        Events events = bench.Click("Main.Command10");
        bench.platform.Choose(sound);
        for (const char* const link : {"Main.Information_Request", "Main.Command49"}) {
            const Events more = bench.Click(link);
            events.insert(events.end(), more.begin(), more.end());
        }
        return events;
    };
    EXPECT_EQ(use_all(), Events{"chooser to open"});
    const std::string mail(addresses::support_mail);
    EXPECT_EQ(shell.taken, (std::vector<std::string>{
                               "open " + std::string(addresses::cam_page),
                               "open mailto:" + mail +
                                   "?subject=TARVEX / KESTRUM - Customer Support - Information "
                                   "Request&body=Please State What Information is Needed",
                               "play " + sound}));
    shell.works = false;
    const Events failures = use_all();
    bench.session.shell = nullptr;
    EXPECT_EQ(failures, (Events{"exclamation box titled Warning: Error Jumping to: " +
                                    std::string(addresses::cam_page),
                                "exclamation box titled Warning: Error Jumping to: " + mail,
                                "chooser to open", "plain box: Problem with your \"WAV\" File"}));
    EXPECT_EQ(bench.Click("Main.Command49"),
              (Events{"chooser to open", "plain box: Problem with your \"WAV\" File"}));
}

TEST(Links, A_Mail_Is_Escaped_At_Its_Line_Ends_Alone) {
    EXPECT_EQ(Mail_Text({.to = "x", .subject = "", .body = "", .copy_to = "y"}), "mailto:x&cc=y");
    EXPECT_EQ(Mail_Text({.to = "x",
                         .subject = "s & t",
                         .body = "one\r\ntwo",
                         .copy_to = "",
                         .blind_copy_to = "z"}),
              "mailto:x?subject=s & t&bcc=z&body=one%0A\ntwo");
}

} // namespace

} // namespace kestrum
