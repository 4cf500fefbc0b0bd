#include "desktop/desktop_printers.h"

#include "base/run_time_error.h"
#include "desktop/text_bridge.h"
#include "platform/file_store.h"

#include <QPrinterInfo>

#include <utility>

namespace kestrum::desktop {

namespace {

/// Painted anew, several times as fine as on the display.
QPixmap Fine_Picture_Of(QWidget& window) {
    constexpr int dots = 3; // on paper for one of the display
    QPixmap picture(window.size() * dots);
    picture.setDevicePixelRatio(dots);
    window.render(&picture);
    return picture;
}

} // namespace

std::vector<std::string> Desktop_Printers::Devices() const {
    std::vector<std::string> names;
    const QString usual = QPrinterInfo::defaultPrinterName();
    if (!usual.isEmpty()) {
        names.push_back(From_Qt(usual));
    }
    for (const QString& name : QPrinterInfo::availablePrinterNames()) {
        if (name != usual) {
            names.push_back(From_Qt(name));
        }
    }
    names.emplace_back(pdf_file);
    return names;
}

void Desktop_Printers::Print(const std::string& device, const Document& document) {
    Print_Or_Show(device, Printable_Of(document, logos_));
}

void Desktop_Printers::Print_Screen(const std::string& device, const Screen_Picture& picture) {
    QWidget* const window = window_of_(picture.screen);
    if (window == nullptr) {
        Fail(error::printer_error);
    }
    Print_Or_Show(device, Printable_Of(Fine_Picture_Of(*window),
                                       window->windowTitle().remove(QStringLiteral("[*]"))));
}

void Desktop_Printers::Print_Or_Show(const std::string& device, const Printable& printable) {
    if (std::exchange(previews_, false) && show_preview) {
        show_preview(*this, device, printable);
    } else {
        Send(device, printable, std::nullopt);
    }
}

std::optional<QString> Desktop_Printers::Send(const std::string& device, const Printable& printable,
                                              std::optional<Paper_Size> paper) {
    std::optional<QString> words = device == pdf_file
                                       ? Write_Pdf(printable, paper.value_or(Usual_Paper()))
                                       : Print_On_Printer(device, printable, paper);
    if (words && say) {
        say(*words);
    }
    return words;
}

QString Desktop_Printers::Print_On_Printer(const std::string& device, const Printable& printable,
                                           std::optional<Paper_Size> paper) {
    QPrinter printer(QPrinter::HighResolution);
    Set_Up_Printer(printer, device, printable, paper);
    if (!printable.paint(printer) || printer.printerState() == QPrinter::Error) {
        Fail(error::printer_error);
    }
    return QStringLiteral("Printed on ") + To_Qt(device);
}

std::optional<QString> Desktop_Printers::Write_Pdf(const Printable& printable, Paper_Size paper) {
    const auto path = dialogs_.Choose_File({.mode = Chooser_Mode::Save,
                                            .filter = "PDF Files (*.pdf)|*.pdf|All Files (*.*)|*.*",
                                            .filter_index = 1,
                                            .folder = folder_,
                                            .proposal = printable.proposal,
                                            .completes = ".pdf"});
    if (!path) {
        return std::nullopt;
    }
    Write_Whole_File(path->path, Pdf_Bytes(printable, paper));
    return QStringLiteral("Saved to ") + To_Qt(path->path);
}

} // namespace kestrum::desktop
