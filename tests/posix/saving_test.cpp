#include "files/flow_data_file.h"
#include "platform/file_store.h"
#include "platform/passing_file.h"
#include "tests/test_bench.h"

#include <gtest/gtest.h>

#include <algorithm>
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

const std::string flow_data_not_saved = "exclamation box: Flow Data File has NOT been Saved";

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
                   bench.Click("Form1.Save_Data") ==
                       Events{"chooser to save", flow_data_not_saved} &&
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
        return bench.Click("Form1.Save_Data") == Events{"chooser to save", flow_data_not_saved};
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
        EXPECT_EQ(bench.Click("Form1.Save_Data"), (Events{"chooser to save", flow_data_not_saved}))
            << target;
    }
    EXPECT_EQ(bench.folder.Names(), Events{"folder"});
    EXPECT_TRUE(fs::is_empty(bench.folder.File("folder")));
}

TEST(Saving, Keeps_Rights_Links_And_Neighbours) {
    const Temp_Folder folder;
    const std::string path = folder.Write("head.dat", "old");
    ::chmod(path.c_str(), 0640);
    fs::create_symlink("head.dat", folder.File("link.dat"));
    folder.Write("head.dat.kestrum-save", "a file of the user");
    Write_Whole_File(folder.File("link.dat"), "content");
    EXPECT_TRUE(fs::is_symlink(folder.File("link.dat")));
    EXPECT_EQ(folder.Read("head.dat"), "content");
    EXPECT_EQ(fs::status(path).permissions(), fs::perms{0640});
    EXPECT_EQ(folder.Read("head.dat.kestrum-save"), "a file of the user");
    EXPECT_EQ(folder.Names(), (Events{"head.dat", "head.dat.kestrum-save", "link.dat"}));
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
    EXPECT_EQ(folder.Names(), Events{"head.dat"}) << "what the killed ones left is gone";
}

/// What nobody else may look into yet must be closed to all others.
bool Passing_Files_Are_Private(const Temp_Folder& folder) {
    const Events names = folder.Names();
    return std::ranges::all_of(names, [&folder](const std::string& name) {
        struct stat facts {};

        constexpr mode_t others = 077;
        return ::lstat(folder.File(name).c_str(), &facts) != 0 || (facts.st_mode & others) == 0;
    });
}

TEST(Saving, Two_Programs_Neither_Refuse_Nor_Tear_Each_Other) {
    const Temp_Folder folder;
    const std::array versions{std::string(90000, 'a'), std::string(50000, 'b')};
    const std::string path = folder.Write("head.dat", versions[0]);
    ::chmod(path.c_str(), 0600);
    std::array<pid_t, 2> savers{};
    for (std::size_t at = 0; at < savers.size(); ++at) {
        savers.at(at) = ::fork();
        if (savers.at(at) == 0) {
            int refused = 0;
            for (int save = 0; save < 300; ++save) {
                refused += Error_Of([&] { Write_Whole_File(path, versions.at(at)); }) != 0 ? 1 : 0;
            }
            ::_exit(refused == 0 ? 0 : 1);
        }
    }
    int running = 2;
    int reads = 0;
    while (running > 0) {
        const std::string found = Read_Whole_File(path);
        ASSERT_TRUE(found == versions[0] || found == versions[1]) << found.size();
        EXPECT_TRUE(Passing_Files_Are_Private(folder));
        ++reads;
        int status = 0;
        if (::waitpid(savers.at(static_cast<std::size_t>(running - 1)), &status, WNOHANG) > 0) {
            EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "a save was refused";
            --running;
        }
    }
    EXPECT_GT(reads, 20);
    EXPECT_EQ(folder.Names(), Events{"head.dat"});
}

