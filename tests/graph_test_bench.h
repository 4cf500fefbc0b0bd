#pragma once

#include "graph/graph_state.h"
#include "tests/test_bench.h"

#include <span>
#include <string_view>
#include <vector>

namespace kestrum {

// Colours of the first and the second test.
inline constexpr int blue = 0x0000FF;
inline constexpr int red = 0xFF0000;

/// A session whose first two sheets hold tests that are easy to follow by hand, Form50 and Form60.
class Graph_Bench : public Test_Bench {
public:
    explicit Graph_Bench(const Bench_Options& options = {});

    /// Puts values into a column of a sheet from the zero lift on, and "0" into the rest of it.
    void Fill(std::string_view column, const std::vector<std::string_view>& values);

    /// The same with a step: 15 values from 0 on.
    void Fill_Even(std::string_view column, int step);

    void Pick(int type, int x_column = 0);

    /// Draws the graph of a type. Gives what happened.
    Events Draw(int type, int x_column = 0);

    [[nodiscard]] std::span<const Draw_Operation> Steps() const {
        return Graph_Of(session).canvas.Operations();
    }

    /// The steps that draw lines of a colour with a pen.
    [[nodiscard]] std::vector<Draw_Operation> Lines(int colour, double width) const;
    /// The one step that writes a text. Fails the test when there is none, or more.
    [[nodiscard]] Draw_Operation Written(std::string_view text) const;
    [[nodiscard]] std::size_t Times_Written(std::string_view text) const;
};

} // namespace kestrum
