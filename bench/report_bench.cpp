// What a text report of five tests with every column costs, beside the calculations of the five
// sheets that belong to it. The last lines print the ratio and the time.

#include "bench/fastest_reporter.h"
#include "core/null_platform.h"
#include "output/text_report.h"
#include "sheet/flow_calculation.h"

#include <benchmark/benchmark.h>

namespace kestrum {

namespace {

constexpr int repetitions = 5;

struct Bench {
    Null_Platform platform;
    Session session{platform, platform, {}};

    void Calculate_All() {
        for (int number = 1; number <= sheet_count; ++number) {
            Calc_Flow_Test(session, session.Sheet(number));
            static_cast<void>(session.Sheet(number).Take_Changes());
        }
    }
};

void Report_Of_Five(benchmark::State& state) {
    Bench bench;
    for (auto _ : state) {
        Create_Text_Report(bench.session);
        benchmark::DoNotOptimize(Report_Of(bench.session).text.size());
        for (int number = 1; number <= sheet_count; ++number) {
            static_cast<void>(bench.session.Sheet(number).Take_Changes());
        }
        static_cast<void>(bench.session.Form70().Take_Changes());
    }
}

void Five_Calculations(benchmark::State& state) {
    Bench bench;
    for (auto _ : state) {
        bench.Calculate_All();
    }
}

BENCHMARK(Report_Of_Five)->Repetitions(repetitions);
BENCHMARK(Five_Calculations)->Repetitions(repetitions);

} // namespace

} // namespace kestrum

int main(int count, char* values[]) {
    return kestrum::Run_Benchmarks(count, values, [](const kestrum::Fastest_Reporter& reporter) {
        reporter.Print_Ratio("report / its five calculations", "Report_Of_Five",
                             "Five_Calculations", 5);
        reporter.Print_Milliseconds("report of five tests", "Report_Of_Five", 5);
    });
}
