#include "base/run_time_error.h"
#include "platform/clock.h"
#include "platform/file_moves.h"
#include "platform/file_store.h"
#include "platform/folder_entries.h"
#include "platform/lock_file.h"
#include "platform/meeting_socket.h"
#include "platform/new_file.h"
#include "platform/passing_file.h"
#include "platform/running_program.h"
#include "tests/temp_folder.h"

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <filesystem>
#include <functional>
#include <future>
#include <thread>
#include <winsock2.h>
// Behind it, or it has its forerunner.
#include <windows.h>

// What a save and its neighbours do on Windows; on other systems posix/saving_test.cpp looks
// at the same.

namespace kestrum {

namespace {

namespace fs = std::filesystem;

int Error_Of(const std::function<void()>& routine) {
    try {
        routine();
        return 0;
    } catch (const Run_Time_Error& failure) {
        return failure.Number();
    }
}

TEST(Windows_Saving, A_Save_Takes_The_Place_Of_The_Old_File_And_Leaves_Nothing_Beside) {
    const Temp_Folder folder;
    const std::string path = folder.File("Zylinderköpfe äöü.dat");
    Write_Whole_File(path, "old");
    Write_Whole_File(path, "new, and longer");
    EXPECT_EQ(Read_Whole_File(path), "new, and longer");
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"Zylinderköpfe äöü.dat"});
    EXPECT_EQ(Bare_Name(path), "Zylinderköpfe äöü.dat");
}

TEST(Windows_Saving, What_Cannot_Be_Written_Has_Its_Number_And_Stays_Whole) {
    const Temp_Folder folder;
    const std::string path = folder.Write("head.dat", "old");
    fs::permissions(path, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
    EXPECT_EQ(Error_Of([&] { Write_Whole_File(path, "new"); }), 70);
    EXPECT_EQ(Read_Whole_File(path), "old");
    EXPECT_EQ(Error_Of([&] { Write_Whole_File(folder.File("none/head.dat"), "new"); }), 76);
    EXPECT_EQ(Error_Of([&] { Write_Whole_File(folder.Path(), "new"); }), 75);
    EXPECT_EQ(Error_Of([&] { static_cast<void>(Read_Whole_File(folder.Path())); }), 75);
    EXPECT_EQ(Error_Of([&] { static_cast<void>(Read_Whole_File(folder.File("none"))); }), 53);
    EXPECT_EQ(Error_Of([&] { static_cast<void>(Read_Whole_File(path + "/x")); }), 76);
    fs::permissions(path, fs::perms::all);
}

TEST(Windows_Saving, A_Hidden_File_Stays_Hidden) {
    const Temp_Folder folder;
    const std::string path = folder.Write("head.dat", "old");
    ASSERT_NE(::SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_HIDDEN), 0);
    Write_Whole_File(path, "new");
    EXPECT_EQ(folder.Read("head.dat"), "new");
    EXPECT_NE(::GetFileAttributesA(path.c_str()) & FILE_ATTRIBUTE_HIDDEN, 0U);
}

TEST(Windows_Saving, Two_Savers_Neither_Refuse_Nor_Tear_Each_Other) {
    const Temp_Folder folder;
    const std::array versions{std::string(90000, 'a'), std::string(50000, 'b')};
    const std::string path = folder.Write("head.dat", versions[0]);
    std::array<std::future<int>, 2> savers;
    for (std::size_t at = 0; at < savers.size(); ++at) {
        savers.at(at) = std::async(std::launch::async, [&, at] {
            int refused = 0;
            for (int save = 0; save < 50; ++save) {
                refused += Error_Of([&] { Write_Whole_File(path, versions.at(at)); }) != 0 ? 1 : 0;
            }
            return refused;
        });
    }
    for (int reads = 0; reads < 200; ++reads) {
        const std::string found = Read_Whole_File(path);
        ASSERT_TRUE(found == versions[0] || found == versions[1]) << found.size();
    }
    EXPECT_EQ(savers[0].get() + savers[1].get(), 0);
    EXPECT_EQ(folder.Names(), std::vector<std::string>{"head.dat"});
}

TEST(Windows_Saving, Names_That_The_System_Keeps_For_Itself_Are_Told) {
    const Temp_Folder folder;
    for (const char* const name : {"con.dat", "NUL", "com1.txt", "head.dat ", "head.", "a?b.dat",
                                   "head.dat:stream", "aux /x.dat"}) {
        EXPECT_EQ(Error_Of([&] { Write_Whole_File(folder.File(name), "new"); }), 75) << name;
        EXPECT_FALSE(File_Exists(folder.File(name))) << name;
    }
    for (const char* const name : {"console.dat", "com10.dat", ".head.dat", "a.b.dat"}) {
        EXPECT_EQ(Error_Of([&] { Write_Whole_File(folder.File(name), "new"); }), 0) << name;
    }
    EXPECT_EQ(folder.Names().size(), 4U);
    try {
        Write_Whole_File(folder.File("aux/con.dat"), "new");
        ADD_FAILURE();
    } catch (const Run_Time_Error& failure) {
        EXPECT_EQ(failure.Description(), "Windows takes no file of the name \"aux\"");
    }
}

