#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace kestrum {

/// Keeps the fastest repetition of each: what another program takes from it is no cost of ours.
class Fastest_Reporter : public benchmark::ConsoleReporter {
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

    /// Of a benchmark that counts in nanoseconds, as they do unless told.
    void Print_Milliseconds(const char* words, const char* name, double wanted) const {
        constexpr double nanoseconds = 1e6;
        if (times_.contains(name)) {
            std::printf("%s: %.3f ms (wanted below %g)\n", words, times_.at(name) / nanoseconds,
                        wanted);
        }
    }

private:
    std::map<std::string, double> times_;
};

/// Runs the benchmarks and then `print`, which gets their times; gives the program's status.
template <typename Print>
int Run_Benchmarks(int count, char** values, Print print) {
    benchmark::Initialize(&count, values);
    if (benchmark::ReportUnrecognizedArguments(count, values)) {
        return 1;
    }
    Fastest_Reporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    print(reporter);
    return 0;
}

} // namespace kestrum
