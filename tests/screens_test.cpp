#include "presentation/alignment.h"
#include "tests/test_bench.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace kestrum {

namespace {

const std::vector<std::string> all_screens{"Main",  "Form1",  "Form2",  "Form3", "Form4",
                                           "Form5", "Form50", "Form60", "Form70"};

TEST(Screens, Every_Control_Is_Found_By_Its_Address_And_No_Other) {
    Test_Bench bench;
    for (const std::string& name : all_screens) {
        Screen& screen = *bench.session.Screen_Named(name);
        EXPECT_EQ(screen.Name(), name);
        std::set<std::string> addresses;
        std::set<std::string_view> lone;
        std::set<std::string_view> arrays;
        for (Control& control : screen.Controls()) {
            EXPECT_TRUE(addresses.insert(control.Address()).second) << control.Address();
            EXPECT_EQ(&bench.At(control.Address()), &control);
            EXPECT_EQ(&control.Owner(), &screen);
            (control.Index() == no_index ? lone : arrays).insert(control.Entry().array);
        }
        for (const std::string_view both : lone) {
            EXPECT_FALSE(arrays.contains(both)) << name << '.' << both;
        }
    }
    EXPECT_EQ(bench.session.Screen_Named("Form6"), nullptr);
    EXPECT_EQ(bench.session.Screen_Named("form1"), nullptr);
    EXPECT_EQ(bench.session.Screen_Named("Form"), nullptr);
}

TEST(Screens, Every_Holder_Is_There) {
    Test_Bench bench;
    for (const std::string& name : all_screens) {
        Screen& screen = *bench.session.Screen_Named(name);
        for (const Control& control : screen.Controls()) {
            const std::string_view holder = control.Entry().parent;
            if (holder.empty()) {
                continue;
            }
            const Control* const found = screen.Find(holder, std::nullopt);
            ASSERT_NE(found, nullptr) << control.Address() << " lies in " << holder;
            const bool is_entry = control.Entry().kind == Control_Kind::Menu_Entry;
            EXPECT_EQ(found->Entry().kind,
                      is_entry ? Control_Kind::Menu_Entry : Control_Kind::Frame)
                << control.Address();
        }
    }
}

TEST(Screens, A_Line_For_Several_Members_Has_A_Text_For_Each) {
    Test_Bench bench;
    for (const std::string& name : all_screens) {
        for (const Control& control : bench.session.Screen_Named(name)->Controls()) {
            const Control_Entry& entry = control.Entry();
            const auto bars = std::ranges::count(entry.text, '|');
            if (bars > 0 && entry.first != no_index && entry.last > entry.first) {
                EXPECT_EQ(bars, entry.last - entry.first) << control.Address();
            }
        }
    }
}

TEST(Screens, An_Array_Has_Gaps_That_Raise_An_Error) {
    Test_Bench bench;
    const Flow_Sheet& sheet = bench.session.Sheet(1);
    EXPECT_EQ(sheet.Text101(30).Text(), "1000");
    EXPECT_EQ(Error_Of([&] { (void)sheet.Text101(31); }), 340);
    EXPECT_EQ(Error_Of([&] { (void)sheet.Text101(-1); }), 340);
    EXPECT_EQ(Error_Of([&] { (void)sheet.Text201(6); }), 340); // between two blocks of rows
    EXPECT_EQ(Error_Of([&] { (void)sheet.text205(12); }), 340);
    EXPECT_EQ(Error_Of([&] { (void)bench.session.Main().Text107(9); }), 340);
    EXPECT_EQ(Error_Of([&] { (void)bench.session.Sheet(6); }), 9);
    EXPECT_EQ(Error_Of([&] { (void)bench.session.Sheet(0); }), 9);
    EXPECT_EQ(bench.session.Sheet(1).Find("Text205", 13), nullptr); // its first letter is small
    EXPECT_EQ(&bench.At("Main.Text94(0)"), &bench.At("Main.Text94"));
    EXPECT_EQ(bench.session.Main().Find("Text94", 1), nullptr);
}

TEST(Screens, A_Sheet_Holds_Its_Grid) {
    struct Case {
        std::string_view cell;
        std::string_view text;
        bool locked;
    };

    constexpr Case cases[] = {
        {"Form1.Text101(0)", "Part #", true},
        {"Form1.Text101(7)", "Throat area In.", true},
        {"Form1.Text102(10)", "No", false},
        {"Form1.Text103(8)", "Ex Cntr Length", true},
        {"Form1.Text104(9)", "", true},
        {"Form1.Text105(11)", "Total CFM", true},
        {"Form1.Text106(5)", "Exhaust", true},
        {"Form1.Text107(8)", "To:-------", true},
        {"Form1.Text108(30)", "1000", true},
        {"Form1.Text109(15)", "In.", true},
        {"Form1.Text110(5)", "9.0", false},
        {"Form1.Text112(6)", "4.00", false},
        {"Form1.Text112(14)", "CD", true},
        {"Form1.Text114(8)", "Bore Exh", true},
        {"Form1.Text115(12)", "fps", true},
        {"Form1.Text201(5)", "Seat Width", true},
        {"Form1.Text202(14)", "Valve", true},
        {"Form1.Text204(5)", "0.065", false},
        {"Form1.text205(15)", "CD In.", true},
        {"Form1.Text207(14)", "Swirl", true},
        {"Form1.Text207(13)", "", true},
        {"Form1.Text209(13)", "L / D", true},
        {"Form1.Text211(15)", "Exhaust", true},
        {"Form1.Text207(20)", "1525", false},
        {"Form1.Text107(21)", "136.6", false},
        {"Form1.Text106(22)", "193.5", false},
        {"Form1.Text102(2)", "2.306", true},
        {"Form1.Text106(4)", "Intake", true},
        {"Main.Text101(8)", "10.5", false},
        {"Main.Text101(6)", "Enter CR", true},
        {"Main.Text111(0)", "Number", true},
        {"Main.Text111(3)", "8", false},
        {"Main.Text105(9)", "Port Area", true},
        {"Main.Text33", "Name of Test being Calculated", false},
        {"Main.Text38", "C O M M E N T S", false},
        {"Main.Text1(4)", "No", false},
    };
    Test_Bench bench;
    for (const Case& c : cases) {
        const Control& cell = bench.At(c.cell);
        EXPECT_EQ(cell.Text(), c.text) << c.cell;
        EXPECT_EQ(cell.Present_Look().locked, c.locked) << c.cell;
        EXPECT_EQ(cell.Present_Look().tab_stop, !c.locked) << c.cell;
    }
    EXPECT_EQ(bench.session.Form60().Combo1.Items().size(), 19U);
    EXPECT_EQ(bench.session.Form60().Combo1.Items().back(), "40");
    for (const auto& [option, set] :
         {std::pair("Form50.Option1(0)", 1), std::pair("Form50.Option2(1)", 1),
          std::pair("Form50.Option3(0)", 1), std::pair("Form50.Option4(0)", 1),
          std::pair("Form50.Option4(1)", 0), std::pair("Main.Option4(0)", 1)}) {
        EXPECT_EQ(bench.At(option).Value(), set) << option;
    }
}

TEST(Screens, Hand_Out_Each_Change_Once) {
    Test_Bench bench;
    Screen& sheet = bench.session.Sheet(1);
    static_cast<void>(sheet.Take_Changes());
    bench.Click("Form1.Command1");
    EXPECT_TRUE(sheet.Take_Changes().empty())
        << "a calculation that changes nothing paints nothing";
    bench.Set("Form1.Text106(20)", "146");
    bench.Set("Form1.Text106(20)", "147");
    EXPECT_EQ(sheet.Take_Changes(), std::vector{&bench.At("Form1.Text106(20)")});
    EXPECT_TRUE(sheet.Take_Changes().empty());
}

TEST(Screens, A_Sheet_That_Comes_Later_Looks_Like_The_Others) {
    Test_Bench bench;
    static_cast<void>(bench.Close("Form2"));
    for (const int number : {1, 3, 4, 5}) {
        Flow_Sheet& sheet = bench.session.Sheet(number);
        Look look = sheet.Text106(17).Present_Look();
        look.font = {.name = "Courier", .size = 10, .bold = true};
        sheet.Text106(17).Set_Look(look);
    }
    bench.session.numbers.align_mode = Alignment::Center;
    bench.session.settings.plain_pointer = true;
    ASSERT_FALSE(bench.session.Is_Loaded("Form2"));
    const Look& later = bench.session.Sheet(2).Text106(17).Present_Look();
    EXPECT_EQ(later.font.name, "Courier");
    EXPECT_EQ(later.font.size, 10);
    EXPECT_TRUE(later.font.bold);
    EXPECT_EQ(later.alignment, Alignment::Center);
    EXPECT_TRUE(bench.session.Sheet(2).plain_pointer);
}

TEST(Screens, The_Alignment_Reaches_Captions_Inputs_And_Results) {
    Test_Bench bench;
    bench.session.numbers.align_mode = Alignment::Right;
    Apply_Alignment(bench.session);
    for (const char* const address : {"Form1.Text101(6)", "Form1.Text106(17)", "Form1.Text103(17)",
                                      "Form1.Text38", "Main.Text33", "Main.Text101(0)"}) {
        EXPECT_EQ(bench.At(address).Present_Look().alignment, Alignment::Right) << address;
    }
    EXPECT_EQ(bench.At("Form50.Text71").Present_Look().alignment, Alignment::Left);
}

} // namespace

} // namespace kestrum
