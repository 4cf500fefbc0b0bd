#include "application/events.h"
#include "application/start_up.h"
#include "cli/script_runner.h"
#include "files/rescue.h"
#include "platform/file_store.h"
#include "tests/slow_disk.h"
#include "tests/test_bench.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <filesystem>
#include <optional>
#include <sstream>

namespace kestrum {

namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

Surroundings Around(const Temp_Folder& folder) {
    Surroundings around;
    around.folder = folder.Path();
    around.version = "5.0.0";
    return around;
}

/// One run of the program in a folder that may have seen others; it ends as by a power cut.
struct Program_Run {
    explicit Program_Run(const Temp_Folder& folder) : session(platform, platform, Around(folder)) {
        Start_Up(session);
        static_cast<void>(platform.Take_Events());
        rescue.emplace(session);
    }

    Events Offer(std::optional<Box_Answer> answer = std::nullopt) {
        if (answer) {
            platform.Answer(*answer);
        }
        rescue->Offer();
        rescue->Flush(10s);
        return platform.Take_Events();
    }

    /// A command that puts a text into a field.
    void Set(int sheet, std::string_view part) {
        session.Sheet(sheet).Text102(0).Set_Text(part);
        rescue->Keep();
        EXPECT_TRUE(rescue->Flush(10s));
    }

    [[nodiscard]] std::string Part(int sheet) { return session.Sheet(sheet).Text102(0).Text(); }

    Events Exit() {
        Exit_Program(session);
        rescue->Finish(session.exit_saved.value());
        return platform.Take_Events();
    }

    Scripted_Platform platform;
    Session session;
    std::optional<Rescue> rescue;
};

std::vector<std::string> Names_In(const Temp_Folder& folder, std::string_view name) {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder.File(name))) {
        names.push_back(entry.path().filename().string());
    }
    std::ranges::sort(names);
    return names;
}

bool Holds(const Temp_Folder& folder, std::string_view name, std::string_view text) {
    return folder.Read(name).find(text) != std::string::npos;
}

/// What a run that was cut off leaves of one sheet.
void Leave_Copy(const Temp_Folder& folder, int sheet, std::string_view part) {
    Program_Run run(folder);
    static_cast<void>(run.Offer());
    run.Set(sheet, part);
}

void Set_Moment(const Temp_Folder& folder, std::string_view name, int minutes_ago) {
    fs::last_write_time(folder.File(name),
                        fs::file_time_type::clock::now() - std::chrono::minutes(minutes_ago));
}

/// Runs a script with rescue copies in this process. Gives its status.
int Run_With_Rescue(const Temp_Folder& folder, const std::string& script) {
    std::ostringstream out;
    std::istringstream in(script);
    return cli::Script_Runner(Around(folder), out, true).Run(in, "cannot read the script");
}

const std::vector<std::string> all_unloaded{
    "hide Main",    "unload Main",  "unload Form1",  "unload Form2",  "unload Form3",
    "unload Form4", "unload Form5", "unload Form50", "unload Form60", "unload Form70"};

TEST(Rescue, A_Cut_Off_Run_Is_Offered_And_Loaded) {
    const Temp_Folder folder;
    Leave_Copy(folder, 3, "Iron head");
    EXPECT_EQ(Names_In(folder, "rescue"), (Events{"Form3.dat", "in-use", "point", "units"}));
    Program_Run run(folder);
    const Events offer = run.Offer(Box_Answer::Yes);
    ASSERT_EQ(offer.size(), 1U);
    EXPECT_NE(offer[0].find("\r\n\r\nFlow Test 3 (Iron head) -- 2"), std::string::npos) << offer[0];
    EXPECT_EQ(run.Part(3), "Iron head");
    EXPECT_TRUE(Holds(folder, "rescue/Form3.dat", "Iron head")) << "safe until the exit";
}

TEST(Rescue, The_Exit_Removes_Only_What_The_Program_Wrote) {
    const Temp_Folder folder;
    fs::create_directories(folder.File("rescue/mine"));
    folder.Write("rescue/notes.txt", "a file of the user");
    Program_Run run(folder);
    run.Set(1, "Iron head");
    run.Exit();
    EXPECT_EQ(Names_In(folder, "rescue"), (Events{"mine", "notes.txt"}));
    fs::remove_all(folder.File("rescue"));
    Program_Run alone(folder);
    alone.Set(1, "Iron head");
    alone.Exit();
    EXPECT_EQ(folder.Names(), Events{"zxqw1234.sav"});
}

