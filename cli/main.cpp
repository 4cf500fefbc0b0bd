#include "application/version.h"
#include "cli/calc_run.h"
#include "cli/chart_run.h"
#include "cli/convert_run.h"
#include "cli/graph_painter.h"
#include "cli/graph_run.h"
#include "cli/library_run.h"
#include "cli/line_text.h"
#include "cli/print_run.h"
#include "cli/report_run.h"
#include "cli/script_options.h"
#include "cli/script_runner.h"
#include "cli/standard_streams.h"
#include "cli/usage_error.h"
#include "cli/usage_texts.h"
#include "platform/file_path.h"
#include "platform/program_start.h"

#include <algorithm>
#include <array>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <span>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace {

using namespace kestrum::cli;

int Run_Script(std::span<const char* const> arguments) {
    const Script_Options options = Options_From(arguments);
    Script_Runner runner(options.surroundings, std::cout, options.rescue, options.printers);
    const std::string failure = "cannot read " + Quoted(options.file);
    if (options.file == "-") {
        return runner.Run(std::cin, failure);
    }
    std::ifstream script(kestrum::File_Path(options.file));
    std::error_code ignored;
    if (!script || std::filesystem::is_directory(kestrum::File_Path(options.file), ignored)) {
        throw Stream_Error(failure);
    }
    return runner.Run(script, failure);
}

int Calculate(std::span<const char* const> arguments) {
    Calc_Options options = Calc_Options_From(arguments);
    options.to_terminal = kestrum::Prints_To_Terminal();
    return Run_Calc(options, std::cin, std::cout, std::cerr);
}

int Convert(std::span<const char* const> arguments) {
    return Run_Convert(Convert_Options_From(arguments), std::cin, std::cerr);
}

int Compare(std::span<const char* const> arguments) {
    Graph_Options options = Compare_Options_From(arguments);
    options.to_terminal = kestrum::Prints_To_Terminal();
    return Run_Compare(options, std::cout, std::cerr);
}

int Draw(std::span<const char* const> arguments) {
    Late_Painter painter;
    return Run_Graph(Graph_Options_From(arguments), painter, std::cerr);
}

int Print(std::span<const char* const> arguments) {
    Late_Painter painter;
    return Run_Print(
        Print_Options_From(arguments),
        [&painter]() -> kestrum::Painter& { return painter.Loaded(); }, std::cerr);
}

int Report(std::span<const char* const> arguments) {
    return Run_Report(Report_Options_From(arguments),
                      kestrum::Text_Of(std::filesystem::current_path()), std::cout, std::cerr);
}

int Chart(std::span<const char* const> arguments) {
    Chart_Options options = Chart_Options_From(arguments);
    options.to_terminal = kestrum::Prints_To_Terminal();
    Late_Painter painter;
    return Run_Chart(options, painter, std::cout, std::cerr);
}

int List_Library(std::span<const char* const> arguments) {
    Library_Options options = Library_Options_From(arguments);
    options.to_terminal = kestrum::Prints_To_Terminal();
    return Run_Library(options, std::cout, std::cerr);
}

int Tell_Version(std::span<const char* const> /*arguments*/) {
    std::cout << "kestrum-cli " << kestrum::Program_Version() << '\n';
    return 0;
}

struct Verb {
    std::string_view name;
    std::string_view usage;
    int (*run)(std::span<const char* const> arguments);
};

constexpr auto verbs = std::to_array<Verb>({{"script", usage::script, Run_Script},
                                            {"calc", usage::calc, Calculate},
                                            {"convert", usage::convert, Convert},
                                            {"compare", usage::compare, Compare},
                                            {"graph", usage::graph, Draw},
                                            {"print", usage::print, Print},
                                            {"report", usage::report, Report},
                                            {"chart", usage::chart, Chart},
                                            {"library", usage::library, List_Library},
                                            {"--version", "kestrum-cli --version", Tell_Version}});

constexpr std::string_view short_usage =
    "usage: kestrum-cli script [OPTIONS] FILE\n"
    "       kestrum-cli calc [--metric] [--csv | --json] FILE.dat...\n"
    "       kestrum-cli convert FILE... -o FILE|FOLDER [--to dat|dfw|csv]\n"
    "       kestrum-cli compare FROM.dat TO.dat --type 0..17 [--csv]\n"
    "       kestrum-cli graph FROM.dat TO.dat --type 0..17 -o FILE.png\n"
    "       kestrum-cli print FILE.dat... -o FILE.pdf\n"
    "       kestrum-cli report [--main FILE.dta] [--config FILE.cfg] FILE.dat...\n"
    "       kestrum-cli chart FILE... [-o FILE.svg|FILE.pdf|FILE.png]\n"
    "       kestrum-cli library FOLDER\n"
    "       kestrum-cli --version\n"
    "       kestrum-cli [VERB] --help";

bool Asks_For_Help(std::span<const char* const> arguments) {
    return arguments.size() == 1 && std::string_view(arguments.front()) == "--help";
}

int Run_Verb(std::span<const char* const> arguments) {
    if (Asks_For_Help(arguments)) {
        std::cout << short_usage << '\n';
        return 0;
    }
    const std::string_view name = arguments.empty() ? std::string_view() : arguments.front();
    const auto* const verb = std::ranges::find(verbs, name, &Verb::name);
    if (verb == verbs.end()) {
        throw Usage_Error(std::string(short_usage));
    }
    if (Asks_For_Help(arguments.subspan(1))) {
        std::cout << "usage: " << verb->usage << '\n';
        return 0;
    }
    return verb->run(arguments.subspan(1));
}

} // namespace

int main(int count, char* values[]) { // NOLINT(*-avoid-c-arrays)
    constexpr int unusable = 2;
    kestrum::Prepare_Standard_Streams();
    std::ios::sync_with_stdio(false);
    try {
        const std::vector<std::string> texts = kestrum::Program_Arguments(count, values);
        std::vector<const char*> arguments(texts.size());
        std::ranges::transform(texts, arguments.begin(), &std::string::c_str);
        const int status = Run_Verb(arguments);
        Finish(std::cout, "the output cannot be written");
        return status;
    } catch (const std::exception& fault) {
        std::cout.flush();
        std::cerr << "kestrum-cli: " << fault.what() << '\n';
        return unusable;
    }
}
