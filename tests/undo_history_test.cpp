#include "application/events.h"
#include "application/new_test.h"
#include "application/undo_history.h"
#include "graph/graph_state.h"
#include "platform/file_store.h"
#include "tests/test_bench.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <functional>

namespace kestrum {

namespace {

/// All that can be seen on the screens but for what is open just now.
std::string Seen(Session& session) {
    std::string all;
    session.For_Each_Loaded([&all](Screen& screen) {
        if (screen.Kind() == Screen_Kind::Graph) {
            return;
        }
        all += "\n" + screen.Name() + (screen.Results_Are_Old() ? " old" : "");
        for (const Control& control : screen.Controls()) {
            const Control_State& state = control.Present_State();
            all += "|" + state.text + std::to_string(state.value) +
                   std::to_string(state.look.back_colour) + (state.look.locked ? "L" : "") +
                   (state.is_left ? "!" : "") +
                   std::to_string(static_cast<int>(state.look.alignment));
        }
    });
    return all;
}

/// Empty when the two are the same.
std::string First_Difference(const std::string& one, const std::string& other) {
    const auto [here, there] = std::ranges::mismatch(one, other);
    return here == one.end() && there == other.end()
               ? ""
               : std::string(here, here + std::min<std::ptrdiff_t>(40, one.end() - here)) +
                     " but " +
                     std::string(there, there + std::min<std::ptrdiff_t>(40, other.end() - there));
}

class Undo : public testing::Test {
protected:
    void Do(const std::string& name, const std::function<void()>& act) {
        history_.Begin();
        act();
        history_.End(name);
        static_cast<void>(bench_.Take_Events());
    }

    /// A closed screen takes no work.
    [[nodiscard]] bool Is_Open(std::string_view address) const {
        return bench_.session.Is_Loaded(address.substr(0, address.find('.')));
    }

    void Click(std::string_view address) {
        if (!Is_Open(address)) {
            return;
        }
        Control& control = bench_.At(address);
        const std::string words = Words_Of_Command(control);
        Do(words, [&] { kestrum::Click(bench_.session, control); });
    }

    void Type(std::string_view address, std::string_view text) {
        if (!Is_Open(address)) {
            return;
        }
        Control& field = bench_.At(address);
        for (std::size_t length = 1; length <= text.size(); ++length) {
            const Control_State before = field.Present_State();
            field.Set_Text(text.substr(0, length));
            history_.Typed(field, before, [&] { return "Typing in " + field.Address(); });
        }
        Do("", [&] { Leave(bench_.session, field); });
    }

    void Load(const std::string& path) {
        if (!Is_Open("Form1")) {
            return;
        }
        bench_.platform.Choose(path);
        Click("Form1.Load_Data");
    }

    void Import(const std::string& path) {
        if (Is_Open("Form1")) {
            bench_.platform.Choose(path);
            Click("Form1.Import_CSV");
        }
    }

    void Begin(New_Test kind) {
        if (Is_Open("Form1")) {
            Do("New Test", [&] { Begin_New_Test(bench_.session.Sheet(1), kind); });
        }
    }

    /// A block of two lifts and a flow.
    void Paste(const std::string& text) {
        if (Is_Open("Form1")) {
            const Flow_Sheet& sheet = bench_.session.Sheet(1);
            Do("Paste", [&] {
                Enter_Block(bench_.session, {{&sheet.Text101(18), text},
                                             {&sheet.Text101(19), text},
                                             {&sheet.Text106(19), text}});
            });
        }
    }