TEST(Rescue, An_Exit_That_Could_Not_Save_Leaves_The_Copies) {
    const Temp_Folder folder;
    Program_Run run(folder);
    run.Set(1, "Iron head");
    fs::create_directory(folder.File("zxqw1234.sav"));
    run.session.Main().Text104(3).Set_Text("4.5"); // not handed to the disk yet
    run.rescue->Note();
    Events expected(2, "plain box: MAIN Data File has NOT been Saved");
    expected.insert(expected.end(), all_unloaded.begin(), all_unloaded.end());
    EXPECT_EQ(run.Exit(), expected);
    EXPECT_TRUE(Holds(folder, "rescue/Form1.dat", "Iron head"));
    EXPECT_TRUE(Holds(folder, "rescue/Main.dta", "Text104_3 = 4.5\r\n"));
}

TEST(Rescue, A_Folder_That_Has_Gone_Is_No_Word_Worth_At_The_Exit) {
    const Temp_Folder folder;
    Test_Bench bench;
    fs::remove_all(bench.folder.Path());
    EXPECT_EQ(bench.Click("Main.Exit"), all_unloaded);
    EXPECT_EQ(bench.session.exit_saved, false);
}

TEST(Rescue, A_Failing_Command_Leaves_The_State_Before_It) {
    const Temp_Folder folder;
    // The sheets before the bad cell are in millimetres when the switch of the units fails.
    EXPECT_EQ(Run_With_Rescue(folder, "set Form1.Text102(0) Iron head\n"
                                      "set Form4.Text102(8) none\n"
                                      "click Main.Check2\n"),
              1);
    EXPECT_TRUE(Holds(folder, "rescue/Form1.dat", "Text102_0 = Iron head\r\n"));
    EXPECT_TRUE(Holds(folder, "rescue/Form1.dat", "Text102_8 = 5.37\r\n"));
    EXPECT_EQ(folder.Read("rescue/units"), "US");
    EXPECT_EQ(Names_In(folder, "rescue"),
              (Events{"Form1.dat", "Form4.dat", "in-use", "point", "units"}));
}

TEST(Rescue, Only_What_Was_Noted_Is_Written) {
    const Temp_Folder folder;
    Program_Run run(folder);
    run.Set(1, "Before");
    run.session.Sheet(1).Text102(0).Set_Text("in the middle of a command");
    run.rescue->Write();
    EXPECT_TRUE(run.rescue->Flush(10s));
    EXPECT_TRUE(Holds(folder, "rescue/Form1.dat", "Before"));
}

TEST(Rescue, Declined_And_Unreadable_Copies_Keep_Names_Of_Their_Own) {
    const Temp_Folder folder;
    for (const char* const part : {"First", "Second"}) {
        Leave_Copy(folder, 3, part);
        Program_Run run(folder);
        EXPECT_EQ(run.Offer(Box_Answer::No).size(), 1U);
        EXPECT_EQ(run.Part(3), "E7TE");
    }
    folder.Write("rescue/Form3.dat", "Text102_0 = Third\r\nText102_8=5.37\r\n");
    folder.Write("rescue/Form4.dat", std::string(20, '\0'));
    Program_Run run(folder);
    const Events events = run.Offer(Box_Answer::Yes);
    ASSERT_EQ(events.size(), 3U);
    EXPECT_EQ(events[1], "exclamation box: This copy could not be read: " +
                             folder.File("rescue-declined/Form3-3.dat"));
    EXPECT_EQ(events[2], "exclamation box: This copy could not be read: " +
                             folder.File("rescue-declined/Form4.dat"));
    run.Set(3, "Fourth");
    EXPECT_TRUE(Holds(folder, "rescue-declined/Form3.dat", "First"));
    EXPECT_TRUE(Holds(folder, "rescue-declined/Form3-2.dat", "Second"));
    EXPECT_TRUE(Holds(folder, "rescue-declined/Form3-3.dat", "Third"));
    EXPECT_EQ(folder.Read("rescue-declined/Form4.dat").size(), 20U);
}

TEST(Rescue, What_Cannot_Be_Declined_Elsewhere_Stays_Beside) {
    const Temp_Folder folder;
    folder.Write("rescue-declined", "a file of the user");
    Leave_Copy(folder, 3, "Iron head");
    Program_Run run(folder);
    EXPECT_EQ(run.Offer(Box_Answer::No).size(), 1U);
    run.Set(3, "Other");
    run.Exit();
    EXPECT_EQ(Names_In(folder, "rescue"), Events{"Form3-2.dat"});
}

