#include "application/version.h"
#include "cli/calc_run.h"
#include "cli/graph_painter.h"
#include "cli/graph_run.h"
#include "cli/script_error.h"
#include "cli/script_options.h"
#include "cli/script_runner.h"

#include <exception>
#include <fstream>
#include <iostream>
#include <span>
#include <string_view>

namespace {

using namespace kestrum::cli;

int Run_Script(std::span<const char* const> arguments) {
    const Script_Options options = Options_From(arguments);
    Script_Runner runner(options.surroundings, std::cout, options.rescue, options.printers);
    if (options.file == "-") {
        return runner.Run(std::cin);
    }
    std::ifstream script(options.file);
    if (!script) {
        throw Script_Error("cannot read '" + options.file + "'");
    }
    return runner.Run(script);
}

int Run_Verb(std::span<const char* const> arguments) {
    const std::string_view verb = arguments.empty() ? std::string_view() : arguments.front();
    if (verb == "script") {
        return Run_Script(arguments.subspan(1));
    }
    if (verb == "calc") {
        return Run_Calc(Calc_Options_From(arguments.subspan(1)), std::cin, std::cout, std::cerr);
    }
    if (verb == "compare") {
        return Run_Compare(Compare_Options_From(arguments.subspan(1)), std::cout, std::cerr);
    }
    if (verb == "graph") {
        Late_Painter painter;
        return Run_Graph(Graph_Options_From(arguments.subspan(1)), painter, std::cerr);
    }
    if (verb == "--version") {
        std::cout << "kestrum-cli " << kestrum::Program_Version() << '\n';
        return 0;
    }
    throw Script_Error("usage: kestrum-cli script [OPTIONS] FILE\n"
                       "       kestrum-cli calc [--metric] [--csv | --json] FILE.dat...\n"
                       "       kestrum-cli compare FROM.dat TO.dat --type 0..17 [--csv]\n"
                       "       kestrum-cli graph FROM.dat TO.dat --type 0..17 -o FILE.png\n"
                       "       kestrum-cli --version");
}

} // namespace

int main(int count, char* values[]) { // NOLINT(*-avoid-c-arrays)
    constexpr int unusable = 2;
    std::ios::sync_with_stdio(false);
    try {
        return Run_Verb(std::span(values, static_cast<std::size_t>(count)).subspan(1));
    } catch (const std::exception& fault) {
        std::cout.flush();
        std::cerr << "kestrum-cli: " << fault.what() << '\n';
        return unusable;
    }
}
