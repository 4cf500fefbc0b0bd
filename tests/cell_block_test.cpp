#include "application/events.h"
#include "core/cell_block.h"
#include "tests/test_bench.h"

#include <gtest/gtest.h>

namespace kestrum {

namespace {

struct Table_Case {
    const char* name;
    std::string_view text;
    Table_Rows rows;
};

TEST(Table_Text, Rows_Are_Read_As_Spreadsheets_Put_Them) {
    const std::vector<Table_Case> cases{
        {"one cell", "1.44\n", {{"1.44"}}},
        {"CR LF at each row's end", "1\t2\r\n3\t4\r\n", {{"1", "2"}, {"3", "4"}}},
        {"LF, and none at the end", "1\t2\n3\t4", {{"1", "2"}, {"3", "4"}}},
        {"CR alone", "1\t2\r3\t4\r", {{"1", "2"}, {"3", "4"}}},
        {"empty cells", "\t2\t\r\n\t\t\r\n", {{"", "2", ""}, {"", "", ""}}},
        {"an empty cell of one column", "7\n\n3\n", {{"7"}, {""}, {"3"}}},
        {"empty lines at the end", "7\r\n\r\n\r\n", {{"7"}}},
        {"an empty line amid rows", "1\t2\n\n3\t4\n", {{"1", "2"}, {}, {"3", "4"}}},
        {"nothing", "\r\n", {}},
        {"quotes round a line end", "\"a\nb\"\t2\r\n", {{"a\nb", "2"}}},
        {"quotes round a tab", "\"a\tb\"\t2", {{"a\tb", "2"}}},
        {"a quote twice between quotes", "\"5\"\" pipe\"\t2", {{"5\" pipe", "2"}}},
        {"an empty cell between quotes", "\"\"\t2", {{"", "2"}}},
        {"the mark of inches", "5\" pipe\t2\n", {{"5\" pipe", "2"}}},
        {"a quote that nothing closes", "\"big\t2\n3\t4\n", {{"\"big", "2"}, {"3", "4"}}},
        {"a word between quotes", "\"E7\" head\t2\n", {{"\"E7\" head", "2"}}},
    };
    for (const Table_Case& line : cases) {
        EXPECT_EQ(Rows_Of_Table(line.text), line.rows) << line.name;
    }
}

TEST(Table_Text, What_Is_Written_Reads_Back) {
    const Table_Rows rows{{"E7TE", "5\" pipe", ""}, {"\"x\"", "a\tb", "c\r\nd"}};
    const std::string text = Table_Of_Rows(rows);
    EXPECT_EQ(text, "E7TE\t5\" pipe\t\r\n\"\"\"x\"\"\"\t\"a\tb\"\t\"c\r\nd\"\r\n");
    EXPECT_EQ(Rows_Of_Table(text), rows);
}

constexpr Spot first_lift{.column = 0, .row = 17};

class Cell_Blocks : public testing::Test {
protected:
    Test_Bench bench;
    Flow_Sheet& sheet = bench.session.Sheet(1);
    Cell_Grid grid{sheet, ""};

    [[nodiscard]] Block_Fill From_Sheet(const Spot& from, std::string_view text) {
        return Fill_Inputs(bench.session.numbers, grid, from, Rows_Of_Table(text));
    }

