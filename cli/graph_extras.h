#pragma once

#include "cli/argument_reader.h"
#include "drawing/painter.h"

#include <string>
#include <vector>

namespace kestrum::cli {

/// What the user may set on the compare screen before the graph is drawn, and how the picture is
/// made.
struct Graph_Extras {
    /// Limits of the Y axis; empty: the program works them out.
    std::string y_low{};
    std::string y_high{};
    bool points = false;
    bool quarter = false;
    bool auto_lines = false;
    /// The two lines below the graph.
    std::vector<std::string> captions{};
    std::string logo{};
    Picture_Settings settings{};
};

/// Takes an option of this kind; false when it is none. Raises `Usage_Error` for a value that
/// cannot be used.
[[nodiscard]] bool Take_Extra(Graph_Extras& extras, Argument_Reader& reader);

/// The paper that the option's value names, "a4" or "letter". Raises `Usage_Error` for any other.
[[nodiscard]] Paper_Size Paper_From(Argument_Reader& reader);

} // namespace kestrum::cli
