#include "painting/own_fonts.h"
#include "painting/qt_painter.h"

#include <QGuiApplication>

#include <array>

namespace {

/// The part of Qt that sets texts. The smallest of its platforms is enough for pictures in memory
/// and starts several times faster than the others.
void Start_Qt() {
    static std::array<char, 12> name{"kestrum-cli"};
    static std::array<char, 10> option{"-platform"};
    static std::array<char, 21> platform{"minimal:enable_fonts"};
    static std::array<char*, 4> arguments{name.data(), option.data(), platform.data(), nullptr};
    static int count = 3;
    // Nothing but the program's own lines belongs on its standard error.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    // Kept to the end of the process, which need not wait for it to be taken down.
    static const auto* const application = new QGuiApplication(count, arguments.data());
    static_cast<void>(application);
    kestrum::painting::Know_Own_Fonts();
}

} // namespace

/// What the command-line program looks for in this module, which it loads only to paint.
extern "C" kestrum::Painter* Kestrum_Painter() {
    static kestrum::painting::Qt_Painter painter;
    if (QGuiApplication::instance() == nullptr) {
        Start_Qt();
    }
    return &painter;
}
