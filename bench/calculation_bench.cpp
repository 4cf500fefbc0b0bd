// What a calculation costs beside the bare conversions between texts and numbers that it cannot do
// without, and what loading a file or switching the units costs beside calculations. Ratios of one
// run hold on every machine; the last lines print them.

#include "bench/fastest_reporter.h"
#include "core/null_platform.h"
#include "core/session_snapshot.h"
#include "engine/unit_conversion.h"
#include "files/flow_data_file.h"
#include "sheet/flow_calculation.h"

#include <benchmark/benchmark.h>

#include <array>
#include <charconv>
#include <string>
#include <vector>

namespace kestrum {

namespace {

// Texts that one calculation of the stored test reads and numbers that it writes: the calls of
// Numeric_Text::Read and of std::to_chars for doubles in a program that calculates twice less those
// in one that calculates once, as callgrind counts them. A read of the same field in two formulas
// is two reads, for the field may have changed.
constexpr int texts_read = 824;
constexpr int numbers_written = 300;

constexpr int repetitions = 5;

struct Bench {
    Null_Platform platform;
    Session session{platform, platform, {}};
    Flow_Sheet& sheet = session.Sheet(1);

    void Forget_Changes() { static_cast<void>(sheet.Take_Changes()); }
};

/// Loads the processor as the conversions alone would.
void Bare_Conversions(benchmark::State& state) {
    Bench bench;
    Calc_Flow_Test(bench.session, bench.sheet);
    // Texts and values of the kind that a calculation meets: those of its own results.
    std::vector<std::string> texts;
    std::vector<double> values;
    for (const Control& control : bench.sheet.Controls()) {
        const Cell_Use use = control.Entry().use;
        if (control.Index() >= first_test_row &&
            (use == Cell_Use::Result || use == Cell_Use::Input)) {
            texts.push_back(control.Text());
            values.push_back(bench.session.numbers(control).Value() / 3); // all digits in use
        }
    }
    std::array<char, 32> buffer{};
    for (auto _ : state) {
        for (int at = 0; at < texts_read; ++at) {
            const std::string& text = texts[static_cast<std::size_t>(at) % texts.size()];
            double value = 0;
            std::from_chars(text.data(), text.data() + text.size(), value);
            benchmark::DoNotOptimize(value);
        }
        for (int at = 0; at < numbers_written; ++at) {
            const double value = values[static_cast<std::size_t>(at) % values.size()];
            std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                          std::chars_format::scientific, 14);
            benchmark::DoNotOptimize(buffer);
        }
    }
}

void Calculation(benchmark::State& state) {
    Bench bench;
    for (auto _ : state) {
        Calc_Flow_Test(bench.session, bench.sheet);
        bench.Forget_Changes();
    }
}

void Load(benchmark::State& state) {
    Bench bench;
    const std::string file = Flow_File_Text(bench.session, bench.session.Sheet(2));
    for (auto _ : state) {
        benchmark::DoNotOptimize(Read_Flow_Records(bench.session, bench.sheet, file));
        bench.Forget_Changes();
    }
}

void Calculate_All(Bench& bench) {
    for (int number = 1; number <= sheet_count; ++number) {
        Calc_Flow_Test(bench.session, bench.session.Sheet(number));
        static_cast<void>(bench.session.Sheet(number).Take_Changes());
    }
}

/// What switching the units of all five tests and back may take.
void Four_Calculations_Of_All(benchmark::State& state) {
    Bench bench;
    for (auto _ : state) {
        for (int run = 0; run < 4; ++run) {
            Calculate_All(bench);
        }
    }
}

void Metric_And_Back(benchmark::State& state) {
    Bench bench;
    Calculate_All(bench);
    for (auto _ : state) {
        Set_Metric(bench.session, true);
        Set_Metric(bench.session, false);
        for (int number = 1; number <= sheet_count; ++number) {
            static_cast<void>(bench.session.Sheet(number).Take_Changes());
        }
        static_cast<void>(bench.session.Main().Take_Changes());
    }
}

/// What stands before every command of the desktop, when each screen has changed since the last.
void Snapshot_Of_All(benchmark::State& state) {
    Bench bench;
    for (const char* const name :
         {"Main", "Form1", "Form2", "Form3", "Form4", "Form5", "Form50", "Form60", "Form70"}) {
        static_cast<void>(bench.session.Screen_Named(name));
    }
    Calculate_All(bench);
    int value = 0;
    for (auto _ : state) {
        ++value;
        bench.session.For_Each_Loaded([value](Screen& screen) {
            screen.Controls().front().Set_Value(value);
            static_cast<void>(screen.Take_Changes());
        });
        const Session_Snapshot snapshot(bench.session);
        benchmark::DoNotOptimize(&snapshot);
    }
}

BENCHMARK(Snapshot_Of_All)->Repetitions(repetitions);
BENCHMARK(Bare_Conversions)->Repetitions(repetitions);
BENCHMARK(Calculation)->Repetitions(repetitions);
BENCHMARK(Load)->Repetitions(repetitions);
BENCHMARK(Four_Calculations_Of_All)->Repetitions(repetitions);
BENCHMARK(Metric_And_Back)->Repetitions(repetitions);

} // namespace

} // namespace kestrum

int main(int count, char* values[]) {
    return kestrum::Run_Benchmarks(count, values, [](const kestrum::Fastest_Reporter& reporter) {
        reporter.Print_Ratio("calculation / bare conversions", "Calculation", "Bare_Conversions",
                             2);
        reporter.Print_Ratio("load / calculation", "Load", "Calculation", 3);
        reporter.Print_Ratio("switch of units / two calculations of all", "Metric_And_Back",
                             "Four_Calculations_Of_All", 1);
    });
}
