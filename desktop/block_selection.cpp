#include "desktop/block_selection.h"

#include "application/events.h"
#include "desktop/cell_map.h"
#include "desktop/help_line.h"
#include "desktop/text_bridge.h"
#include "desktop/typed_keys.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMimeData>

#include <algorithm>
#include <optional>

namespace kestrum::desktop {

namespace {

/// Beside the text on the clipboard: it was copied here, and each piece knows its column.
const QString own_format = QStringLiteral("application/x-kestrum-cells");

/// No sheet takes more, and to take it apart would need many times its memory.
constexpr qsizetype longest_table = 1'000'000;

std::optional<Spot> Step_Of(int key) {
    switch (key) {
    case Qt::Key_Up:
        return Spot{.column = 0, .row = -1};
    case Qt::Key_Down:
        return Spot{.column = 0, .row = 1};
    case Qt::Key_Left:
        return Spot{.column = -1, .row = 0};
    case Qt::Key_Right:
        return Spot{.column = 1, .row = 0};
    default:
        return std::nullopt;
    }
}

bool Has_Shift_Alone(const QKeyEvent& event) {
    return (event.modifiers() & ~Qt::KeypadModifier) == Qt::ShiftModifier;
}

bool Is_Modifier(const QKeyEvent& event) {
    return event.key() == Qt::Key_Shift || event.key() == Qt::Key_Control ||
           event.key() == Qt::Key_Alt || event.key() == Qt::Key_AltGr ||
           event.key() == Qt::Key_Meta;
}

/// Whether there is no more of the cell's own text to select with Shift and this arrow. A key that
/// is held down stops there.
bool Leaves_Text(const QWidget& widget, const Spot& step, bool repeats) {
    const auto* const edit = qobject_cast<const QLineEdit*>(&widget);
    if (edit == nullptr || step.row != 0) {
        return true;
    }
    const bool all_selected =
        edit->hasSelectedText() && edit->selectedText().size() == edit->text().size();
    const qsizetype end = step.column < 0 ? 0 : edit->text().size();
    return !repeats && (all_selected || edit->cursorPosition() == end);
}

/// The focus will come back by itself.
bool Is_Pause(Qt::FocusReason reason) {
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
           reason == Qt::MenuBarFocusReason;
}

QString Shortened(const QString& piece) {
    constexpr qsizetype most = 40;
    const QString line = piece.left(2 * most).simplified();
    return line.size() > most ? line.left(most) + QChar(0x2026) : line;
}

} // namespace

Block_Selection::Block_Selection(Session& session, Gate& gate, Focus_Keeper& keeper,
                                 Help_Line& help)
    : session_(session), gate_(gate), keeper_(keeper), help_(help) {}

void Block_Selection::Watch(Control_View& view) {
    if (Is_Block_Cell(view.control) && view.Widget() != nullptr) {
        view.Widget()->installEventFilter(this);
    }
}

bool Block_Selection::eventFilter(QObject* watched, QEvent* event) {
    auto* const seen = dynamic_cast<Control_View*>(watched);
    if (seen == nullptr) {
        return false; // it is just being destroyed
    }
    Control_View& view = *seen;
    switch (event->type()) {
    case QEvent::KeyPress:
        return Key_Pressed(view, static_cast<QKeyEvent&>(*event));
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        End();
        pressed_ = static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton ? &view : nullptr;
        return false;
    case QEvent::MouseMove:
        return Dragged(view, static_cast<QMouseEvent&>(*event));
    case QEvent::MouseButtonRelease:
        pressed_ = nullptr;
        return false;
    case QEvent::FocusOut:
        if (holder_ == &view && !Is_Pause(static_cast<QFocusEvent*>(event)->reason())) {
            End();
        }
        return false;
    case QEvent::InputMethod:
        End();
        return false;
    default:
        return false;
    }
}

// Selecting

bool Block_Selection::Key_Pressed(Control_View& view, const QKeyEvent& event) {
    const std::optional<Spot> step = Step_Of(event.key());
    if (step && Has_Shift_Alone(event)) {
        if (!Is_On() && !Leaves_Text(*view.Widget(), *step, event.isAutoRepeat())) {
            return false;
        }
        if (!Is_On()) {
            Begin(view);
        }
        Reach({.column = reaches_to_.column + step->column, .row = reaches_to_.row + step->row});
        return true;
    }
    if (!Is_On()) {
        return false;
    }
    if (Acts_On_Block(view, event)) {
        return true;
    }
    const bool is_escape = event.key() == Qt::Key_Escape;
    if (!Is_Modifier(event) && (step || !Is_Shortcut(event))) {
        End();
    }
    return is_escape;
}

bool Block_Selection::Acts_On_Block(Control_View& view, const QKeyEvent& event) {
    const bool is_bare = (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (event.matches(QKeySequence::Copy)) {
        Copy();
    } else if (event.matches(QKeySequence::Cut)) {
        Copy();
        Clear();
    } else if (event.matches(QKeySequence::Paste)) {
        Paste(view);
    } else if (is_bare && (event.key() == Qt::Key_Delete || event.key() == Qt::Key_Backspace)) {
        Clear();
    } else {
        return false;
    }
    return true;
}

bool Block_Selection::Dragged(Control_View& view, const QMouseEvent& event) {
    // A field that the focus had to go back from is not pressed.
    if (pressed_ != &view || (event.buttons() & Qt::LeftButton) == 0 ||
        !view.Widget()->hasFocus()) {
        return false;
    }
    QWidget& widget = *view.Widget();
    const QPoint place = widget.mapToParent(event.position().toPoint());
    const auto* const under =
        dynamic_cast<const Control_View*>(widget.parentWidget()->childAt(place));
    if (under == nullptr || !Is_Block_Cell(under->control)) {
        return Is_On();
    }
    if (!Is_On() && under != &view) {
        Begin(view);
    }
    if (!Is_On()) {
        return false;
    }
    Reach(Spot_Of(under->control));
    return true;
}

void Block_Selection::Take_Page_Of(Control_View& view) {
    auto* const page = dynamic_cast<Page*>(view.Widget()->parentWidget());
    if (page != nullptr && page != page_) {
        delete veil_;
        page_ = page;
        veil_ = new Block_Veil(*page);
        grid_ = std::make_unique<Cell_Grid>(view.control.Owner(), page->Holder());
    }
}

void Block_Selection::Begin(Control_View& view) {
    Take_Page_Of(view);
    holder_ = &view;
    began_with_ = Spot_Of(view.control);
    reaches_to_ = began_with_;
    Select_Text_Of_Holder();
}

void Block_Selection::Reach(const Spot& spot) {
    const Block& whole = grid_->Whole();
    reaches_to_ = {.column = std::clamp(spot.column, whole.first.column, whole.last.column),
                   .row = std::clamp(spot.row, whole.first.row, whole.last.row)};
    if (reaches_to_ == began_with_) {
        End();
    } else {
        veil_->Show_Over(Present(), began_with_);
    }
}

void Block_Selection::End() {
    if (Is_On()) {
        holder_ = nullptr;
        veil_->hide();
    }
}

/// What is typed next takes the place of the whole text, as it does in a cell that Tab has reached.
void Block_Selection::Select_Text_Of_Holder() const {
    if (auto* const edit = qobject_cast<QLineEdit*>(holder_->Widget())) {
        edit->selectAll();
    }
}

// Copying, filling, clearing

void Block_Selection::Copy() const {
    const std::string text = Copied_Block(*grid_, Present());
    auto* const data = new QMimeData; // the clipboard owns it
    data->setText(To_Qt(text));
    data->setData(own_format, QByteArray::fromStdString(text));
    QGuiApplication::clipboard()->setMimeData(data);
}

void Block_Selection::Clear() {
    if (Put_In(Cleared_Block(*grid_, Present()), "Clear Cells")) {
        Select_Text_Of_Holder();
    }
}

bool Block_Selection::Paste(Control_View& view) {
    const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
    if (!Is_Block_Cell(view.control) || data == nullptr) {
        return false;
    }
    const QString text = data->text();
    const Table_Rows table =
        text.size() > longest_table ? Table_Rows() : Rows_Of_Table(From_Qt(text));
    const bool is_one = table.size() == 1 && table.front().size() == 1;
    if (!Is_On() && (table.empty() || is_one)) {
        return false;
    }
    if (table.empty()) {
        Refuse(QStringLiteral("The clipboard holds nothing that these cells could take."));
        return true;
    }
    Take_Page_Of(view);
    const Spot from = Is_On() ? Present().first : Spot_Of(view.control);
    const Numeric_Text& numbers = session_.numbers;
    const Block_Fill fill = is_one ? Fill_Block(numbers, *grid_, Present(), table.front().front())
                            : data->hasFormat(own_format)
                                ? Fill_Spots(numbers, *grid_, from, table)
                                : Fill_Inputs(numbers, *grid_, from, table);
    if (Put_In(fill, "Paste Cells")) {
        Begin(view);
        began_with_ = fill.filled.first;
        Reach(fill.filled.last);
    }
    return true;
}

bool Block_Selection::Put_In(const Block_Fill& fill, const std::string& name) {
    if (!fill.refusal.empty()) {
        Refuse(Words_For(fill));
        return false;
    }
    if (!gate_.Enter_Command([&] { Enter_Block(session_, fill.texts); }, name)) {
        return false;
    }
    for (const New_Text& entry : fill.texts) {
        keeper_.Excuse(*entry.cell);
    }
    help_.Forget();
    return true;
}

void Block_Selection::Refuse(const QString& words) {
    session_.dialogs.Beep();
    help_.Tell(words);
}

QString Block_Selection::Words_For(const Block_Fill& refused) const {
    QString reason = To_Qt(refused.refusal);
    if (refused.piece.empty()) {
        return reason;
    }
    QString where = QLatin1String("Line ") + Digits_Of(refused.line) + QLatin1String(", column ") +
                    Digits_Of(refused.column) + QLatin1String(" of the copied cells");
    if (refused.cell != nullptr) {
        const Cell_Map map(refused.cell->Owner(), page_->Holder());
        where = map.Words_With_Lift(*refused.cell);
    }
    return where + QLatin1String(": \"") + Shortened(To_Qt(refused.piece)) + QLatin1String("\". ") +
           reason;
}

} // namespace kestrum::desktop