    Test_Bench bench_;
    Undo_History history_{bench_.session};
};

TEST_F(Undo, Random_Work_Comes_Back_To_The_Byte_And_Is_Done_Again) {
    const std::string file = bench_.folder.File("iron.dat");
    Write_Whole_File(file, "Text102_0 = Iron\r\nText104_1 = 80\r\nText103_20 = 95\r\n");
    const std::string table = bench_.folder.File("table.csv");
    Write_Whole_File(table, "Lift,Intake,Exhaust\r\n0.1,70,50\r\n0.2,130,100\r\n0.3,180,140\r\n");
    const std::vector<std::function<void(unsigned)>> acts{
        [&](unsigned n) { Type("Form1.Text101(20)", std::to_string(n % 900 + 1)); },
        [&](unsigned n) { Type("Form2.Text104(3)", "1." + std::to_string(n % 9 + 1)); },
        [&](unsigned n) { Type("Main.Text101(7)", std::to_string(n % 90 + 1)); },
        [&](unsigned) { Click("Form1.Command1"); },
        [&](unsigned) { Click("Form50.Command1"); },
        [&](unsigned n) { Click("Form50.Option3(" + std::to_string(n % 18) + ")"); },
        [&](unsigned) { Click("Form1.Sort"); },
        [&](unsigned n) { Begin(n % 2 == 0 ? New_Test::Empty : New_Test::From_This_Head); },
        [&](unsigned) { Import(table); },
        [&](unsigned n) { Paste(std::to_string(n % 800 + 1)); },
        [&](unsigned) { Click("Main.Check2"); },
        [&](unsigned) { Click("Main.Check1"); },
        [&](unsigned) { Click("Main.AligRight"); },
        [&](unsigned) { Click("Main.Grid_Dash"); },
        [&](unsigned) { Load(file); },
        [&](unsigned n) {
            Do("Close",
               [&] { Close_Window(bench_.session, bench_.session.Sheet(int(n % 5) + 1)); });
        },
        [&](unsigned n) {
            Do("Open", [&] { bench_.session.Show(bench_.session.Sheet(int(n % 5) + 1)); });
        }};
    std::vector<std::string> seen{Seen(bench_.session)};
    unsigned number = 7;
    for (int round = 0; round < 150; ++round) {
        number = number * 1103515245U + 12345U;
        acts[number / 65536 % acts.size()](number / 8 % 100000);
        const std::string now = Seen(bench_.session);
        if (now != seen.back()) {
            seen.push_back(now);
        }
    }
    ASSERT_GT(seen.size(), 100U);
    const auto present = [&] { return Seen(bench_.session); };
    std::size_t place = seen.size() - 1;
    // To and fro, further back each time, and forth to the end again.
    for (std::size_t back = 1; back < seen.size(); back = back * 3 + 1) {
        for (; place + back > seen.size() - 1 && place > 0; --place) {
            ASSERT_TRUE(history_.Undo());
            while (present() == seen[place]) {
                ASSERT_TRUE(history_.Undo()); // a step of the settings alone
            }
            ASSERT_EQ(First_Difference(present(), seen[place - 1]), "") << place;
        }
        for (std::size_t forth = 0; forth < back / 2; ++forth, ++place) {
            do {
                ASSERT_TRUE(history_.Redo());
            } while (present() == seen[place]);
            ASSERT_EQ(First_Difference(present(), seen[place + 1]), "") << place;
        }
    }
    while (history_.Redo()) {
    }
    EXPECT_EQ(First_Difference(present(), seen.back()), "");
    static_cast<void>(bench_.Take_Events());
}

TEST_F(Undo, Typing_Is_One_Step_With_What_Leaving_The_Field_Does) {
    const std::string before = Seen(bench_.session);
    Type("Form1.Text101(20)", "265");
    EXPECT_EQ(bench_.Get("Form1.Text108(20)"), "265") << "the second column of lifts";
    EXPECT_EQ(history_.Undo_Name(), "Typing in Form1.Text101(20)");
    ASSERT_TRUE(history_.Undo());
    EXPECT_EQ(First_Difference(Seen(bench_.session), before), "");
    EXPECT_FALSE(history_.Undo());
    Type("Form1.Text104(3)", "1.7");
    EXPECT_FALSE(history_.Redo_Name()) << "what was taken back is gone behind new work";
}

TEST_F(Undo, A_Load_Is_Named_After_Its_File_And_What_Only_Opens_Is_No_Step) {
    const std::string file = bench_.folder.File("e7te.dat");
    Write_Whole_File(file, "Text102_0 = Iron\r\n");
    Load(file);
    EXPECT_EQ(history_.Undo_Name(), "Load e7te.dat");
    Click("Main.Preload");
    EXPECT_EQ(history_.Undo_Name(), "Load e7te.dat");
    Do("Failed", [&] { history_.Give_Up(); });
    EXPECT_EQ(history_.Undo_Name(), "Load e7te.dat");
}

TEST_F(Undo, Lines_By_Hand_Come_Off_The_Graph_They_Were_Drawn_On) {
    Drawing& canvas = Graph_Of(bench_.session).canvas;
    Do("Graph", [&] { canvas.Line(0, 0, 9, 9, 0, 1); });
    const auto draw = [&](double x) {
        Do("Mouse", [&] { canvas.Line_By_Hand(x, 1, x, 1, 0, 3); });
        canvas.Line_By_Hand(x, 1, x, 2, 0, 3);
        canvas.Line_By_Hand(x, 2, x, 3, 0, 3);
        history_.End_Stroke();
    };
    draw(1);
    draw(2);
    ASSERT_EQ(canvas.Operations().size(), 7U);
    ASSERT_TRUE(history_.Undo());
    EXPECT_EQ(canvas.Operations().size(), 4U);
    ASSERT_TRUE(history_.Redo());
    ASSERT_EQ(canvas.Operations().size(), 7U);
    EXPECT_EQ(canvas.Operations().back().y2, 3);
    Do("Graph", [&] {
        canvas.Clear();
        canvas.Line(0, 0, 9, 9, 0, 1);
    });
    EXPECT_FALSE(history_.Undo_Name()) << "a new graph has none of the old lines";
}

TEST_F(Undo, A_Hundred_Switches_Of_The_Units_Stay_Small_And_Quick) {
    for (int step = 0; step < 100; ++step) {
        Click("Main.Check2");
    }
    const auto begin = std::chrono::steady_clock::now();
    int steps = 0;
    while (history_.Undo()) {
        ++steps;
    }
    const std::chrono::duration<double, std::milli> taken =
        std::chrono::steady_clock::now() - begin;
    EXPECT_EQ(steps, 100);
    EXPECT_LT(taken.count() / steps, 100) << "wanted below 5 ms in a release build";
}

} // namespace

} // namespace kestrum