TEST(Rescue, The_Work_Of_Several_Programs_Is_Offered_At_Once) {
    const Temp_Folder folder;
    {
        Program_Run first(folder);
        Leave_Copy(folder, 2, "Of the second");
        first.Set(1, "Of the first");
        static_cast<void>(first.Exit());
    }
    folder.Write("zxqw1234.sav", ""); // each start begins with the sample texts
    fs::create_directory(folder.File("rescue-5"));
    folder.Write("rescue-5/Form2.dat", "Text102_0 = Of the fifth\r\n");
    Set_Moment(folder, "rescue-5/Form2.dat", 60);
    Lock_File other;
    fs::create_directory(folder.File("rescue-6"));
    folder.Write("rescue-6/Form2.dat", "Text102_0 = Of one that runs\r\n");
    ASSERT_TRUE(other.Take(folder.File("rescue-6/in-use")));
    Program_Run run(folder);
    const Events offer = run.Offer(Box_Answer::Yes);
    ASSERT_EQ(offer.size(), 1U);
    const std::size_t newer = offer[0].find("\r\nFlow Test 2 (Of the second) -- 2");
    EXPECT_LT(newer, offer[0].find("\r\nFlow Test 2 (Of the fifth) -- 2")) << offer[0];
    EXPECT_NE(offer[0].find("(Of the fifth)"), std::string::npos);
    EXPECT_EQ(offer[0].find("runs"), std::string::npos);
    EXPECT_EQ(run.Part(2), "Of the second");
    EXPECT_TRUE(Holds(folder, "rescue-declined/Form2.dat", "Of the fifth"));
    EXPECT_TRUE(Holds(folder, "rescue/Form2.dat", "Of the second"));
    EXPECT_EQ(folder.Names(), (Events{"rescue", "rescue-6", "rescue-declined", "zxqw1234.sav"}));
}

TEST(Rescue, A_Sheet_In_Other_Units_Is_Not_Loaded) {
    const Temp_Folder folder;
    Leave_Copy(folder, 2, "In inches");
    folder.Write("rescue/units", "metric");
    Program_Run run(folder);
    const Events events = run.Offer(Box_Answer::Yes);
    ASSERT_EQ(events.size(), 2U);
    EXPECT_EQ(events[1], "exclamation box: This copy is in other units than the rest and was not "
                         "loaded: " +
                             folder.File("rescue-declined/Form2.dat"));
    EXPECT_EQ(run.Part(2), "E7TE");
}

TEST(Rescue, A_Killed_Writing_Leaves_All_Or_Nothing) {
    const Temp_Folder folder;
    fs::create_directory(folder.File("rescue"));
    folder.Write("rescue/Main.dta", "old");
    folder.Write("rescue/Main.dta.new", "new");
    folder.Write("rescue/Form1.dat.new", "new");
    Complete_Rescue_Set(folder.File("rescue"));
    EXPECT_EQ(Names_In(folder, "rescue"), Events{"Main.dta"});
    EXPECT_EQ(folder.Read("rescue/Main.dta"), "old");
    folder.Write("rescue/Form1.dat.new", "new"); // that of Main has its name already
    folder.Write("rescue/decided", "");
    Complete_Rescue_Set(folder.File("rescue"));
    EXPECT_EQ(Names_In(folder, "rescue"), (Events{"Form1.dat", "Main.dta"}));
}

TEST(Rescue, A_Removed_Folder_Is_Made_Again_With_All_Copies) {
    const Temp_Folder folder;
    Program_Run run(folder);
    run.Set(1, "One");
    fs::remove_all(folder.File("rescue"));
    run.Set(2, "Two");
    EXPECT_EQ(Names_In(folder, "rescue"),
              (Events{"Form1.dat", "Form2.dat", "in-use", "point", "units"}));
    const Rescue_Folder other(folder.Path(), 1);
    EXPECT_FALSE(Lock_File().Take(folder.File("rescue/in-use"))) << "and it is held again";
}

TEST(Rescue, The_Tenth_Program_Tells_Once_That_It_Keeps_No_Copies) {
    const Temp_Folder folder;
    std::vector<std::unique_ptr<Rescue_Folder>> others;
    for (int number = 1; number <= 9; ++number) {
        others.push_back(std::make_unique<Rescue_Folder>(folder.Path(), number));
        ASSERT_TRUE(others.back()->Take()) << number;
    }
    Program_Run run(folder);
    EXPECT_EQ(run.Offer(),
              Events{"exclamation box: No rescue copies can be kept: nine programs that run in "
                     "this folder keep theirs already, or it cannot be written. Save your work "
                     "yourself."});
    run.session.Sheet(1).Text102(0).Set_Text("Iron head");
    run.rescue->Keep();
    EXPECT_EQ(run.platform.Take_Events(), Events{});
    others[6]->Leave(); // a place that becomes free is taken
    run.rescue->Keep();
    EXPECT_TRUE(run.rescue->Flush(10s));
    EXPECT_TRUE(Holds(folder, "rescue-7/Form1.dat", "Iron head"));
}

