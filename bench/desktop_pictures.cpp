// Paints every screen with an example test into PNG files, to be looked at. Told by its
// environment: KESTRUM_FOLDER holds the example as "pictures.dat", KESTRUM_PICTURES is where the
// files go, KESTRUM_ADAPTED=1 adapts all screens to the display first.

#include "application/events.h"
#include "desktop/desktop_run.h"
#include "desktop/program.h"
#include "files/flow_data_file.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QScreen>
#include <QTimer>

#include <cstdio>
#include <string>
#include <string_view>

namespace {

using namespace kestrum;
using namespace kestrum::desktop;

/// Lets windows come up and be painted.
void Wait(int milliseconds) {
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < milliseconds) {
        QApplication::processEvents(QEventLoop::AllEvents, milliseconds);
    }
}

class Photographer {
public:
    explicit Photographer(Program& program) : program_(program), session_(program.Its_Session()) {}

    void Take_All() {
        Open_Example();
        if (qEnvironmentVariableIntValue("KESTRUM_ADAPTED") != 0) {
            QElapsedTimer clock;
            clock.start();
            Press("Main.FullScrRes");
            std::fputs(("adapted in " + std::to_string(clock.elapsed()) + " ms\n").c_str(), stdout);
            Wait(settling);
        }
        Shoot(session_.Main(), "main");
        Press("Main.Preload");
        Shoot(session_.Main(), "preloads");
        Press("Main.Command44");
        Press("Main.Co_Name");
        Shoot(session_.Main(), "company");
        Press("Main.Command95");
        Press("Main.Command1");
        Press("Form1.Command1");
        Shoot(session_.Sheet(1), "sheet");
        Press("Form1.NextPage");
        Shoot(session_.Sheet(1), "page_2");
        Press("Main.Command50");
        Press("Form50.Command1");
        Shoot(session_.Form50(), "compare");
        Press("Form50.Command2");
        Shoot(session_.Form60(), "graph");
        Press("Main.Command33");
        Press("Form70.Select");
        Press("Form70.Command2");
        Shoot(session_.Form70(), "report");
        QCoreApplication::exit(0);
    }

private:
    static constexpr int settling = 250;

    void Open_Example() {
        program_.Its_Gate().Enter(
            [this] { Load_Flow_File(session_, session_.Sheet(1), "pictures.dat"); });
        Wait(settling);
    }

    void Press(std::string_view address) {
        const std::size_t dot = address.find('.');
        Screen* const screen = session_.Screen_Named(address.substr(0, dot));
        Control* const control = screen->Find(address.substr(dot + 1), std::nullopt);
        if (control == nullptr) {
            std::fputs(("no " + std::string(address) + "\n").c_str(), stdout);
            return;
        }
        program_.Its_Gate().Enter_Command([&] { Click(session_, *control); });
        Wait(settling);
    }

    void Shoot(Screen& screen, const char* name) {
        Screen_Window* const window = program_.Its_Windows().Window_Of(screen);
        if (window == nullptr) {
            return;
        }
        window->Refresh();
        Wait(settling);
        const QRect frame = window->frameGeometry();
        const QRect room = window->screen()->availableGeometry();
        const auto line = std::string(name) + " " + std::to_string(window->width()) + "x" +
                          std::to_string(window->height()) +
                          (room.contains(frame) ? "" : " PAST THE SCREEN") + "\n";
        std::fputs(line.c_str(), stdout);
        const QString folder = qEnvironmentVariable("KESTRUM_PICTURES");
        window->grab().save(folder + QLatin1Char('/') + QLatin1String(name) +
                            QLatin1String(".png"));
    }

    Program& program_;
    Session& session_;
};

void Photograph(Program& program) {
    QTimer::singleShot(1000, qApp, [&program] { Photographer(program).Take_All(); });
    auto* const answerer = new QTimer(qApp);
    QObject::connect(answerer, &QTimer::timeout, qApp, [] {
        if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            std::fputs(("box: " + box->text().toStdString() + "\n").c_str(), stdout);
            box->accept();
        }
    });
    answerer->start(100);
}

} // namespace

int main(int count, char* values[]) { // NOLINT(*-avoid-c-arrays)
    return Run_Desktop(count, values, Photograph);
}
