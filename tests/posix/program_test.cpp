#include "tests/shell.h"

#include <gtest/gtest.h>

#include <cstdlib>

// Of streams that this system's shell can close and of the locale that it hands on.

namespace kestrum {

namespace {

TEST(Script_Program, Output_That_Is_Lost_And_Input_That_Cannot_Be_Read_Are_Told) {
    const Temp_Folder folder;
    folder.Write("script", "get Main.Text105(3)\n");
    folder.Write("fatal", "set Main.Text104(3)\nclick Main.Command51\n");
    folder.Write("some.dat", "Text101_17 = 60\r\n");
    const std::string lost = "kestrum-cli: the output cannot be written\n";
    const std::string no_names = "kestrum-cli: calc: the names of the files cannot be read\n";
    const std::string no_figures = "kestrum-cli: calc: the figures cannot be written\n";
    const std::pair<std::string, std::string> cases[] = {
        {"CLI script script >/dev/full", lost},
        {"CLI script script >&-", lost},
        {"CLI script fatal >/dev/full", lost},
        {"CLI --version >/dev/full", lost},
        {"CLI --version >&-", lost},
        {"CLI calc some.dat >&-", no_figures},
        {"CLI calc --files-from - <&- >output", no_names},
        {"CLI calc --files-from - <. >output", no_names},
        {"CLI script . >output", "kestrum-cli: cannot read '.'\n"},
        {"CLI script - <. >output", "kestrum-cli: cannot read '-'\n"},
        {"CLI script - <&- >output", "kestrum-cli: cannot read '-'\n"},
        {"CLI script 'no\x1b' >output", "kestrum-cli: cannot read 'no\\u001b'\n"},
    };
    for (const auto& [line, errors] : cases) {
        EXPECT_EQ(Status_In_Shell(folder, line + " 2>errors"), 2) << line;
        EXPECT_EQ(folder.Read("errors"), errors) << line;
    }
}

TEST(Script_Program, Nothing_Is_Printed_Into_A_File_That_Takes_The_Place_Of_The_Output) {
    const Temp_Folder folder;
    folder.Write("script", "get Main.Text105(3)\n");
    // The lock of the rescue copies stays open, by the lowest free number.
    EXPECT_EQ(Status_In_Shell(folder, "CLI script --rescue - <script >&- 2>errors"), 2);
    EXPECT_EQ(folder.Read("errors"), "kestrum-cli: the output cannot be written\n");
}

TEST(Script_Program, Numbers_Do_Not_Follow_The_Users_Locale) {
    ::setenv("LC_ALL", "de_DE.UTF-8", 1);
    const Temp_Folder folder;
    folder.Write("script", "click Main.Command51\nget Main.Text107(3)\n");
    EXPECT_EQ(Status_In_Shell(folder, "CLI script script >output"), 0);
    ::unsetenv("LC_ALL");
    EXPECT_TRUE(folder.Read("output").ends_with("\"text\":\"427.7\"}\n"));
}

} // namespace

} // namespace kestrum
