#include "platform/meeting_socket.h"
#include "platform/running_program.h"
#include "tests/temp_folder.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <future>

namespace kestrum {

namespace {

namespace fs = std::filesystem;
using std::chrono::milliseconds;
using std::chrono::seconds;

Deadline In(milliseconds time) {
    return std::chrono::steady_clock::now() + time;
}

bool Is_Called(const Running_Program& running) {
    return Waits_For(running.Handle(), Socket_Way::Read, In(seconds(10)));
}

/// Bytes from a caller who may not be one of ours.
void Call_With(const std::string& place, std::string_view bytes) {
    const int caller = Call_Place(place, In(seconds(10)));
    ASSERT_GE(caller, 0);
    ASSERT_EQ(Send_To(caller, bytes), static_cast<int>(bytes.size()));
    Close_Socket(caller);
}

TEST(Running_Program, Hears_What_A_Second_Start_Says) {
    const Temp_Folder folder;
    const std::string place = folder.File("place");
    Running_Program running;
    ASSERT_TRUE(running.Take(place));
    EXPECT_FALSE(Running_Program().Take(place));
    const Words words{"--", "/a b/head.dat", "/\xC3\xA4\n.dta", ""};
    auto second = std::async(std::launch::async,
                             [&] { return Tell_Running_Program(place, words, seconds(10)); });
    ASSERT_TRUE(Is_Called(running));
    EXPECT_EQ(running.Hear(), words);
    EXPECT_TRUE(second.get());
}

TEST(Running_Program, That_Hangs_Or_Ends_Does_Not_Hold_A_Second_Start) {
    const Temp_Folder folder;
    const std::string place =
        folder.File("meeting") + "/place"; // its folder has just been taken away
    Running_Program running;
    ASSERT_TRUE(running.Take(place));
    EXPECT_FALSE(Tell_Running_Program(place, Words{"x"}, milliseconds(50)));
    running.Leave();
    EXPECT_EQ(folder.Names(), std::vector<std::string>{}) << "an end leaves nothing behind";
    EXPECT_FALSE(Tell_Running_Program(place, Words{"x"}, milliseconds(50)));
}

TEST(Running_Program, Takes_No_Word_Of_A_Caller_That_Is_None_Of_Ours) {
    const Temp_Folder folder;
    Running_Program running;
    ASSERT_TRUE(running.Take(folder.File("place")));
    constexpr std::array<std::string_view, 5> calls{
        "", "x", {"x\0", 2}, {"kestrum 2\0x\0", 12}, {"kestrum 1\0no end", 16}};
    for (const std::string_view bytes : calls) {
        Call_With(folder.File("place"), bytes);
        ASSERT_TRUE(Is_Called(running));
        EXPECT_FALSE(running.Hear()) << bytes;
    }
}

TEST(Meeting, Leaves_No_Empty_Folder_Behind) {
    const Temp_Folder folder;
    const std::string own = Meeting_Folder("", folder.Path());
    Running_Program first;
    Running_Program second;
    ASSERT_TRUE(first.Take(own + "/a"));
    ASSERT_TRUE(second.Take(own + "/b"));
    first.Leave();
    EXPECT_TRUE(std::filesystem::exists(own)) << "another program is met there";
    second.Leave();
    EXPECT_EQ(folder.Names(), std::vector<std::string>{});
}

TEST(Meeting, Is_Of_One_Folder_On_One_Display) {
    const Temp_Folder folder;
    const std::string place = Meeting_Place("/m", folder.Path(), ":0");
    EXPECT_EQ(Meeting_Place(
                  "/m", folder.Path() + "/../" + fs::path(folder.Path()).filename().string(), ":0"),
              place);
    EXPECT_NE(Meeting_Place("/m", folder.Path(), ":1"), place);
    EXPECT_NE(Meeting_Place("/m", "/", ":0"), place);
    constexpr std::size_t short_enough = 20; // a long name would be no socket's
    EXPECT_LE(Meeting_Place("/m", folder.Path() + std::string(200, 'x'), ":0").size(),
              short_enough);
}

} // namespace

} // namespace kestrum
