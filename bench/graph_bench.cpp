// What a whole graph costs beside the bare exponentials that its four curves ask for, and what
// painting it costs. The ratio holds on every machine.

#include "bench/fastest_reporter.h"
#include "core/null_platform.h"
#include "graph/graph_set_up.h"
#include "sheet/flow_calculation.h"

#include <benchmark/benchmark.h>

#include <cmath>

#ifdef KESTRUM_PAINTS
#include "graph/graph_state.h"
#include "painting/png_writer.h"
#include "painting/replay.h"

#include <QGuiApplication>
#endif

namespace kestrum {

namespace {

// A fit through 15 points is sampled 1498 times, each with two hyperbolic sines, which X and Y
// share, and two exponentials in each sine.
constexpr int curves = 4;
constexpr int samples = 1498;
constexpr int exponentials = 4;

/// Two tests of 14 lifts and the zero lift, as they are stored.
struct Bench {
    Bench() {
        for (const int number : {1, 2}) {
            Calc_Flow_Test(session, session.Sheet(number));
        }
        Draw();
    }

    void Draw() {
        Draw_Fresh_Graph(session);
        static_cast<void>(session.Form50().Take_Changes());
        static_cast<void>(session.Form60().Take_Changes());
    }

    Null_Platform platform;
    Session session{platform, platform, {}};
};

void Take_Exponentials() {
    for (int at = 0; at < curves * samples; ++at) {
        // The arguments that a sample has: the tension times what is left and right of it.
        const double before = 50.0 / 14 * (at % 107) / 107;
        for (int call = 0; call < exponentials / 2; ++call) {
            benchmark::DoNotOptimize(std::exp(before));
            benchmark::DoNotOptimize(std::exp(-before));
        }
    }
}

void Bare_Exponentials(benchmark::State& state) {
    for (auto _ : state) {
        Take_Exponentials();
    }
}

void Whole_Graph(benchmark::State& state) {
    Bench bench;
    for (auto _ : state) {
        bench.Draw();
    }
    state.counters["steps"] =
        static_cast<double>(Graph_Of(bench.session).canvas.Operations().size());
}

constexpr int repetitions = 5;

BENCHMARK(Bare_Exponentials)->Unit(benchmark::kMicrosecond)->Repetitions(repetitions);
BENCHMARK(Whole_Graph)->Unit(benchmark::kMicrosecond)->Repetitions(repetitions);

#ifdef KESTRUM_PAINTS

/// Into a window of 600 by 600 dots; wanted is less than a frame of 16 ms.
void Replay_Graph(benchmark::State& state) {
    constexpr int size = 600;
    Bench bench;
    QImage image(size, size, QImage::Format_RGB32);
    for (auto _ : state) {
        image.fill(Qt::white);
        QPainter painter(&image);
        painting::Replay(Graph_Of(bench.session).canvas, std::nullopt, painter);
    }
}

void Pack_Png(benchmark::State& state) {
    constexpr int size = 1200;
    Bench bench;
    QImage image(size, size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(2, 2);
    painting::Replay(Graph_Of(bench.session).canvas, std::nullopt, painter);
    painter.end();
    std::size_t bytes = 0;
    for (auto _ : state) {
        bytes = painting::Png_Bytes(image).size();
    }
    state.counters["bytes"] = static_cast<double>(bytes);
}

BENCHMARK(Replay_Graph)->Unit(benchmark::kMillisecond);
BENCHMARK(Pack_Png)->Unit(benchmark::kMillisecond);

#endif

} // namespace

} // namespace kestrum

int main(int count, char* values[]) {
#ifdef KESTRUM_PAINTS
    qputenv("QT_QPA_PLATFORM", "minimal:enable_fonts");
    const QGuiApplication application(count, values);
#endif
    return kestrum::Run_Benchmarks(count, values, [](const kestrum::Fastest_Reporter& reporter) {
        reporter.Print_Ratio("graph / bare exponentials", "Whole_Graph", "Bare_Exponentials", 1.5);
    });
}
