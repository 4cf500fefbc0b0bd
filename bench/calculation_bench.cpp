// What a calculation costs beside the bare conversions between texts and numbers that it cannot do
// without, and what loading a file costs beside its calculation. Ratios of one run hold on every
// machine; the last lines print them.

#include "core/session.h"
#include "files/flow_data_file.h"
#include "sheet/flow_calculation.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace kestrum {

namespace {

// Texts that one calculation of the stored test reads and numbers that it writes: the calls of
// std::from_chars and std::to_chars for doubles in a program that calculates twice less those in
// one that calculates once, as callgrind counts them. A read of the same field in two formulas is
// two reads, for the field may have changed.
constexpr int texts_read = 824;
constexpr int numbers_written = 300;

constexpr int repetitions = 5;

class Silent_Platform : public Dialogs, public Windows {
public:
    Box_Answer Show_Box(const Box& /*box*/) override { return Box_Answer::Ok; }

    std::optional<std::string> Choose_File(const Chooser& /*chooser*/) override {
        return std::nullopt;
    }

    void Beep() override {}

    void Show(Screen& /*screen*/) override {}

    void Hide(Screen& /*screen*/) override {}

    void Unload(Screen& /*screen*/) override {}

    void Focus(Control& /*control*/) override {}
};

struct Bench {
    Silent_Platform platform;
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
            values.push_back(bench.session.number(control).Value() / 3); // all digits in use
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

BENCHMARK(Bare_Conversions)->Repetitions(repetitions);
BENCHMARK(Calculation)->Repetitions(repetitions);
BENCHMARK(Load)->Repetitions(repetitions);

/// Keeps the fastest repetition of each: what another program takes from it is no cost of ours.
class Fastest : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (run.run_type == Run::RT_Iteration) {
                double& best =
                    times_.try_emplace(run.run_name.function_name, run.GetAdjustedCPUTime())
                        .first->second;
                best = std::min(best, run.GetAdjustedCPUTime());
            }
        }
    }

    void Print_Ratio(const char* words, const char* over, const char* under, double wanted) const {
        if (times_.contains(over) && times_.contains(under)) {
            std::printf("%s: %.2f (wanted at most %g)\n", words, times_.at(over) / times_.at(under),
                        wanted);
        }
    }

private:
    std::map<std::string, double> times_;
};

} // namespace

} // namespace kestrum

int main(int count, char* values[]) {
    benchmark::Initialize(&count, values);
    if (benchmark::ReportUnrecognizedArguments(count, values)) {
        return 1;
    }
    kestrum::Fastest reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.Print_Ratio("calculation / bare conversions", "Calculation", "Bare_Conversions", 2);
    reporter.Print_Ratio("load / calculation", "Load", "Calculation", 3);
}
