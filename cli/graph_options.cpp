#include "cli/graph_options.h"

#include "base/text.h"
#include "cli/argument_reader.h"
#include "cli/usage_texts.h"
#include "graph/compare_types.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace kestrum::cli {

namespace {

/// Takes the arguments of both verbs, of which one draws.
class Graph_Arguments {
public:
    Graph_Arguments(std::span<const char* const> arguments, bool draws)
        : reader_(draws ? "graph" : "compare", draws ? usage::graph : usage::compare, arguments),
          draws_(draws) {}

    [[nodiscard]] Graph_Options Read() {
        while (reader_.Next()) {
            if (reader_.Is_Option()) {
                Take_Option();
            } else {
                files_.push_back(reader_.File());
            }
        }
        Check();
        return std::move(options_);
    }

private:
    void Take_Option() {
        if (reader_.Is("--type")) {
            options_.type = reader_.Whole_Value(0, compare_type_count - 1);
            has_type_ = true;
        } else if (reader_.Is("--x")) {
            options_.x_column = reader_.Choice({"lift", "intake", "exhaust"});
        } else if (reader_.Is("--metric")) {
            options_.metric = true;
        } else if (reader_.Is("--csv") && !draws_) {
            options_.csv = true;
        } else if (reader_.Is("--plus") && draws_) {
            Take_Overlay();
        } else if (reader_.Is("-o") && draws_) {
            Take_Output(reader_.Value());
        } else if (!draws_ || !Take_Extra(options_.extras, reader_)) {
            throw reader_.Unknown_Option();
        }
    }

    void Take_Output(std::string_view text) {
        static constexpr std::array<std::string_view, 4> endings{".png", ".svg", ".pdf", ".bmp"};
        const std::string name = Lower_Copy(text);
        if (std::ranges::none_of(endings,
                                 [&](std::string_view end) { return name.ends_with(end); })) {
            throw reader_.Wrong_Call("-o wants a file that ends in .png, .svg, .pdf or .bmp");
        }
        options_.output = text;
    }

    void Take_Overlay() {
        File_Pair pair;
        pair.from = reader_.Value();
        pair.to = reader_.Value();
        if (pair.from.empty() || pair.to.empty()) {
            throw reader_.Wrong_Call("a file name is empty");
        }
        overlays_.push_back(std::move(pair));
    }

    void Check() {
        constexpr std::size_t most_overlays = 3;
        if (files_.size() != 2) {
            throw reader_.Wrong_Call("two files are wanted, the From test and the To test");
        }
        if (!has_type_) {
            throw reader_.Wrong_Call("--type is missing");
        }
        if (draws_ && options_.output.empty()) {
            throw reader_.Wrong_Call("-o is missing");
        }
        if (overlays_.size() > most_overlays) {
            throw reader_.Wrong_Call("a graph takes three pairs of --plus at most");
        }
        options_.pairs.push_back({files_[0], files_[1]});
        std::ranges::move(overlays_, std::back_inserter(options_.pairs));
    }

    Argument_Reader reader_;
    bool draws_;
    bool has_type_ = false;
    Graph_Options options_;
    std::vector<std::string> files_;
    std::vector<File_Pair> overlays_;
};

} // namespace

Graph_Options Graph_Options_From(std::span<const char* const> arguments) {
    return Graph_Arguments(arguments, true).Read();
}

Graph_Options Compare_Options_From(std::span<const char* const> arguments) {
    return Graph_Arguments(arguments, false).Read();
}

} // namespace kestrum::cli
