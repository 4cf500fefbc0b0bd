#include "platform/running_program.h"
#include "tests/temp_folder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <sys/wait.h>
#include <unistd.h>

// What a program that is killed leaves here, and whose a folder is.

namespace kestrum {

namespace {

namespace fs = std::filesystem;

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

TEST(Running_Program, That_Nobody_Can_Ever_Be_Is_Not_Waited_For) {
    const std::string too_long(200, 'x'); // for the name of a socket
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_FALSE(Tell_Running_Program("/" + too_long, Words{"x"}, std::chrono::seconds(5)));
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(500));
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

} // namespace

} // namespace kestrum
