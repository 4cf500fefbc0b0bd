#include "cli/script_options.h"
#include "tests/shell.h"

#include <gtest/gtest.h>

#include <array>

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
    const int status = Status_In_Shell(folder, "CLI " + arguments + " <input >output 2>errors");
    return {status, folder.Read("output"), folder.Read("errors")};
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
        {"a strange point", "script --point \";\" -", "", 2, "",
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
         "--printers A,B --locale en --args \"/FN /mp\" --folder . -",
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

TEST(Script_Options, A_Script_May_Begin_With_A_Dash) {
    const std::array arguments{"--rescue", "--", "--args"};
    EXPECT_EQ(cli::Options_From(arguments).file, "--args");
    EXPECT_TRUE(cli::Options_From(arguments).rescue);
}

} // namespace

} // namespace kestrum
