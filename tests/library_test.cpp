#include "library/library_order.h"
#include "tests/temp_folder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

namespace kestrum {
namespace {

Library_Entry Test_File(std::string file, std::optional<double> port_volume,
                        std::optional<double> mean) {
    Library_Entry entry;
    entry.file = std::move(file);
    entry.figures.name = "Head " + entry.file;
    entry.figures.port_volume = port_volume;
    entry.figures.intake_mean = mean;
    return entry;
}

/// The rows as one word: a sign for each test, and headings in brackets.
std::string Shown(const std::vector<Library_Row>& rows) {
    std::string shown;
    for (const Library_Row& row : rows) {
        shown += row.entry == nullptr ? "[" + row.heading + "]" : row.entry->file;
    }
    return shown;
}

TEST(Library_Order, Open_Sheets_Stand_On_Top_And_Unknown_Values_Below_In_Both_Directions) {
    std::vector<Library_Entry> sheets{Test_File("S", 170, 1)};
    sheets[0].sheet = 1;
    std::vector<Library_Entry> files{Test_File("a", 170, 5), Test_File("b", {}, 9),
                                     Test_File("c", 180, {}), Test_File("d", 165, 5),
                                     Test_File("e", {}, {})};
    files[4].problem = "Permission denied";
    Library_Order order{.words = "", .sort = Library_Column_Named("intake_mean")};
    EXPECT_EQ(Shown(Rows_In_Order(sheets, files, order)), "Sadbce");
    order.descending = true;
    EXPECT_EQ(Shown(Rows_In_Order(sheets, files, order)), "Sbadce");
    order.by_port_volume = true;
    EXPECT_EQ(Shown(Rows_In_Order(sheets, files, order)),
              "[Open sheets  (1)]S[Port 160 to 180 cc  (2)]ad[Port 180 to 200 cc  (1)]c"
              "[No port volume  (2)]be");
    files[3].figures.date = "2026-11-22";
    order.words = "2026 d"; // each word somewhere
    EXPECT_EQ(Shown(Rows_In_Order(sheets, files, order)), "[Port 160 to 180 cc  (1)]d");
    order = {.words = "denied"};
    EXPECT_EQ(Shown(Rows_In_Order(sheets, files, order)), "e");
}

TEST(Library_Reading, Reads_Again_What_Has_Changed_And_Nothing_Else) {
    const Temp_Folder folder;
    const auto listed = [&folder](std::span<const Library_Entry> known) {
        return Read_Library({.folder = folder.Path(), .goes_on = {}, .known = known},
                            Tests_Below(folder.Path()).tests);
    };
    folder.Write("a.csv", "lift,intake\n.1,50\n.2,90\n");
    const std::vector<Library_Entry> fresh = listed({});
    EXPECT_FALSE(Found_The_Same(fresh, fresh)); // the next change could look alike
    std::this_thread::sleep_for(std::chrono::seconds(3));
    std::vector<Library_Entry> known = listed(fresh);
    known[0].figures.name = "as it was known";
    EXPECT_EQ(listed(known)[0].figures.name, "as it was known");
    EXPECT_TRUE(Found_The_Same(known, listed(known)));
    folder.Write("a.csv", "lift,intake\n.1,60\n.2,90\n"); // as long as before
    EXPECT_EQ(listed(known)[0].figures.intake_curve.at(0).value, 60);
    EXPECT_FALSE(Found_The_Same(known, listed(known)));
}

} // namespace
} // namespace kestrum
