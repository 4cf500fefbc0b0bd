#include "tests/graph_test_bench.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kestrum {

namespace {

std::string Digits(int number) {
    return number < 10 ? std::string(1, static_cast<char>('0' + number))
                       : Digits(number / 10) + static_cast<char>('0' + number % 10);
}

} // namespace

Graph_Bench::Graph_Bench(const Bench_Options& options) : Test_Bench(options) {
    Set("Form1.Text102(0)", "Stock");
    Set("Form2.Text102(0)", "Ported");
    for (const char* const sheet : {"Form1", "Form2"}) {
        Fill_Even(sheet + std::string(".Text101"), 100);
    }
    Fill_Even("Form1.Text102", 10);
    Fill_Even("Form1.Text103", 5);
    Fill_Even("Form2.Text102", 20);
    Fill_Even("Form2.Text103", 10);
}

void Graph_Bench::Fill(std::string_view column, const std::vector<std::string_view>& values) {
    int row = zero_lift_row;
    const auto put = [&](std::string_view value) {
        Set(std::string(column) + "(" + Digits(row) + ")", value);
        ++row;
    };
    for (const std::string_view value : values) {
        put(value);
    }
    while (row <= last_lift_row) {
        put("0");
    }
}

void Graph_Bench::Fill_Even(std::string_view column, int step) {
    for (int row = zero_lift_row; row <= last_lift_row; ++row) {
        Set(std::string(column) + "(" + Digits(row) + ")", Digits((row - zero_lift_row) * step));
    }
}

void Graph_Bench::Pick(int type, int x_column) {
    Click("Form50.Option3(" + Digits(type) + ")");
    Click("Form50.Option4(" + Digits(x_column) + ")");
}

Events Graph_Bench::Draw(int type, int x_column) {
    Pick(type, x_column);
    Events events = Click("Form50.Command2");
    std::erase(events, "show Form60");
    return events;
}

std::vector<Draw_Operation> Graph_Bench::Lines(int colour, double width) const {
    std::vector<Draw_Operation> lines;
    std::ranges::copy_if(Steps(), std::back_inserter(lines), [&](const Draw_Operation& step) {
        return step.kind == Draw_Kind::Line && step.colour == colour && step.width == width;
    });
    return lines;
}

Draw_Operation Graph_Bench::Written(std::string_view text) const {
    EXPECT_EQ(Times_Written(text), 1U) << text;
    const auto found = std::ranges::find(Steps(), text, &Draw_Operation::text);
    return found == Steps().end() ? Draw_Operation{} : *found;
}

std::size_t Graph_Bench::Times_Written(std::string_view text) const {
    return static_cast<std::size_t>(std::ranges::count(Steps(), text, &Draw_Operation::text));
}

} // namespace kestrum
