#include "cli/convert_run.h"
#include "cli/usage_error.h"
#include "tests/temp_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <sstream>

namespace kestrum::cli {

namespace {

namespace fs = std::filesystem;

/// A folder of tests and what the verb says of them.
class Convert_Verb : public ::testing::Test {
protected:
    static std::string Example(const std::string& name) { return KESTRUM_EXAMPLES "/" + name; }

    int Run(std::vector<std::string> words, const std::string& names = {}) {
        std::vector<const char*> arguments;
        for (const std::string& word : words) {
            arguments.push_back(word.c_str());
        }
        std::istringstream in(names);
        std::ostringstream errors;
        const int status = Run_Convert(Convert_Options_From(arguments), in, errors);
        errors_ = errors.str();
        return status;
    }

    /// Why a call cannot be used, in its first line.
    std::string Refusal(std::vector<std::string> words, const std::string& names = {}) {
        try {
            Run(std::move(words), names);
        } catch (const Usage_Error& fault) {
            const std::string text = fault.what();
            return text.substr(0, text.find('\n'));
        }
        return {};
    }

    /// The records of a `.dat` file by their keys.
    std::map<std::string, std::string> Records(const std::string& path) {
        std::map<std::string, std::string> records;
        std::istringstream lines(Bytes_Of(path));
        std::string line;
        while (std::getline(lines, line) && line.find(" = ") != std::string::npos) {
            const std::size_t mark = line.find(" = ");
            records[line.substr(0, mark)] = line.substr(mark + 3, line.find('\r') - mark - 3);
        }
        return records;
    }

