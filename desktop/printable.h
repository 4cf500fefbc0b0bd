#pragma once

#include "drawing/paper.h"
#include "painting/qt_painter.h"

#include <QPagedPaintDevice>
#include <QPixmap>
#include <QPrinter>
#include <QString>

#include <functional>
#include <optional>
#include <string>

namespace kestrum::desktop {

/// Something that is to come out on paper, whatever device it is painted on.
struct Printable {
    QString title;
    /// Name or path of a PDF file; empty: none.
    std::string proposal{};
    bool landscape = false;
    /// False when the device cannot be painted on.
    std::function<bool(QPagedPaintDevice& device)> paint;
};

[[nodiscard]] Printable Printable_Of(const Document& document, const painting::Qt_Painter& logos);
/// A picture as large as the page takes it.
[[nodiscard]] Printable Printable_Of(const QPixmap& picture, const QString& title);

/// A printer of the system with a paper, its own one where none is given. Raises 482 when there is
/// no such printer.
void Set_Up_Printer(QPrinter& printer, const std::string& device, const Printable& printable,
                    std::optional<Paper_Size> paper);

/// The bytes of a PDF file. Raises 482 when it cannot be made.
[[nodiscard]] std::string Pdf_Bytes(const Printable& printable, Paper_Size paper);

/// The paper of the user's country.
[[nodiscard]] Paper_Size Usual_Paper();

} // namespace kestrum::desktop
