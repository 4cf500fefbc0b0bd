#include "cli/script_options.h"
#include "tests/temp_folder.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <sys/wait.h>

namespace kestrum {

namespace {

struct Run_Result {
    int status = -1;
    std::string output;
    std::string errors;
};

/// Runs the program as a shell does.
Run_Result Run_Program(const Temp_Folder& folder, const std::string& arguments,
                       std::string_view script) {
    folder.Write("input", script);
    const std::string line =
        "cd '" + folder.Path() + "' && '" KESTRUM_CLI "' " + arguments + " <input >output 2>errors";
    const int status = std::system(line.c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, folder.Read("output"),
            folder.Read("errors")};
}

struct Program_Case {
    const char* name;
    std::string arguments;
    std::string_view script;
    int status;
    std::string_view output; // what it ends in
    std::string_view errors;
};

TEST(Script_Program, Ends_With_A_Status_And_Clean_Streams) {
    const Program_Case cases[] = {
        {"a script that runs through", "script -", "get Main.Text105(3)", 0,
         "{\"show\":\"Main\"}\n{\"get\":\"Main.Text105(3)\",\"text\":\"4\"}\n", ""},
        {"the version", "--version", "", 0, "kestrum-cli 5.0.0\n", ""},
        {"a fatal failure", "script -", "set Main.Text104(3)\nclick Main.Command51\nget Main.x", 1,
         "{\"error\":{\"number\":13,\"description\":\"Type mismatch\"}}\n", ""},
        {"an unknown command", "script -", "get Main.Text105(3)\nfetch", 2, "\"text\":\"4\"}\n",
         "kestrum-cli: line 2: unknown command 'fetch'\n"},
        {"an unknown address", "script -", "\n\nget Main.Text999", 2, "{\"show\":\"Main\"}\n",
         "kestrum-cli: line 3: there is no control 'Main.Text999'\n"},
        {"an unknown option", "script --colour red -", "", 2, "",
         "kestrum-cli: unknown option '--colour'\n"},
        {"a script that is not there", "script none.txt", "", 2, "",
         "kestrum-cli: cannot read 'none.txt'\n"},
        {"no such folder", "script --folder none -", "", 2, "",
         "kestrum-cli: --folder: there is no folder 'none'\n"},
        {"a strange point", "script --point ';' -", "", 2, "",
         "kestrum-cli: --point: wanted is . or ,\n"},
        {"half a display", "script --display 800x600 -", "", 2, "",
         "kestrum-cli: --display: '@' is missing\n"},
        {"no locale", "script --locale no_SUCH -", "", 2, "",
         "kestrum-cli: --locale: the system has no locale 'no_SUCH'\n"},
        {"no moment", "script --now today -", "", 2, "",
         "kestrum-cli: --now: wanted is YYYY-MM-DDTHH:MM:SS\n"},
        {"an option without its value", "script - --point", "", 2, "",
         "kestrum-cli: '--point' wants a value\n"},
        {"all options",
         "script --point , --display 800x600@120 --now 2026-02-12T08:00:00 "
         "--printers A,B --locale en --args '/FN /mp' --folder . -",
         "var Screen_Dpi\nvar Aspect_Free\nget Main.Text104(3)", 0,
         "{\"var\":\"Screen_Dpi\",\"value\":120}\n{\"var\":\"Aspect_Free\",\"value\":1}\n"
         "{\"get\":\"Main.Text104(3)\",\"text\":\"4,125\"}\n",
         ""},
    };
    for (const Program_Case& c : cases) {
        const Temp_Folder folder;
        const Run_Result result = Run_Program(folder, c.arguments, c.script);
        EXPECT_EQ(result.status, c.status) << c.name;
        EXPECT_TRUE(result.output.ends_with(c.output)) << c.name << ": " << result.output;
        EXPECT_EQ(result.errors, c.errors) << c.name;
    }
}

/// Gives the status of a whole line of the shell, in which "CLI" stands for the program.
int Status_Of(const Temp_Folder& folder, std::string line) {
    line.replace(line.find("CLI"), 3, "'" KESTRUM_CLI "'");
    const int status =
        std::system(("cd '" + folder.Path() + "' && { " + line + "; } 2>errors").c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

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
        EXPECT_EQ(Status_Of(folder, line), 2) << line;
        EXPECT_EQ(folder.Read("errors"), errors) << line;
    }
}

TEST(Script_Program, Nothing_Is_Printed_Into_A_File_That_Takes_The_Place_Of_The_Output) {
    const Temp_Folder folder;
    folder.Write("script", "get Main.Text105(3)\n");
    // The lock of the rescue copies stays open, by the lowest free number.
    EXPECT_EQ(Status_Of(folder, "CLI script --rescue - <script >&-"), 2);
    EXPECT_EQ(folder.Read("errors"), "kestrum-cli: the output cannot be written\n");
}

TEST(Script_Options, A_Script_May_Begin_With_A_Dash) {
    const std::array arguments{"--rescue", "--", "--args"};
    EXPECT_EQ(cli::Options_From(arguments).file, "--args");
    EXPECT_TRUE(cli::Options_From(arguments).rescue);
}

TEST(Script_Program, Numbers_Do_Not_Follow_The_Users_Locale) {
    ::setenv("LC_ALL", "de_DE.UTF-8", 1);
    const Temp_Folder folder;
    const Run_Result result =
        Run_Program(folder, "script -", "click Main.Command51\nget Main.Text107(3)");
    ::unsetenv("LC_ALL");
    EXPECT_TRUE(result.output.ends_with("\"text\":\"427.7\"}\n")) << result.output;
}

} // namespace

} // namespace kestrum
