#include "files/rescue_folder.h"
#include "platform/lock_file.h"
#include "tests/temp_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <stop_token>
#include <thread>

namespace kestrum {

namespace {

namespace fs = std::filesystem;

TEST(Lock_File, Is_Held_By_One_Under_Its_Present_Name) {
    const Temp_Folder folder;
    const std::string path = folder.File("in-use");
    Lock_File lock;
    ASSERT_TRUE(lock.Take(path));
    EXPECT_FALSE(Lock_File().Take(path));
    fs::remove(path);
    EXPECT_FALSE(lock.Is_Held());
    EXPECT_TRUE(Lock_File().Take(path));
    EXPECT_FALSE(lock.Is_Held()) << "the name leads to another file";
}

/// Another program holds and removes the folder as fast as it can: whoever holds it in between
/// holds what bears the name.
TEST(Lock_File, A_Start_That_Races_An_Exit_Holds_What_Is_There) {
    const Temp_Folder folder;
    // The system gives a lock to what has opened the file, in whatever process.
    const std::jthread other([&folder](const std::stop_token& end) {
        while (!end.stop_requested()) {
            Rescue_Folder leaving(folder.Path(), 1);
            if (leaving.Take()) {
                leaving.Leave();
            }
        }
    });
    int times_held = 0;
    for (int round = 0; round < 5000; ++round) {
        Rescue_Folder starting(folder.Path(), 1);
        if (starting.Take()) {
            ++times_held;
            std::this_thread::yield();
            ASSERT_TRUE(starting.Is_Held()) << round;
            starting.Leave();
        }
    }
    EXPECT_GT(times_held, 0);
}

} // namespace

} // namespace kestrum
