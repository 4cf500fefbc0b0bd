// The least that a Qt program with many fields can cost: a window with one menu and as many line
// edits as its argument says. It prints how long it took to show them, and its memory, and ends.

#include <QApplication>
#include <QGridLayout>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QTimer>

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>

namespace {

/// Milliseconds since the moment that the caller put into BENCH_T0 right before the start, in
/// nanoseconds of the steady clock; below zero when there is none.
double Milliseconds_Since_Start() {
    const char* start = std::getenv("BENCH_T0");
    if (start == nullptr) {
        return -1;
    }
    const std::chrono::nanoseconds now = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<double>(now.count() - std::atoll(start)) / 1e6;
}

long Resident_Kilobytes() {
    std::ifstream status("/proc/self/status");
    std::string word;
    while (status >> word && word != "VmRSS:") {
    }
    long kilobytes = -1;
    status >> kilobytes;
    return kilobytes;
}

void Report_And_Quit() {
    QGuiApplication::sync(); // the display server has the picture
    const double painted = Milliseconds_Since_Start();
    std::cout << R"({"painted_ms":)" << painted << R"(,"rss_kb":)" << Resident_Kilobytes() << "}"
              << std::endl;
    QApplication::quit();
}

class Bare_Window : public QMainWindow {
public:
    explicit Bare_Window(int edits) {
        menuBar()->addMenu(QStringLiteral("&File"))->addAction(QStringLiteral("E&xit"));
        auto* page = new QWidget;
        auto* grid = new QGridLayout(page);
        constexpr int columns = 15;
        for (int edit = 0; edit < edits; ++edit) {
            grid->addWidget(new QLineEdit(QStringLiteral("0.000")), edit / columns, edit % columns);
        }
        setCentralWidget(page);
    }

protected:
    void paintEvent(QPaintEvent* event) override {
        QMainWindow::paintEvent(event);
        if (!painted) {
            painted = true;
            // The children are painted and flushed before the event loop comes round again.
            QTimer::singleShot(0, this, &Report_And_Quit);
        }
    }

private:
    bool painted = false;
};

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    Bare_Window window(argc > 1 ? std::atoi(argv[1]) : 120);
    window.show();
    return QApplication::exec();
}
