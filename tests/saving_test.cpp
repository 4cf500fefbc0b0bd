#include "files/flow_data_file.h"
#include "platform/file_store.h"
#include "tests/test_bench.h"

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <random>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace kestrum {

namespace {

namespace fs = std::filesystem;

const std::string not_saved = "exclamation box: Flow Data File has NOT been Saved";

/// Runs a routine in a process of its own and gives whether it returned true.
template <typename Routine>
bool Holds_In_Child(Routine routine) {
    const pid_t child = ::fork();
    if (child == 0) {
        try {
            ::_exit(routine() ? 0 : 1);
        } catch (...) {
            ::_exit(2); // or the child would go on with the other tests
        }
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

/// As on a disk that is full behind so many bytes.
void Limit_File_Size(rlim_t bytes) {
    static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));

    const struct rlimit limit { bytes, bytes };

    ::setrlimit(RLIMIT_FSIZE, &limit);
}

/// Root may write everywhere; the tests of rights step down to nobody.
void Become_Nobody() {
    constexpr uid_t nobody = 65534;
    if (::geteuid() == 0) {
        static_cast<void>(::setgid(nobody) == 0 && ::setuid(nobody) == 0);
    }
}

TEST(Saving, A_Full_Disk_Leaves_The_Old_File_Whole) {
    Test_Bench bench;
    const std::string old = "Text102_0 = The last good save\r\n";
    const std::string path = bench.folder.Write("head.dat", old);
    for (const rlim_t bytes : {0U, 1U, 1024U, 2000U}) { // the whole has some 2,200
        EXPECT_TRUE(Holds_In_Child([&] {
            Limit_File_Size(bytes);
            bench.platform.Choose(path);
            return Error_Of([&] { Write_Whole_File(path, std::string(4000, 'x')); }) == 61 &&
                   bench.Click("Form1.Save_Data") == Events{"chooser to save", not_saved} &&
                   bench.Get("Form1.Text39").empty();
        })) << bytes;
        EXPECT_EQ(bench.folder.Read("head.dat"), old) << bytes;
        EXPECT_EQ(bench.folder.Names(), Events{"head.dat"}) << "no left-over at " << bytes;
    }
}

TEST(Saving, A_Folder_That_May_Not_Be_Written_Keeps_Its_File) {
    Test_Bench bench;
    const std::string path = bench.folder.Write("head.dat", "old");
    ::chmod(bench.folder.Path().c_str(), 0555);
    EXPECT_TRUE(Holds_In_Child([&] {
        Become_Nobody();
        bench.platform.Choose(path);
        return bench.Click("Form1.Save_Data") == Events{"chooser to save", not_saved};
    }));
    ::chmod(bench.folder.Path().c_str(), 0);
    EXPECT_TRUE(Holds_In_Child([&] { // a folder below one that may not be looked into
        Become_Nobody();
        return Error_Of([&] { Write_Whole_File(bench.folder.File("sub/head.dat"), "new"); }) != 0;
    }));
    ::chmod(bench.folder.Path().c_str(), 0777);
    ::chmod(path.c_str(), 0444); // a file that may not be written is not replaced either
    EXPECT_TRUE(Holds_In_Child([&] {
        Become_Nobody();
        return Error_Of([&] { Write_Whole_File(path, "new"); }) == 70;
    }));
    EXPECT_EQ(bench.folder.Read("head.dat"), "old");
    EXPECT_EQ(bench.folder.Names(), Events{"head.dat"});
}

TEST(Saving, Targets_That_Are_No_Files_Are_Refused) {
    Test_Bench bench;
    fs::create_directory(bench.folder.File("folder"));
    for (const std::string& target :
         {bench.folder.File("folder"), bench.folder.File("no/such/folder.dat"),
          std::string("/dev/null"), std::string(), bench.folder.File(std::string(300, 'x'))}) {
        bench.platform.Choose(target);
        EXPECT_EQ(bench.Click("Form1.Save_Data"), (Events{"chooser to save", not_saved})) << target;
    }
    EXPECT_EQ(bench.folder.Names(), Events{"folder"});
    EXPECT_TRUE(fs::is_empty(bench.folder.File("folder")));
}

TEST(Saving, Keeps_Rights_Links_And_Neighbours) {
    const Temp_Folder folder;
    const std::string path = folder.Write("head.dat", "old");
    ::chmod(path.c_str(), 0640);
    fs::create_symlink("head.dat", folder.File("link.dat"));
    folder.Write("head.dat.new", "a file of the user");
    Write_Whole_File(folder.File("link.dat"), "content");
    EXPECT_TRUE(fs::is_symlink(folder.File("link.dat")));
    EXPECT_EQ(folder.Read("head.dat"), "content");
    EXPECT_EQ(fs::status(path).permissions(), fs::perms{0640});
    EXPECT_EQ(folder.Read("head.dat.new"), "a file of the user");
    EXPECT_EQ(folder.Names(), (Events{"head.dat", "head.dat.new", "link.dat"}));
}

TEST(Saving, A_Killed_Program_Leaves_One_Whole_Version) {
    const Temp_Folder folder;
    // Long enough that a kill in the middle of a writing is likely.
    const std::array versions{std::string(1 << 20, 'a'), std::string(700000, 'b')};
    const std::string path = folder.Write("head.dat", versions[0]);
    std::minstd_rand moments(20260212);
    for (int round = 0; round < 40; ++round) {
        const pid_t child = ::fork();
        if (child == 0) {
            for (std::size_t save = 0;; ++save) {
                Write_Whole_File(path, versions.at(save % versions.size()));
            }
        }
        std::this_thread::sleep_for(std::chrono::microseconds(moments() % 15000));
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        const std::string found = folder.Read("head.dat");
        EXPECT_TRUE(found == versions[0] || found == versions[1]) << round << ": " << found.size();
    }
    Write_Whole_File(path, "and the next save goes well");
    EXPECT_EQ(folder.Read("head.dat"), "and the next save goes well");
}

TEST(Reading, Tells_Why_A_File_Cannot_Be_Had) {
    const Temp_Folder folder;
    const std::string path = folder.Write("head.dat", "content");
    EXPECT_EQ(Read_Whole_File(path), "content");
    EXPECT_EQ(Error_Of([&] { (void)Read_Whole_File(folder.File("none.dat")); }), 53);
    EXPECT_EQ(Error_Of([&] { (void)Read_Whole_File(path + "/x"); }), 76);
    EXPECT_EQ(Error_Of([&] { (void)Read_Whole_File(folder.Path()); }), 75);
    ::chmod(folder.Path().c_str(), 0755);
    ::chmod(path.c_str(), 0);
    EXPECT_TRUE(Holds_In_Child([&] {
        Become_Nobody();
        return Error_Of([&] { (void)Read_Whole_File(path); }) == 70;
    }));
}

} // namespace

} // namespace kestrum