TEST(Windows_Saving, Long_Names_Work_All_The_Way) {
    const Temp_Folder folder;
    std::string deep = folder.Path();
    for (int level = 0; level < 6; ++level) {
        deep = Join_Path(deep, std::string(60, static_cast<char>('a' + level)));
    }
    ASSERT_TRUE(Make_Folder(deep));
    const std::string path = Join_Path(deep, "head.dat");
    Write_Whole_File(path, "old");
    Write_Whole_File(path, "new");
    EXPECT_EQ(Read_Whole_File(path), "new");
    EXPECT_EQ(Names_In_Folder(deep), std::vector<std::string>{"head.dat"});
    std::vector<std::string> found;
    EXPECT_EQ(Look_Through_Folder(deep,
                                  [&](const Folder_Entry& entry) {
                                      found.push_back(entry.name);
                                      return true;
                                  }),
              "");
    EXPECT_EQ(found, std::vector<std::string>{"head.dat"});
    EXPECT_TRUE(Can_Be_Read(path));
    EXPECT_FALSE(Can_Be_Read(deep));
    EXPECT_EQ(Utc_Time_Of_File(path).size(), std::string("2026-11-22T21:15:00Z").size());
    for (; deep.size() > folder.Path().size(); deep = Folder_Of(deep)) {
        Remove_File(path); // the library's own way ends at 260 letters
        Remove_Empty_Folder(deep);
    }
}

TEST(Windows_Saving, A_File_Of_Two_Names_Keeps_Them) {
    const Temp_Folder folder;
    const std::string path = folder.Write("head.dat", "old and longer");
    fs::create_hard_link(path, folder.File("other.dat"));
    Write_Whole_File(path, "new");
    EXPECT_EQ(folder.Read("other.dat"), "new");
    EXPECT_EQ(folder.Names().size(), 2U);
}

TEST(Windows_Saving, What_Dead_Programs_Left_Goes_And_What_Lives_Stays) {
    const Temp_Folder folder;
    const std::string own = Passing_Name("head.dat", 7);
    const std::size_t process = own.find(".kestrum-") + 9;
    std::string dead = own;
    dead.replace(process, own.find('-', process) - process, "7ffffff1");
    std::string earlier = own; // the same process number, taken by a later program
    const std::size_t start = own.find('-', process) + 1;
    earlier.replace(start, own.find('-', start) - start, "1");
    for (const std::string& name : {own, dead, earlier}) {
        folder.Write(name, "half");
    }
    Write_Whole_File(folder.File("head.dat"), "new");
    EXPECT_EQ(folder.Names(), (std::vector<std::string>{own, "head.dat"}));
}

TEST(Windows_Saving, A_Fresh_Name_Is_Never_One_That_Is_Borne) {
    const Temp_Folder folder;
    folder.Write("head.dat", "first");
    EXPECT_FALSE(Write_New_File(folder.File("head.dat"), "second"));
    folder.Write("from.dat", "moved");
    EXPECT_EQ(Rename_Without_Loss(folder.File("from.dat"), folder.File("head.dat")),
              Rename_Outcome::Name_Taken);
    EXPECT_EQ(folder.Read("head.dat"), "first");
}

TEST(Windows_Locks, One_Program_Holds_A_File) {
    const Temp_Folder folder;
    Lock_File lock;
    ASSERT_TRUE(lock.Take(folder.File("in-use")));
    EXPECT_TRUE(lock.Is_Held());
    EXPECT_FALSE(Lock_File().Take(folder.File("in-use")));
    lock.Release();
    EXPECT_TRUE(Lock_File().Take(folder.File("in-use")));
}

TEST(Windows_Meeting, Is_In_A_Folder_Of_The_Users_Own) {
    const Temp_Folder folder;
    const std::string meeting = Meeting_Folder("", folder.Path());
    EXPECT_EQ(meeting, folder.File("kestrum-meeting"));
    EXPECT_EQ(Meeting_Folder("", folder.Path()), meeting) << "one that is there";
    EXPECT_TRUE(May_Write_In(meeting));
    const std::string file = folder.Write("file", "");
    EXPECT_EQ(Meeting_Folder("", file), "");
    EXPECT_EQ(Meeting_Folder("", folder.File("none")), "");
}

TEST(Windows_Meeting, Is_Not_Held_Up_By_Who_Shows_No_Token) {
    using std::chrono::milliseconds;
    const Temp_Folder folder;
    const int listening = Listen_At(folder.File("place"));
    ASSERT_GE(listening, 0);
    const auto port = std::stoul(Read_Whole_File(folder.File("place")), nullptr, 16);
    const SOCKET stranger = ::socket(AF_INET, SOCK_STREAM, IPPROTO_TCP);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = ::htons(static_cast<unsigned short>(port));
    address.sin_addr.s_addr = ::htonl(INADDR_LOOPBACK);
    ASSERT_EQ(::connect(stranger, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    const auto slow_words = std::async(std::launch::async, [stranger] {
        for (int byte = 0; byte < 20 && ::send(stranger, "g", 1, 0) == 1; ++byte) {
            std::this_thread::sleep_for(milliseconds(100));
        }
    });
    const auto begin = std::chrono::steady_clock::now();
    ASSERT_TRUE(Waits_For(listening, Socket_Way::Read, begin + milliseconds(5000)));
    EXPECT_EQ(Next_Caller(listening, begin + milliseconds(300)), -1);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, milliseconds(1200));
    Close_Socket(static_cast<int>(stranger));
    Close_Socket(listening);
}

TEST(Windows_Clock, Speaks_The_Languages_Of_The_System) {
    Clock clock;
    ASSERT_TRUE(clock.Stop_At("1968-02-29T12:00:00")); // before the calendar of C begins
    EXPECT_FALSE(Clock(clock).Stop_At("1969-02-29T12:00:00"));
    EXPECT_EQ(clock.Now().day_name, "Thursday");
    ASSERT_TRUE(clock.Speak("de_DE.UTF-8"));
    EXPECT_EQ(clock.Now().day_name + " " + clock.Now().month_name, "Donnerstag Februar");
    EXPECT_FALSE(clock.Speak("no such locale"));
}

} // namespace

} // namespace kestrum
