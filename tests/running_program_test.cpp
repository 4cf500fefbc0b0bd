#include "platform/running_program.h"
#include "tests/temp_folder.h"

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <filesystem>
#include <future>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kestrum {

namespace {

namespace fs = std::filesystem;
using std::chrono::milliseconds;
using std::chrono::seconds;

bool Is_Called(const Running_Program& running) {
    pollfd waiting{.fd = running.Handle(), .events = POLLIN, .revents = 0};
    return ::poll(&waiting, 1, 10'000) == 1;
}

/// Bytes from a caller who may not be one of ours.
void Call_With(const std::string& place, std::string_view bytes) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    place.copy(static_cast<char*>(address.sun_path), place.size());
    const int caller = ::socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_EQ(::connect(caller, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    ASSERT_EQ(::send(caller, bytes.data(), bytes.size(), MSG_NOSIGNAL),
              static_cast<ssize_t>(bytes.size()));
    ::close(caller);
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
    Running_Program running;
    ASSERT_TRUE(running.Take(folder.File("place")));
    EXPECT_FALSE(Tell_Running_Program(folder.File("place"), Words{"x"}, milliseconds(50)));
    running.Leave();
    EXPECT_EQ(folder.Names(), std::vector<std::string>{}) << "an end leaves nothing behind";
    EXPECT_FALSE(Tell_Running_Program(folder.File("place"), Words{"x"}, milliseconds(50)));
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

TEST(Running_Program, That_Was_Killed_Is_In_Nobodys_Way) {
    const Temp_Folder folder;
    const std::string place = folder.File("place");
    const pid_t child = ::fork();
    if (child == 0) {
        Running_Program killed;
        static_cast<void>(killed.Take(place));
        ::kill(::getpid(), SIGKILL);
    }
    ::waitpid(child, nullptr, 0);
    ASSERT_TRUE(fs::exists(place)) << "the crash has left its socket";
    Running_Program next;
    EXPECT_TRUE(next.Take(place));
    EXPECT_GE(next.Handle(), 0);
}

TEST(Meeting, Is_In_No_Folder_That_Others_Can_Enter) {
    const Temp_Folder folder;
    const std::string runtime = folder.File("runtime");
    fs::create_directory(runtime);
    fs::permissions(runtime, fs::perms::owner_all);
    EXPECT_EQ(Meeting_Folder(runtime, folder.Path()), runtime + "/kestrum");
    fs::permissions(runtime, fs::perms::group_exec, fs::perm_options::add);
    const std::string own = Meeting_Folder(runtime, folder.Path());
    EXPECT_TRUE(own.starts_with(folder.File("kestrum-"))) << own;
    EXPECT_EQ(Meeting_Folder("", folder.Path()), own);
    fs::remove_all(own);
    fs::create_directory_symlink(runtime, own); // laid there by somebody else
    EXPECT_EQ(Meeting_Folder("", folder.Path()), "");
    EXPECT_EQ(Meeting_Folder("", folder.File("none")), "");
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
