// The desktop program, which measures how long it takes to paint. Told by its environment:
// KESTRUM_BENCH is "start" (until `Main` is painted), "sheet" (then the first sheet as well) or
// "adapt" (all screens stretched to the display and painted again), BENCH_T0 the moment before the
// start. It prints the figures and ends.

#include "application/events.h"
#include "desktop/desktop_run.h"
#include "desktop/program.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <memory>
#include <string>

namespace {

using namespace kestrum;
using namespace kestrum::desktop;

using Nanoseconds = long long;

Nanoseconds Now() {
    return std::chrono::nanoseconds(std::chrono::steady_clock::now().time_since_epoch()).count();
}

/// Nanoseconds of the steady clock that the caller noted right before the start.
Nanoseconds Moment_Of_Start() {
    return qEnvironmentVariable("BENCH_T0").toLongLong();
}

std::string Milliseconds(Nanoseconds span) {
    constexpr double per_millisecond = 1e6;
    constexpr std::size_t longest = 32;
    std::string digits(longest, '\0');
    const auto end =
        std::to_chars(digits.data(), digits.data() + longest,
                      static_cast<double>(span) / per_millisecond, std::chars_format::fixed, 3)
            .ptr;
    digits.resize(static_cast<std::size_t>(end - digits.data()));
    return digits;
}

std::string Resident_Kilobytes() {
    std::ifstream status("/proc/self/status");
    std::string word;
    while (status >> word && word != "VmRSS:") {
    }
    status >> word;
    return word;
}

struct Figures {
    Nanoseconds main_painted = 0;
    Nanoseconds sheet_asked_for = 0;
    Nanoseconds sheet_painted = 0;
};

void Report(const Figures& figures) {
    const std::string line =
        R"({"main_painted_ms":)" + Milliseconds(figures.main_painted - Moment_Of_Start()) +
        R"(,"sheet_painted_ms":)" + Milliseconds(figures.sheet_painted - figures.sheet_asked_for) +
        R"(,"rss_kb":)" + Resident_Kilobytes() + "}\n";
    std::fputs(line.c_str(), stdout);
    std::fflush(stdout);
    QCoreApplication::exit(0); // and nothing is written
}

/// Notes when the last of what had to be painted was on the display.
class Paint_Watch : public QObject {
public:
    Paint_Watch() {
        constexpr int milliseconds = 10;
        qApp->installEventFilter(this);
        tick_.start(milliseconds); // or a wait for events would not end
    }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Paint && !noting_) {
            noting_ = true;
            QTimer::singleShot(0, this, [this] { // when this round of painting is over
                QGuiApplication::sync();
                last_ = Now();
                noting_ = false;
            });
        }
        return false;
    }

    /// Waits for painting after a moment until there is no more of it, and gives the moment of the
    /// last paint.
    Nanoseconds Last_Paint(Nanoseconds since) const {
        constexpr Nanoseconds calm = 500'000'000;
        while (last_ < since || Now() - last_ < calm) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        return last_;
    }

private:
    QTimer tick_;
    Nanoseconds last_ = 0;
    bool noting_ = false;
};

/// Every screen stands open, so all windows are resized and painted.
void Measure_Adaptation(Program& program) {
    Session& session = program.Its_Session();
    const Paint_Watch watch;
    const Nanoseconds opened = Now();
    for (const Screen_Id id : all_screens) {
        program.Its_Gate().Enter([&] { session.Show(session.The(id)); });
    }
    static_cast<void>(watch.Last_Paint(opened));
    const Nanoseconds start = Now();
    const std::clock_t worked = std::clock();
    program.Its_Gate().Enter_Command(
        [&session] { Click(session, *session.Main().Find("FullScrRes", {})); });
    const Nanoseconds repainted = watch.Last_Paint(start);
    constexpr Nanoseconds per_tick = 1'000'000'000 / CLOCKS_PER_SEC;
    const std::string line = R"({"repainted_ms":)" + Milliseconds(repainted - start) +
                             R"(,"worked_ms":)" + Milliseconds((std::clock() - worked) * per_tick) +
                             "}\n";
    std::fputs(line.c_str(), stdout);
    std::fflush(stdout);
    QCoreApplication::exit(0);
}

void Measure(Program& program) {
    if (qEnvironmentVariable("KESTRUM_BENCH") == QLatin1String("adapt")) {
        QTimer::singleShot(0, qApp, [&program] { Measure_Adaptation(program); });
        return;
    }
    const bool with_sheet = qEnvironmentVariable("KESTRUM_BENCH") == QLatin1String("sheet");
    const auto figures = std::make_shared<Figures>();
    program.Its_Windows().on_new_window = [figures, with_sheet, &program](Screen_Window& window,
                                                                          const Screen& screen) {
        const bool is_main = screen.Kind() == Screen_Kind::Engine;
        window.on_first_paint = [figures, with_sheet, is_main, &program] {
            QGuiApplication::sync(); // the display server has the picture
            (is_main ? figures->main_painted : figures->sheet_painted) = Now();
            if (is_main && with_sheet) {
                figures->sheet_asked_for = Now();
                Click(program.Its_Session(), *program.Its_Session().Main().Find("Command1", {}));
                return;
            }
            Report(*figures);
        };
    };
}

} // namespace

int main(int count, char* values[]) { // NOLINT(*-avoid-c-arrays)
    return Run_Desktop(count, values, Measure);
}
