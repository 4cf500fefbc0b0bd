#pragma once

#include "desktop/printable.h"
#include "drawing/printer.h"
#include "platform/dialogs.h"

#include <QWidget>

#include <functional>
#include <optional>

namespace kestrum::desktop {

/// The printers of the system, and behind them a "printer" that writes a PDF file.
class Desktop_Printers : public Printers {
public:
    /// `window_of` gives the window of a screen as it stands. PDF files go to `folder` where the
    /// user says nothing else.
    Desktop_Printers(Dialogs& dialogs, const painting::Qt_Painter& logos, std::string folder,
                     std::function<QWidget*(const std::string& screen)> window_of)
        : dialogs_(dialogs),
          logos_(logos),
          folder_(std::move(folder)),
          window_of_(std::move(window_of)) {}

    [[nodiscard]] std::vector<std::string> Devices() const override;
    void Print(const std::string& device, const Document& document) override;
    void Print_Screen(const std::string& device, const Screen_Picture& picture) override;

    void Preview_Next() override { previews_ = true; }

    /// Prints at once, on a paper or on the printer's own one, and gives the words where to. Raises
    /// 482 when the device fails, and what writing a file raises. Nothing when the user gave no
    /// name for the file.
    std::optional<QString> Send(const std::string& device, const Printable& printable,
                                std::optional<Paper_Size> paper);

    /// Shows a print before it goes to a device; exchanged by tests.
    std::function<void(Desktop_Printers& printers, const std::string& device,
                       const Printable& printable)>
        show_preview;
    /// Told where a print has gone.
    std::function<void(const QString& words)> say;

private:
    void Print_Or_Show(const std::string& device, const Printable& printable);
    [[nodiscard]] static QString Print_On_Printer(const std::string& device,
                                                  const Printable& printable,
                                                  std::optional<Paper_Size> paper);
    [[nodiscard]] std::optional<QString> Write_Pdf(const Printable& printable, Paper_Size paper);

    Dialogs& dialogs_;
    const painting::Qt_Painter& logos_;
    std::string folder_;
    std::function<QWidget*(const std::string& screen)> window_of_;
    bool previews_ = false;
};

/// The last name in the list of printers.
inline constexpr std::string_view pdf_file = "PDF file";

} // namespace kestrum::desktop