TEST(Saving, Removes_Only_What_A_Dead_Program_Left) {
    const Temp_Folder folder;
    constexpr pid_t no_process = 0x7FFFFFF0; // above what systems give
    const std::string own = Passing_Name("head.dat", 0);
    const std::string system = own.substr(own.rfind('-', own.size() - 3) + 1); // and "-0"
    std::string dead = own;
    const std::size_t process = own.find(".kestrum-") + 9;
    dead.replace(process, own.find('-', process) - process, "7ffffff0");
    ASSERT_NE(::kill(no_process, 0), 0);
    std::string earlier = own; // the same process number, taken by a later program
    earlier.insert(own.find('-', process) + 1, "1");
    const std::string foreign = ".head.dat.kestrum-1-1-abcdef0123456789-0";
    const std::string old_foreign = ".head.dat.kestrum-1-1-abcdef0123456789-1";
    const Events kept{own,
                      foreign,
                      dead.substr(1),
                      ".notes.kestrum-7ffffff0-1",
                      dead + "x",
                      ".head.dat.kestrum-7ffffff0-1-" + system.substr(0, 8),
                      "head.dat.kestrum-old-7ffffff0-1-" + system};
    for (const std::string& name : kept) {
        folder.Write(name, "stays");
    }
    for (const std::string& name : {dead, earlier, old_foreign}) {
        folder.Write(name, "goes");
    }
    const fs::path linked = folder.File(".link" + dead.substr(5));
    fs::create_symlink("nowhere", linked);
    fs::last_write_time(folder.File(old_foreign),
                        fs::file_time_type::clock::now() - std::chrono::hours(25));
    Write_Whole_File(folder.File("head.dat"), "new");
    Events expected = kept;
    expected.insert(expected.end(), {linked.filename().string(), "head.dat"});
    std::ranges::sort(expected);
    EXPECT_EQ(folder.Names(), expected);
}

TEST(Saving, A_Link_Stays_And_What_It_Names_Is_Made) {
    const Temp_Folder folder;
    fs::create_directory(folder.File("sub"));
    fs::create_symlink("sub/second.dat", folder.File("first.dat"));
    fs::create_symlink("../third.dat", folder.File("sub/second.dat"));
    Write_Whole_File(folder.File("first.dat"), "made");
    Write_Whole_File(folder.File("first.dat"), "made again");
    EXPECT_EQ(folder.Read("third.dat"), "made again");
    EXPECT_FALSE(fs::is_symlink(folder.File("third.dat")));
    fs::create_symlink("round.dat", folder.File("about.dat"));
    fs::create_symlink("about.dat", folder.File("round.dat"));
    EXPECT_EQ(Error_Of([&] { Write_Whole_File(folder.File("round.dat"), "x"); }), 75);
    fs::create_symlink("gone/head.dat", folder.File("lost.dat"));
    EXPECT_EQ(Error_Of([&] { Write_Whole_File(folder.File("lost.dat"), "x"); }), 76);
    EXPECT_EQ(folder.Names(),
              (Events{"about.dat", "first.dat", "lost.dat", "round.dat", "sub", "third.dat"}));
    EXPECT_TRUE(fs::is_symlink(folder.File("first.dat")));
    EXPECT_TRUE(fs::is_symlink(folder.File("sub/second.dat")));
}

TEST(Saving, A_File_Of_Two_Names_Keeps_Both) {
    const Temp_Folder folder;
    const std::string old(3000, 'o');
    const std::string path = folder.Write("head.dat", old);
    fs::create_hard_link(path, folder.File("other.dat"));
    EXPECT_TRUE(Holds_In_Child([&] {
        Limit_File_Size(4000);
        return Error_Of([&] { Write_Whole_File(path, std::string(5000, 'x')); }) == 61;
    }));
    EXPECT_EQ(folder.Read("other.dat"), old) << "put back behind the failure";
    Write_Whole_File(path, std::string(5000, 'n'));
    EXPECT_EQ(folder.Read("other.dat"), std::string(5000, 'n'));
    Write_Whole_File(folder.File("other.dat"), "short");
    EXPECT_EQ(folder.Read("head.dat"), "short");
    EXPECT_EQ(fs::hard_link_count(path), 2U);
    EXPECT_EQ(folder.Names(), (Events{"head.dat", "other.dat"}));
}

