#include "cli/graph_options.h"

#include "cli/script_error.h"
#include "core/text.h"
#include "graph/compare_types.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace kestrum::cli {

namespace {

constexpr std::string_view graph_usage =
    "\nusage: kestrum-cli graph FROM.dat TO.dat --type 0..17 [--x lift|intake|exhaust] [--metric]\n"
    "           [--plus FROM2.dat TO2.dat]... -o FILE.(png|svg|pdf|bmp)";
constexpr std::string_view compare_usage =
    "\nusage: kestrum-cli compare FROM.dat TO.dat --type 0..17 [--x lift|intake|exhaust]\n"
    "           [--metric] [--csv]";

/// Takes the arguments one after the other.
class Argument_Reader {
public:
    Argument_Reader(std::span<const char* const> arguments, bool draws)
        : rest_(arguments), draws_(draws) {}

    [[nodiscard]] Graph_Options Read() {
        while (!rest_.empty()) {
            const std::string_view argument = Next("");
            if (!only_files_ && argument == "--") {
                only_files_ = true;
            } else if (!only_files_ && argument.starts_with('-')) {
                Take_Option(argument);
            } else {
                Take_File(argument);
            }
        }
        Check();
        return std::move(options_);
    }

private:
    [[nodiscard]] Script_Error Wrong_Call(const std::string& what) const {
        return Script_Error((draws_ ? "graph: " : "compare: ") + what +
                            std::string(draws_ ? graph_usage : compare_usage));
    }

    std::string_view Next(std::string_view option) {
        if (rest_.empty()) {
            throw Wrong_Call("'" + std::string(option) + "' wants a value");
        }
        const std::string_view next = rest_.front();
        rest_ = rest_.subspan(1);
        return next;
    }

    void Take_Option(std::string_view name) {
        if (name == "--type") {
            Take_Type(Next(name));
        } else if (name == "--x") {
            Take_X(Next(name));
        } else if (name == "--metric") {
            options_.metric = true;
        } else if (name == "--csv" && !draws_) {
            options_.csv = true;
        } else if (name == "--plus" && draws_) {
            Take_Overlay();
        } else if (name == "-o" && draws_) {
            Take_Output(Next(name));
        } else {
            throw Wrong_Call("unknown option '" + std::string(name) + "'");
        }
    }

    void Take_Type(std::string_view text) {
        const char* const last = text.data() + text.size();
        const auto [end, failure] = std::from_chars(text.data(), last, options_.type);
        if (failure != std::errc() || end != last || options_.type < 0 ||
            options_.type >= compare_type_count) {
            throw Wrong_Call("--type wants a number from 0 to 17");
        }
        has_type_ = true;
    }

    void Take_X(std::string_view text) {
        static constexpr std::array<std::string_view, 3> columns{"lift", "intake", "exhaust"};
        const auto* const found = std::ranges::find(columns, text);
        if (found == columns.end()) {
            throw Wrong_Call("--x wants lift, intake or exhaust");
        }
        options_.x_column = static_cast<int>(found - columns.begin());
    }

    void Take_Output(std::string_view text) {
        static constexpr std::array<std::string_view, 4> endings{".png", ".svg", ".pdf", ".bmp"};
        const std::string name = Lower_Copy(text);
        if (std::ranges::none_of(endings,
                                 [&](std::string_view end) { return name.ends_with(end); })) {
            throw Wrong_Call("-o wants a file that ends in .png, .svg, .pdf or .bmp");
        }
        options_.output = text;
    }

    void Take_Overlay() {
        File_Pair pair;
        pair.from = Next("--plus");
        pair.to = Next("--plus");
        if (pair.from.empty() || pair.to.empty()) {
            throw Wrong_Call("a file name is empty");
        }
        overlays_.push_back(std::move(pair));
    }

    void Take_File(std::string_view name) {
        if (name.empty()) {
            throw Wrong_Call("a file name is empty");
        }
        files_.emplace_back(name);
    }

    void Check() {
        constexpr std::size_t most_overlays = 3;
        if (files_.size() != 2) {
            throw Wrong_Call("two files are wanted, the From test and the To test");
        }
        if (!has_type_) {
            throw Wrong_Call("--type is missing");
        }
        if (draws_ && options_.output.empty()) {
            throw Wrong_Call("-o is missing");
        }
        if (overlays_.size() > most_overlays) {
            throw Wrong_Call("a graph takes three pairs of --plus at most");
        }
        options_.pairs.push_back({files_[0], files_[1]});
        std::ranges::move(overlays_, std::back_inserter(options_.pairs));
    }

    std::span<const char* const> rest_;
    bool draws_;
    bool only_files_ = false;
    bool has_type_ = false;
    Graph_Options options_;
    std::vector<std::string> files_;
    std::vector<File_Pair> overlays_;
};

} // namespace

Graph_Options Graph_Options_From(std::span<const char* const> arguments) {
    return Argument_Reader(arguments, true).Read();
}

Graph_Options Compare_Options_From(std::span<const char* const> arguments) {
    return Argument_Reader(arguments, false).Read();
}

} // namespace kestrum::cli
