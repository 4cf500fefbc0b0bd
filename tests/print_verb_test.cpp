#include "cli/graph_extras.h"
#include "cli/print_options.h"
#include "cli/print_run.h"
#include "cli/usage_error.h"
#include "files/flow_data_file.h"
#include "tests/print_test_bench.h"

#include <gtest/gtest.h>

#include <sstream>

namespace kestrum::cli {

namespace {

/// Keeps the pages that it is to paint.
struct Page_Keeper : Painter {
    using Painter::Picture_Of; // of several pages

    std::string Picture_Of(const Drawing& /*drawing*/, Picture_Format /*format*/,
                           const std::optional<Placed_Logo>& /*logo*/) override {
        return {};
    }

    std::string Pdf_Of(const Document& document, Paper_Size size) override {
        pages = document.lay_out({});
        title = document.title;
        paper = size;
        return "a document";
    }

    Pages pages;
    std::string title;
    Paper_Size paper{};
};

class Print_Verb : public ::testing::Test {
protected:
    std::string Write_Test(std::string_view name, std::string_view part) {
        bench_.Set("Form1.Text102(0)", part);
        return bench_.folder.Write(name, Flow_File_Text(bench_.session, bench_.session.Sheet(1)));
    }

    int Print(const Print_Options& options) {
        std::ostringstream errors;
        const int status = Run_Print(
            options, [this]() -> Painter& { return painter_; }, errors);
        errors_ = errors.str();
        return status;
    }

    Print_Bench bench_;
    Page_Keeper painter_;
    std::string errors_;
};

TEST_F(Print_Verb, Sheets_Follow_One_Another_Under_One_Head) {
    const std::string company = bench_.folder.Write("a.dcn", "Company Name = Bench & Sons\nodd\n");
    EXPECT_EQ(Print({.files = {Write_Test("a.dat", "Stock"), Write_Test("b.dat", "Ported")},
                     .company = company,
                     .head = 2,
                     .paper = Paper_Size::Letter,
                     .output = bench_.folder.File("o.pdf")}),
              0);
    EXPECT_EQ(bench_.folder.Read("o.pdf"), "a document");
    EXPECT_EQ(errors_, company + ": Bad or Invalid Record Read #2 ->>> odd\n");
    EXPECT_EQ(painter_.paper, Paper_Size::Letter);
    ASSERT_EQ(painter_.pages.size(), 2U);
    EXPECT_NE(Place_Of_Text(painter_.pages[0], "Stock"), "none");
    EXPECT_NE(Place_Of_Text(painter_.pages[1], "Ported"), "none");
    EXPECT_NE(Place_Of_Text(painter_.pages[1], bench_.folder.File("b.dat")), "none");
    // 12 characters of size 16 end at 11925.
    EXPECT_EQ(Place_Of_Text(painter_.pages[1], "Bench & Sons"), "10005 612 16 bold Bench & Sons");
}

TEST_F(Print_Verb, Comparison_Shows_Both_Tests) {
    EXPECT_EQ(Print({.files = {Write_Test("a.dat", "Stock"), Write_Test("b.dat", "Ported")},
                     .compares = true,
                     .type = 9,
                     .output = bench_.folder.File("o.pdf")}),
              0);
    EXPECT_EQ(painter_.title, "Comparison");
    ASSERT_EQ(painter_.pages.size(), 1U);
    EXPECT_NE(Place_Of_Text(painter_.pages[0], "Test 2 - Ported"), "none");
}

TEST_F(Print_Verb, What_Is_Missing_Is_Told) {
    const std::string test = Write_Test("a.dat", "Stock");
    const std::string output = bench_.folder.File("o.pdf");
    EXPECT_EQ(Print({.files = {test}, .company = bench_.folder.File("no.dcn"), .output = output}),
              1);
    EXPECT_EQ(Print({.files = {test, bench_.folder.File("no.dat")}, .output = output}), 1);
    EXPECT_EQ(bench_.folder.Names(), std::vector<std::string>{"a.dat"});
    EXPECT_EQ(
        Print(
            {.files = {test}, .logo = bench_.folder.Write("words.bmp", "words"), .output = output}),
        0); // without the logo
    EXPECT_NE(errors_.find("words.bmp: No logo"), std::string::npos);
    EXPECT_EQ(Print({.files = {test}, .output = bench_.folder.File("no/o.pdf")}), 1);
}

TEST(Print_Options_Of, Arguments_Are_Taken_Or_Refused) {
    const auto read = [](std::vector<const char*> arguments) {
        return Print_Options_From(arguments);
    };
    const Print_Options options = read({"a.dat", "-o", "o.pdf", "--head", "centre", "--paper",
                                        "letter", "--metric", "--", "-b.dat"});
    EXPECT_EQ(options.files, (std::vector<std::string>{"a.dat", "-b.dat"}));
    EXPECT_EQ(options.head, 1);
    EXPECT_EQ(options.paper, Paper_Size::Letter);
    EXPECT_TRUE(options.metric);
    for (const std::vector<const char*>& wrong : std::vector<std::vector<const char*>>{
             {"a.dat"},
             {"-o", "o.pdf"},
             {"a.dat", "-o"},
             {"a.dat", "-o", ""},
             {"a.dat", "-o", "o.png"},
             {"", "-o", "o.pdf"},
             {"a.dat", "-o", "o.pdf", "--head", "top"},
             {"a.dat", "-o", "o.pdf", "--paper", "a3"},
             {"a.dat", "-o", "o.pdf", "--now", "noon"},
             {"a.dat", "-o", "o.pdf", "--locale", "no_SUCH"},
             {"a.dat", "-o", "o.pdf", "--frame", "x"},
             {"a.dat", "b.dat", "--compare", "-o", "o.pdf"},
             {"a.dat", "b.dat", "--compare", "--type", "18", "-o", "o.pdf"},
             {"a.dat", "--compare", "--type", "1", "-o", "o.pdf"}}) {
        EXPECT_THROW(static_cast<void>(read(wrong)), Usage_Error);
    }
}

TEST(Graph_Extras_Of, Values_Are_Checked) {
    Graph_Extras extras;
    const auto take = [&extras](const char* option, const char* value) {
        const std::array<const char*, 2> arguments{option, value};
        Argument_Reader reader("graph", "", arguments);
        return reader.Next() && Take_Extra(extras, reader);
    };
    EXPECT_TRUE(take("--y-low", "-5") && take("--y-high", "12.5") && take("--dpi", "300") &&
                take("--caption", "one") && take("--caption", "") && take("--points", ""));
    EXPECT_EQ(extras.y_low, "-5");
    EXPECT_EQ(extras.settings.dots_per_inch, 300);
    EXPECT_EQ(extras.captions, (std::vector<std::string>{"one", ""}));
    EXPECT_FALSE(take("--type", "1"));
    EXPECT_THROW(static_cast<void>(take("--caption", "three")), Usage_Error);
    EXPECT_THROW(static_cast<void>(take("--y-low", "low")), Usage_Error);
    EXPECT_THROW(static_cast<void>(take("--dpi", "35")), Usage_Error);
    EXPECT_THROW(static_cast<void>(take("--dpi", "300x")), Usage_Error);
    EXPECT_THROW(static_cast<void>(take("--paper", "a5")), Usage_Error);
}

} // namespace

} // namespace kestrum::cli