    void Expect_Refused(const Block_Fill& fill, std::string_view piece, int line, int column,
                        const Control* cell) {
        EXPECT_TRUE(fill.texts.empty());
        EXPECT_NE(fill.refusal, "");
        EXPECT_EQ(fill.piece, piece);
        EXPECT_EQ(fill.line, line);
        EXPECT_EQ(fill.column, column);
        EXPECT_EQ(fill.cell, cell);
    }
};

TEST_F(Cell_Blocks, A_Grid_Holds_The_Cells_Of_A_Page) {
    EXPECT_EQ(grid.Whole(), (Block{.first = {0, 0}, .last = {14, 30}}));
    EXPECT_EQ(grid.At({0, 17}), &sheet.Text101(17));
    EXPECT_EQ(grid.At({3, 9}), &sheet.Text103(9)) << "it stands one column on";
    EXPECT_EQ(grid.At({15, 17}), nullptr);
    EXPECT_EQ(grid.At({0, -1}), nullptr);
    const Cell_Grid page_2(sheet, "Frame1");
    EXPECT_EQ(page_2.Whole(), (Block{.first = {0, 3}, .last = {10, 30}}));
    EXPECT_EQ(page_2.At({6, 17}), &sheet.Text207(17));
    EXPECT_EQ(page_2.At({5, 4}), nullptr) << "the comment is no cell";
    const Cell_Grid table(bench.session.Form50(), "");
    EXPECT_EQ(table.Whole(), (Block{.first = {0, 10}, .last = {9, 30}}));
    EXPECT_FALSE(Is_Block_Cell(bench.session.Form50().Text1));
    EXPECT_FALSE(Is_Block_Cell(bench.session.Main().Array("Text103")(3)));
}

TEST_F(Cell_Blocks, A_Copy_Holds_All_That_Stands_In_The_Rectangle) {
    sheet.Text102(17).Set_Text("36.1");
    EXPECT_EQ(Copied_Block(grid, {.first = {0, 15}, .last = {1, 17}}),
              "Lift Inch\tIntake\r\n0\t0.0\r\n50\t36.1\r\n");
    EXPECT_EQ(Copied_Block(grid, {.first = {8, 1}, .last = {9, 2}}), "\t\r\nArea\t2.499\r\n");
}

TEST_F(Cell_Blocks, Columns_Go_To_The_Input_Cells_From_The_Spot_On) {
    const Block_Fill fill = From_Sheet(first_lift, "60\t40,5\t 30 \r\n110\t80\t55\r\n");
    ASSERT_EQ(fill.refusal, "");
    EXPECT_EQ(fill.filled, (Block{.first = {0, 17}, .last = {6, 18}}));
    Enter_Block(bench.session, fill.texts);
    Expect_Texts(bench, {{"Form1.Text101(17)", "60"},
                         {"Form1.Text102(17)", "35.8"},
                         {"Form1.Text106(17)", "40.5"},
                         {"Form1.Text107(17)", "30"},
                         {"Form1.Text108(17)", "60"}, // as when the field is left
                         {"Form1.Text101(18)", "110"},
                         {"Form1.Text106(18)", "80"},
                         {"Form1.Text107(18)", "55"},
                         {"Form1.Text108(18)", "110"},
                         {"Form1.Text101(19)", "150"}});
}

TEST_F(Cell_Blocks, Rows_Of_The_Header_Pass_Over_Its_Results) {
    const Block_Fill fill = From_Sheet({.column = 1, .row = 0}, "GT40\n190\n1.9\t1.6\n");
    ASSERT_EQ(fill.refusal, "");
    Enter_Block(bench.session, fill.texts);
    Expect_Texts(bench, {{"Form1.Text102(0)", "GT40"},
                         {"Form1.Text102(1)", "190"},
                         {"Form1.Text102(2)", "2.306"},
                         {"Form1.Text102(3)", "1.9"},
                         {"Form1.Text104(3)", "1.6"}});
}

TEST_F(Cell_Blocks, An_Empty_Piece_Clears_And_A_Missing_One_Leaves_The_Cell) {
    const Block_Fill fill = From_Sheet(first_lift, "60\t\t \n\n110\n");
    ASSERT_EQ(fill.texts.size(), 4U);
    Enter_Block(bench.session, fill.texts);
    Expect_Texts(bench, {{"Form1.Text106(17)", "0"},
                         {"Form1.Text107(17)", "0"},
                         {"Form1.Text101(18)", "100"},
                         {"Form1.Text101(19)", "110"},
                         {"Form1.Text106(19)", "110"}});
}

TEST_F(Cell_Blocks, One_Bad_Piece_Refuses_All) {
    Expect_Refused(From_Sheet(first_lift, "60\t40\t30\n110\t12 cfm\t55\n"), "12 cfm", 2, 2,
                   &sheet.Text106(18));
    Expect_Refused(From_Sheet(first_lift, "60\t1,234\n"), "1,234", 1, 2, &sheet.Text106(17));
    Expect_Refused(From_Sheet(first_lift, "60\t-4\n"), "-4", 1, 2, &sheet.Text106(17));
    Expect_Refused(From_Sheet(first_lift, "60\t\"4\n5\"\n"), "4\n5", 1, 2, &sheet.Text106(17));
    Expect_Refused(From_Sheet({.column = 3, .row = 6}, "1.3\t2.5\n"), "2.5", 1, 2,
                   &sheet.Text106(6)); // valves are whole
    Expect_Refused(From_Sheet({.column = 1, .row = 0}, std::string(32'768, 'x') + "\n7\n"),
                   std::string(32'768, 'x'), 1, 1, &sheet.Text102(0));
}

TEST_F(Cell_Blocks, A_Piece_Without_A_Cell_Refuses_All_But_An_Empty_One_Does_Not) {
    Expect_Refused(From_Sheet(first_lift, "60\t40\t30\t7\n"), "7", 1, 4, nullptr);
    Expect_Refused(From_Sheet({.column = 6, .row = 29}, "1\n2\n3\n"), "3", 3, 1, nullptr);
    // Below the last input of the header there is an end, not the lift rows.
    Expect_Refused(From_Sheet({.column = 5, .row = 6}, "2\n28\n"), "28", 2, 1, nullptr);
    EXPECT_EQ(From_Sheet({.column = 6, .row = 29}, "1\t\n2\t\n \t\n").texts.size(), 2U);
    EXPECT_EQ(From_Sheet({.column = 7, .row = 17}, "1\t2\n").piece, "1") << "nothing but results";
}

TEST_F(Cell_Blocks, A_Block_Of_Our_Own_Goes_Back_By_Its_Columns) {
    Flow_Sheet& other = bench.session.Sheet(2);
    other.Text101(17).Set_Text("55");
    other.Text102(17).Set_Text("36.1"); // a result
    other.Text106(17).Set_Text("33");
    other.Text107(17).Set_Text("22");
    const std::string copied =
        Copied_Block(Cell_Grid(other, ""), {.first = {0, 17}, .last = {6, 17}});
    EXPECT_EQ(From_Sheet(first_lift, copied).column, 4) << "from elsewhere it has too many columns";
    const Numeric_Text& numbers = bench.session.numbers;
    const Block_Fill fill = Fill_Spots(numbers, grid, first_lift, Rows_Of_Table(copied));
    Enter_Block(bench.session, fill.texts);
    Expect_Texts(bench, {{"Form1.Text101(17)", "55"},
                         {"Form1.Text102(17)", "35.8"},
                         {"Form1.Text106(17)", "33"},
                         {"Form1.Text107(17)", "22"}});
    Expect_Refused(Fill_Spots(numbers, grid, {.column = 6, .row = 30}, {{"1"}, {"2"}}), "2", 2, 1,
                   nullptr);
}

TEST_F(Cell_Blocks, Clearing_Zeroes_Numbers_And_Empties_Texts) {
    Enter_Block(bench.session, Cleared_Block(grid, {.first = {0, 0}, .last = {1, 3}}).texts);
    Enter_Block(bench.session, Cleared_Block(grid, {.first = {0, 17}, .last = {5, 17}}).texts);
    Expect_Texts(bench, {{"Form1.Text101(0)", "Part #"},
                         {"Form1.Text102(0)", ""},
                         {"Form1.Text102(1)", "0"},
                         {"Form1.Text102(2)", "2.306"},
                         {"Form1.Text102(3)", "0"},
                         {"Form1.Text101(17)", "0"},
                         {"Form1.Text106(17)", "0"},
                         {"Form1.Text107(17)", "24.6"},
                         {"Form1.Text108(17)", "0"}});
    EXPECT_NE(Cleared_Block(grid, {.first = {7, 17}, .last = {9, 18}}).refusal, "");
}

TEST_F(Cell_Blocks, One_Piece_Fills_The_Input_Cells_Of_A_Block) {
    const Block block{.first = {4, 17}, .last = {6, 18}};
    const Numeric_Text& numbers = bench.session.numbers;
    EXPECT_EQ(Fill_Block(numbers, grid, block, "x").cell, &sheet.Text106(17));
    Enter_Block(bench.session, Fill_Block(numbers, grid, block, "12").texts);
    Expect_Texts(bench, {{"Form1.Text105(17)", "50"},
                         {"Form1.Text106(17)", "12"},
                         {"Form1.Text107(17)", "12"},
                         {"Form1.Text107(18)", "12"},
                         {"Form1.Text107(19)", "77"}});
}

} // namespace

} // namespace kestrum
