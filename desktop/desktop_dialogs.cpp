#include "desktop/desktop_dialogs.h"

#include "desktop/file_filters.h"
#include "desktop/native_path.h"
#include "desktop/text_bridge.h"

#include <QApplication>
#include <QCloseEvent>
#include <QColorDialog>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QFontDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>

#include <algorithm>

namespace kestrum::desktop {

namespace {

QMessageBox::Icon Icon_Of(Box_Icon icon) {
    switch (icon) {
    case Box_Icon::Information:
        return QMessageBox::Information;
    case Box_Icon::Exclamation:
        return QMessageBox::Warning;
    case Box_Icon::Stop:
        return QMessageBox::Critical;
    case Box_Icon::Question:
        return QMessageBox::Question;
    case Box_Icon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons Buttons_Of(Box_Buttons buttons) {
    switch (buttons) {
    case Box_Buttons::Ok_Cancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case Box_Buttons::Yes_No:
        return QMessageBox::Yes | QMessageBox::No;
    case Box_Buttons::Ok:
        break;
    }
    return QMessageBox::Ok;
}

Box_Answer Answer_Of(int button) {
    switch (button) {
    case QMessageBox::Cancel:
        return Box_Answer::Cancel;
    case QMessageBox::Yes:
        return Box_Answer::Yes;
    case QMessageBox::No:
        return Box_Answer::No;
    default:
        return Box_Answer::Ok;
    }
}

/// A question is answered by one of its buttons; Escape is none of them.
class Question_Box : public QMessageBox {
public:
    using QMessageBox::QMessageBox;

protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() != Qt::Key_Escape || !(standardButtons() & QMessageBox::No)) {
            QMessageBox::keyPressEvent(event);
        }
    }

    void closeEvent(QCloseEvent* event) override {
        if (standardButtons() & QMessageBox::No) {
            event->ignore();
        } else {
            QMessageBox::closeEvent(event);
        }
    }
};

/// Tells folders from files by nothing else: a look into each file would hang on a slow one.
class Plain_Icons : public QFileIconProvider {
public:
    using QFileIconProvider::icon;

    [[nodiscard]] QIcon icon(const QFileInfo& file) const override {
        return icon(file.isDir() ? QFileIconProvider::Folder : QFileIconProvider::File);
    }

    [[nodiscard]] QString type(const QFileInfo& file) const override {
        return file.isDir() ? QStringLiteral("Folder") : file.suffix();
    }
};

/// The place of an entry, from 1. With its details hidden, some versions of the toolkit tell an
/// entry by its words alone.
std::optional<int> Entry_Of(const QStringList& filters, const QString& selected) {
    for (qsizetype index = 0; index < filters.size(); ++index) {
        const QString words = filters[index].left(filters[index].lastIndexOf(QLatin1Char('(')));
        if (filters[index] == selected || words.trimmed() == selected.trimmed()) {
            return static_cast<int>(index) + 1;
        }
    }
    return std::nullopt;
}

/// The ending that a name without one gets while an entry is in force; empty for none.
QString Ending_For(const QStringList& filters, const QString& selected, const Chooser& chooser,
                   qsizetype own_entries) {
    const int entry = Entry_Of(filters, selected).value_or(0);
    if (entry == 0) {
        return {};
    }
    const QString ending = Ending_Of(filters[entry - 1]);
    return entry > own_entries || ending == To_Qt(chooser.completes) ? ending : QString();
}

/// Whether a completed name is that of a file which is there the chooser looks itself.
void Help_With_The_Name(QFileDialog& dialog, const Chooser& chooser, qsizetype own_entries) {
    const auto complete = [&dialog, &chooser, own_entries](const QString& selected) {
        const QStringList filters = dialog.nameFilters();
        dialog.setDefaultSuffix(Ending_For(filters, selected, chooser, own_entries));
    };
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, complete);
    complete(dialog.selectedNameFilter());
    if (!chooser.proposal.empty()) {
        dialog.selectFile(To_Qt(chooser.proposal));
        if (auto* const name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))) {
            name->selectAll(); // the first key replaces it
        }
    }
}

} // namespace