    Temp_Folder folder_;
    std::string errors_;
};

constexpr const char* jeep = "jeep_4l_stock_table_1.dat";

TEST_F(Convert_Verb, A_Head_Comes_Back_From_A_Table) {
    const std::string table = folder_.File("jeep.csv");
    const std::string again = folder_.File("again.dat");
    EXPECT_EQ(Run({Example(jeep), "-o", table}), 0);
    EXPECT_EQ(Run({table, "-o", again}), 0);
    const auto before = Records(Example(jeep));
    const auto after = Records(again);
    for (const char* const column :
         {"Text101_", "Text106_", "Text107_", "Text207_", "Text210_", "Text211_"}) {
        for (int row = 16; row <= 30; ++row) {
            const std::string key = column + std::string(1, static_cast<char>('0' + row / 10)) +
                                    static_cast<char>('0' + row % 10);
            EXPECT_EQ(after.at(key), before.at(key)) << key;
        }
    }
}

TEST_F(Convert_Verb, Tells_The_Counts_As_The_Document_Shows) {
    const std::string file = Example("jeep_4l_stock_table_3.dat");
    EXPECT_EQ(Run({file, "-o", folder_.File("jeep.csv")}), 0);
    EXPECT_EQ(errors_, file + ": 129 Records Read\n" + file + ": 6 Records Written\n");
}

TEST_F(Convert_Verb, A_Head_Comes_Back_From_A_Dfw_File) {
    const std::string dfw = folder_.File("jeep.dfw");
    const std::string again = folder_.File("again.dat");
    EXPECT_EQ(Run({Example(jeep), "-o", dfw, "--engine-analyzer"}), 0);
    EXPECT_NE(Bytes_Of(dfw).find("IVol = 203\r\n"), std::string::npos);
    EXPECT_EQ(Run({"--from", "dfw", dfw, "-o", again, "--to", "dat"}), 0);
    const auto before = Records(Example(jeep));
    const auto after = Records(again);
    EXPECT_EQ(after.at("Text108_7"), "28.0");
    EXPECT_EQ(after.at("Text102_3"), before.at("Text102_3"));
    // The head was tested at 28 inches, so its corrected flow is the observed one, in one place.
    EXPECT_EQ(after.at("Text101_17"), "200");
    EXPECT_EQ(std::stod(after.at("Text106_17")), std::stod(before.at("Text106_17")));
    EXPECT_EQ(std::stod(after.at("Text107_21")), std::stod(before.at("Text107_21")));
    EXPECT_EQ(after.at("Text101_22"), "0");
}

TEST_F(Convert_Verb, No_File_Finds_Anything_Of_The_One_Before) {
    const std::string first = folder_.Write("1.dat", "Text102_3 = 2.5\r\n");
    const std::string second = folder_.Write("2.csv", "lift,intake,exhaust\n100,60,40\n");
    fs::create_directory(folder_.File("all"));
    fs::create_directory(folder_.File("alone"));
    EXPECT_EQ(Run({first, "--files-from", "-", "-o", folder_.File("all"), "--to", "dfw"},
                  second + "\r\n\n"),
              0);
    EXPECT_EQ(Run({second, "-o", folder_.File("alone"), "--to", "dfw"}), 0);
    EXPECT_EQ(Bytes_Of(folder_.File("all/2.dfw")), Bytes_Of(folder_.File("alone/2.dfw")));
    EXPECT_NE(Bytes_Of(folder_.File("all/1.dfw")).find("\r\n1 2.5\r\n"), std::string::npos);
}

TEST_F(Convert_Verb, A_Failed_Calculation_Lends_No_Flow_Of_Another_Test) {
    const std::string bad = folder_.Write("bad.dat", "Text101_17 = 70\r\nText102_3 = x\r\n");
    EXPECT_EQ(Run({bad, "-o", folder_.File("bad.dfw")}), 1);
    EXPECT_NE(errors_.find("Problem - DFW File was Not Saved -- Type mismatch\n"),
              std::string::npos);
    EXPECT_FALSE(fs::exists(folder_.File("bad.dfw")));
}

TEST_F(Convert_Verb, What_Is_There_Stays_Without_Force) {
    const std::string table = folder_.Write("a.csv", "100,60,40\n");
    const std::string target = folder_.Write("a.dat", "old");
    EXPECT_EQ(Run({table, "-o", target}), 1);
    EXPECT_EQ(errors_, table + ": '" + target + "' is there already: use --force to replace it\n");
    EXPECT_EQ(Bytes_Of(target), "old");
    EXPECT_EQ(Run({table, "-o", target, "--force"}), 0);
    EXPECT_EQ(Records(target).at("Text106_17"), "60");
}

TEST_F(Convert_Verb, Tells_Each_File_That_Did_Not_Convert) {
    fs::create_directory(folder_.File("out"));
    fs::create_directory(folder_.File("in"));
    const std::string good = folder_.Write("a.csv", "100,60,40\n");
    const std::string same_name = folder_.Write("in/a.csv", "100,60,40\n");
    const std::string bad = folder_.Write("b.csv", "100,x,40\n");
    const std::string unknown = folder_.Write("c.xyz", "100,60,40\n");
    const std::string gone = folder_.File("gone.flw");
    EXPECT_EQ(Run({good, same_name, bad, unknown, gone, "-o", folder_.File("out"), "--to", "dat"}),
              1);
    EXPECT_EQ(
        errors_,
        good + ": 1 Records Read\n" + good + ": 124 Records Written\n" + same_name +
            ": another file of this call has the name '" + folder_.File("out/a.dat") +
            "' already\n" + bad +
            ": Data from CSV File has Not been Loaded Line 1, Column 2: \"x\" is no number\n" +
            unknown + ": the format is not known by the ending: use --from\n" + gone +
            ": No Flow File Selected -- File not found\n");
    EXPECT_EQ(folder_.Names(), (std::vector<std::string>{"a.csv", "b.csv", "c.xyz", "in", "out"}));
    EXPECT_EQ(Run({unknown, "--from", "csv", "--metric", "-o", folder_.File("out/c.csv")}), 0);
    EXPECT_TRUE(Bytes_Of(folder_.File("out/c.csv")).starts_with("lift_mm,"));
}

TEST_F(Convert_Verb, Refuses_Calls_That_Cannot_Be_Used) {
    const std::string here = folder_.Path();
    EXPECT_EQ(Refusal({"-o", here, "--to", "dat"}), "convert: no file is named");
    EXPECT_EQ(Refusal({"a.dat"}), "convert: -o FILE or -o FOLDER is missing");
    EXPECT_EQ(Refusal({"a.dat", "-o", here}),
              "convert: the format to write is not known: use --to");
    EXPECT_EQ(Refusal({"a.dat", "-o", "b.flw"}),
              "convert: the format to write is not known: use --to");
    EXPECT_EQ(Refusal({"a.dat", "-o", "b", "--to", "dyn"}),
              "convert: the format 'dyn' is not known");
    EXPECT_EQ(Refusal({"a.dat", "--from", "txt", "-o", "b.dat"}),
              "convert: the format 'txt' is not known");
    EXPECT_EQ(Refusal({"a.dat", "--fast", "-o", "b.dat"}), "convert: unknown option '--fast'");
    const std::string several =
        "convert: several files need a folder that is there, and 'b.dat' is none";
    EXPECT_EQ(Refusal({"a.csv", "c.csv", "-o", "b.dat"}), several);
    EXPECT_EQ(Refusal({"--files-from", "-", "-o", "b.dat"}, "a.csv\nc.csv\n"), several);
}

} // namespace

} // namespace kestrum::cli