TEST(Rescue, A_Slow_Disk_Holds_Nobody_Up) {
    const Temp_Folder folder;
    Program_Run run(folder);
    slow_disk_milliseconds = 300;
    const auto begin = std::chrono::steady_clock::now();
    for (const char* const part : {"1", "12", "123", "1234"}) {
        run.session.Sheet(1).Text102(0).Set_Text(part);
        run.rescue->Keep();
    }
    EXPECT_LT(std::chrono::steady_clock::now() - begin, 250ms);
    EXPECT_FALSE(run.rescue->Flush(1ms));
    EXPECT_TRUE(run.rescue->Flush(20s));
    slow_disk_milliseconds = 0;
    EXPECT_TRUE(Holds(folder, "rescue/Form1.dat", "Text102_0 = 1234\r\n"));
}

TEST(Rescue, One_Screen_That_Cannot_Be_Kept_Is_Told_And_Costs_No_Other) {
    const Temp_Folder folder;
    Program_Run run(folder);
    run.session.Sheet(1).Text38.Set_Text(std::string(std::size_t{17} * 1024 * 1024, 'z'));
    run.Set(2, "two");
    run.Set(3, "three");
    EXPECT_EQ(run.platform.Take_Events(),
              Events{"exclamation box: The comments are too long for a rescue copy, and for any "
                     "file: Flow Test 1"});
    EXPECT_TRUE(Holds(folder, "rescue/Form2.dat", "Text102_0 = two\r\n"));
    EXPECT_TRUE(Holds(folder, "rescue/Form3.dat", "Text102_0 = three\r\n"));
    EXPECT_FALSE(fs::exists(folder.File("rescue/Form1.dat")));
}

TEST(Rescue, Copies_That_Cannot_Be_Written_Are_Told_Once) {
    const Temp_Folder folder;
    Program_Run run(folder);
    fs::create_directories(folder.File("rescue/Form2.dat.new/in the way"));
    for (const char* const part : {"1", "12", "123"}) {
        run.session.Sheet(2).Text102(0).Set_Text(part);
        run.rescue->Keep();
        run.rescue->Flush(10s);
    }
    EXPECT_EQ(run.platform.Take_Events(),
              Events{"exclamation box: The rescue copies cannot be written; the disk may be full. "
                     "Save your work yourself."});
    const auto begun = std::chrono::steady_clock::now();
    run.rescue->Finish(false);
    run.rescue.reset();
    EXPECT_LT(std::chrono::steady_clock::now() - begun, 10s)
        << "nobody waits for what was given up";
}

TEST(Start_Up, Keeps_Each_Session_File_That_Cannot_Be_Read_To_Its_End) {
    const Temp_Folder folder;
    const std::string bad = "Text104_3 = 4.5\r\nText104_x = 1\r\n";
    for (int start = 0; start < 2; ++start) {
        folder.Write("zxqw1234.sav", bad);
        Program_Run(folder).Exit();
        EXPECT_EQ(folder.Read("zxqw1234.sav.bak"), bad);
        EXPECT_NE(folder.Read("zxqw1234.sav"), bad);
        EXPECT_FALSE(fs::exists(folder.File("zxqw1234.sav-2.bak"))) << "the same once more";
    }
    folder.Write("zxqw1234.sav", "Text104_y = 1\r\n");
    Program_Run(folder).Exit();
    EXPECT_EQ(folder.Read("zxqw1234.sav.bak"), "Text104_y = 1\r\n");
    EXPECT_EQ(folder.Read("zxqw1234.sav-2.bak"), bad);
    constexpr std::uintmax_t too_long = std::uintmax_t{1} << 30U; // takes no room on the disk
    fs::resize_file(folder.File("zxqw1234.sav"), too_long);
    fs::remove(folder.File("zxqw1234.sav.bak"));
    Program_Run(folder).Exit();
    EXPECT_EQ(fs::file_size(folder.File("zxqw1234.sav.bak")), too_long);
    EXPECT_LT(fs::file_size(folder.File("zxqw1234.sav")), 100000U);
}

} // namespace

} // namespace kestrum