QString Text_For_Box(std::string_view text) {
    constexpr std::size_t most_bytes = 20'000;
    constexpr qsizetype longest_line = 600;
    constexpr qsizetype most_lines = 30;
    const bool cut = text.size() > most_bytes;
    QStringList lines = Lines_To_Qt(text.substr(0, most_bytes)).split(QLatin1Char('\n'));
    const QChar ellipsis(0x2026);
    for (QString& line : lines) {
        if (line.size() > longest_line) {
            line = line.left(longest_line) + ellipsis;
        }
    }
    if (lines.size() > most_lines) {
        lines = lines.mid(0, most_lines) + QStringList{QString(ellipsis)};
    } else if (cut && !lines.last().endsWith(ellipsis)) {
        lines.last() += ellipsis;
    }
    return lines.join(QLatin1Char('\n'));
}

Box_Answer Desktop_Dialogs::Show_Box(const Box& box) {
    Question_Box dialog(QApplication::activeWindow());
    dialog.setTextFormat(Qt::PlainText);
    dialog.setWindowTitle(To_Qt(box.title.empty() ? title_ : box.title));
    dialog.setText(Text_For_Box(box.text));
    if (const QWidget* const owner = dialog.parentWidget()) { // which test the box is about
        dialog.setToolTip(owner->windowTitle().section(QStringLiteral("[*]"), 0, 0));
    }
    dialog.setIcon(Icon_Of(box.icon));
    dialog.setStandardButtons(Buttons_Of(box.buttons));
    return Answer_Of(dialog.exec());
}

std::optional<Chosen_Path> Desktop_Dialogs::Choose_File(const Chooser& chooser) {
    Plain_Icons icons;
    const bool saves = chooser.mode == Chooser_Mode::Save;
    QFileDialog dialog(QApplication::activeWindow(),
                       saves ? QStringLiteral("Save") : QStringLiteral("Open"),
                       To_Qt(chooser.folder));
    // The toolkit's own chooser keeps the filters in their words and order everywhere.
    dialog.setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::HideNameFilterDetails);
    dialog.setIconProvider(&icons);
    dialog.setAcceptMode(saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(saves ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    const QStringList own = Name_Filters(chooser.filter);
    const QStringList filters = own + Name_Filters(chooser.more_entries);
    dialog.setNameFilters(filters);
    if (!own.isEmpty()) {
        const auto last = static_cast<int>(own.size());
        dialog.selectNameFilter(own[std::clamp(chooser.filter_index, 1, last) - 1]);
    }
    if (saves) {
        Help_With_The_Name(dialog, chooser, own.size());
    }
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return std::nullopt;
    }
    return Chosen_Path{
        .path = Native_Path(dialog.selectedFiles().constFirst()),
        .filter_index =
            Entry_Of(filters, dialog.selectedNameFilter()).value_or(chooser.filter_index)};
}

std::optional<int> Desktop_Dialogs::Choose_Colour() {
    const QColor colour = QColorDialog::getColor(Qt::black, QApplication::activeWindow(), QString(),
                                                 QColorDialog::DontUseNativeDialog);
    if (!colour.isValid()) {
        return std::nullopt;
    }
    constexpr int byte = 256; // the system counts blue, green, red
    return (colour.blue() * byte + colour.green()) * byte + colour.red();
}

std::optional<Font> Desktop_Dialogs::Choose_Font(const Font& shown) {
    QFont font(To_Qt(shown.name));
    font.setPointSizeF(shown.size);
    font.setBold(shown.bold);
    font.setItalic(shown.italic);
    bool is_chosen = false;
    font = QFontDialog::getFont(&is_chosen, font, QApplication::activeWindow(), QString(),
                                QFontDialog::DontUseNativeDialog);
    if (!is_chosen) {
        return std::nullopt;
    }
    return Font{.name = From_Qt(font.family()),
                .size = font.pointSizeF(),
                .bold = font.bold(),
                .italic = font.italic()};
}

void Desktop_Dialogs::Beep() {
    QApplication::beep();
}

} // namespace kestrum::desktop