TEST(Saving, Gives_The_Rights_That_The_User_May_Give) {
    const Temp_Folder folder;
    const auto rights = [&folder](std::string_view name) {
        return fs::status(folder.File(name)).permissions();
    };
    EXPECT_TRUE(Holds_In_Child([&] {
        ::umask(026);
        Write_Whole_File(folder.File("new.dat"), "x");
        return true;
    }));
    EXPECT_EQ(rights("new.dat"), fs::perms{0640});
    if (::geteuid() != 0) {
        return; // the rest needs files of two users
    }
    constexpr uid_t somebody = 12345;
    const std::string path = folder.Write("head.dat", "old");
    ASSERT_EQ(::chown(path.c_str(), somebody, somebody), 0);
    ::chmod(path.c_str(), 06766);
    Write_Whole_File(path, "by root");

    struct stat facts {};

    ASSERT_EQ(::stat(path.c_str(), &facts), 0);
    EXPECT_EQ(facts.st_uid, somebody);
    EXPECT_EQ(facts.st_gid, somebody);
    EXPECT_EQ(rights("head.dat"), fs::perms{06766});
    ::chmod(path.c_str(), 06742 | 06); // others may write, the group may only read
    ::chmod(folder.Path().c_str(), 0777);
    EXPECT_TRUE(Holds_In_Child([&] {
        Become_Nobody();
        Write_Whole_File(path, "by nobody");
        return true;
    }));
    EXPECT_EQ(folder.Read("head.dat"), "by nobody");
    EXPECT_EQ(rights("head.dat"), fs::perms{0766}) << "no set-id bits, another group";
}

TEST(Saving, Takes_Names_Of_Any_Length_And_Texts_Up_To_The_Limit) {
    const Temp_Folder folder;
    std::string longest(251, 'x');
    for (std::size_t at = 1; at + 2 < longest.size(); at += 2) {
        longest.replace(at, 2, "\xC3\xA4"); // a letter of two bytes
    }
    longest += ".dat";
    Write_Whole_File(folder.File(longest), "content");
    EXPECT_EQ(folder.Names(), Events{longest});
    const std::string path = folder.Write("head.dat", "old");
    const std::string text(16777216, 'x');
    EXPECT_EQ(Error_Of([&] { Write_Whole_File(path, text + "x"); }), 75);
    EXPECT_EQ(folder.Read("head.dat"), "old");
    Write_Whole_File(path, text);
    EXPECT_EQ(Read_Whole_File(path).size(), 16777216U);
    Replace_File(path, text + "x"); // a picture
    EXPECT_EQ(fs::file_size(path), 16777217U);
    EXPECT_EQ(Error_Of([&] { (void)Read_Whole_File(path); }), 75);
}

TEST(Reading, Tells_Why_A_File_Cannot_Be_Had) {
    const Temp_Folder folder;
    const std::string path = folder.Write("head.dat", "content");
    EXPECT_EQ(Read_Whole_File(path), "content");
    EXPECT_EQ(Error_Of([&] { (void)Read_Whole_File(folder.File("none.dat")); }), 53);
    EXPECT_EQ(Error_Of([&] { (void)Read_Whole_File(path + "/x"); }), 76);
    ASSERT_EQ(::mkfifo(folder.File("pipe.dat").c_str(), 0600), 0);
    for (const std::string& none :
         {folder.Path(), folder.File("pipe.dat"), std::string("/dev/zero")}) {
        EXPECT_EQ(Error_Of([&] { (void)Read_Whole_File(none); }), 75) << none;
    }
    // What tells no size is read to the cap and no further.
    EXPECT_FALSE(Read_Whole_File("/proc/self/stat").empty());
    ::chmod(folder.Path().c_str(), 0755);
    ::chmod(path.c_str(), 0);
    EXPECT_TRUE(Holds_In_Child([&] {
        Become_Nobody();
        return Error_Of([&] { (void)Read_Whole_File(path); }) == 70;
    }));
}

} // namespace

} // namespace kestrum
