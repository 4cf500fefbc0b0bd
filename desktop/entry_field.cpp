#include "desktop/entry_field.h"

#include "desktop/crisp.h"
#include "desktop/text_bridge.h"
#include "desktop/text_views.h"
#include "desktop/typed_keys.h"
#include "screens/screen.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QSignalBlocker>
#include <QTimer>

#include <algorithm>
#include <memory>

namespace kestrum::desktop {

namespace {

constexpr int foot_height = 2;

bool Is_Character(char32_t code) {
    constexpr char32_t first_printable = 32;
    constexpr char32_t deletes = 127;
    return code >= first_printable && code != deletes;
}

/// The characters that a key types; empty for an editing key.
QString Typed_Characters(const QKeyEvent& event) {
    const QString text = event.text();
    return text.isEmpty() || !Is_Character(text.at(0).unicode()) ? QString() : text;
}

} // namespace

Entry_Field::Entry_Field(Control& its_control, const View_Facts& its_facts, QWidget* parent)
    : Widget_View(its_control, its_facts, parent) {
    setFrame(false);
    setTextMargins(theme::text_padding - 2, 0, 0, foot_height);
    Entry_Field::Name_Anew();
    Entry_Field::Refresh();
    connect(this, &QLineEdit::textChanged, this, &Entry_Field::Take_Typed);
}

void Entry_Field::Refresh() {
    Show_Text();
    if (!shown_once_ || look_ != control.Present_Look() || is_old_ != theme::Is_Old(control)) {
        Show_Look();
    }
    if (is_left_ != control.Is_Left()) {
        is_left_ = control.Is_Left();
        update();
    }
}

void Entry_Field::Show_Text() {
    const QString present = To_Qt(control.Text());
    if (present != text()) {
        const QSignalBlocker quiet(this);
        setText(present);
        if (!hasFocus()) {
            setCursorPosition(0); // a long text shows its beginning
        }
        // A text that is longer than the editor takes must not come back cut.
        setReadOnly(control.Present_Look().locked || text() != present);
    }
}

void Entry_Field::Show_Look() {
    const Look& look = control.Present_Look();
    look_ = look;
    is_old_ = theme::Is_Old(control);
    shown_once_ = true;
    Show_Letters();
    setReadOnly(look_.locked || text() != To_Qt(control.Text()));
    setAlignment(Alignment_Of(control));
    Show_Ink();
    Show_Common_State(*this, control);
    update();
}

/// A field without letters of its own has its page's, which grows with the window. A large one is
/// held to the height of its cell.
void Entry_Field::Show_Letters() {
    if (theme::Chosen_Font(control) == Font() && !theme::Is_Old(control)) {
        if (own_letters_) {
            own_letters_ = false;
            setFont(QFont());
        }
        return;
    }
    own_letters_ = true;
    QFont letters = theme::Font_Of(control, parentWidget()->font());
    while (letters.pixelSize() > theme::smallest_pixels &&
           QFontMetrics(letters).ascent() > height() - foot_height) {
        letters.setPixelSize(letters.pixelSize() - 1);
    }
    if (letters != font()) {
        setFont(letters);
    }
}

void Entry_Field::resizeEvent(QResizeEvent* event) {
    Widget_View::resizeEvent(event);
    if (own_letters_) {
        Show_Letters();
    }
}

void Entry_Field::Show_Ink() {
    theme::Cell_Colours colours = theme::Colours_Of(control);
    if (control.Entry().use == Cell_Use::Caption) {
        colours.text = theme::Caption_Ink(look_.side); // a caption with a field's handlers
    }
    if (palette().color(QPalette::Text).rgb() != colours.text) {
        QPalette own = palette();
        own.setColor(QPalette::Text, QColor::fromRgb(colours.text));
        setPalette(own);
    }
}

void Entry_Field::Show_Selection(const Selection& selection) {
    if (selection.length > 0) {
        selectAll();
    } else {
        deselect();
        end(false);
    }
}

void Entry_Field::Name_Anew() {
    setAccessibleName(facts.events.Words_Of(control));
}

void Entry_Field::Take_Typed(const QString& text) {
    facts.events.Typed(control, From_Qt(text));
}

bool Entry_Field::All_Pass(const QString& typed) {
    const QList<uint> characters = typed.toUcs4();
    const bool all = std::ranges::all_of(
        characters, [this](char32_t character) { return facts.events.Passes(control, character); });
    if (!all) {
        Flash();
    }
    return all;
}

void Entry_Field::Flash() {
    constexpr int milliseconds = 300;
    flashes_ = true;
    update();
    QTimer::singleShot(milliseconds, this, [this] {
        flashes_ = false;
        update();
    });
}

bool Entry_Field::Moves_Away(const QKeyEvent& event) {
    if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) {
        return false;
    }
    const bool all_selected = hasSelectedText() && selectedText().size() == text().size();
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (control.Owner().Kind() == Screen_Kind::Engine) {
            return focusNextChild(); // its cells stand in no columns to go down
        }
        [[fallthrough]];
    case Qt::Key_Down:
        facts.events.Move_Focus(*this, Direction::Down);
        return true;
    case Qt::Key_Up:
        facts.events.Move_Focus(*this, Direction::Up);
        return true;
    case Qt::Key_Left:
        if (all_selected || (cursorPosition() == 0 && !hasSelectedText())) {
            facts.events.Move_Focus(*this, Direction::Left);
            return true;
        }
        return false;
    case Qt::Key_Right:
        if (all_selected || (cursorPosition() == text().size() && !hasSelectedText())) {
            facts.events.Move_Focus(*this, Direction::Right);
            return true;
        }
        return false;
    default:
        return false;
    }
}

/// The keypad of a keyboard has one key for the decimals, whatever its layout calls it.
QString Entry_Field::Typed_By(const QKeyEvent& event) const {
    QString typed = Typed_Characters(event);
    const bool is_decimal_key = event.modifiers().testFlag(Qt::KeypadModifier) &&
                                (typed == QLatin1String(".") || typed == QLatin1String(","));
    if (!is_decimal_key || control.Entry().filter == Key_Filter::Every_Key) {
        return typed;
    }
    return facts.events.Decimal_Mark();
}

void Entry_Field::keyPressEvent(QKeyEvent* event) {
    if (Moves_Away(*event)) {
        event->accept();
        return;
    }
    if (event->matches(QKeySequence::Paste)) {
        Paste();
        return;
    }
    if (Is_Shortcut(*event)) {
        QKeyEvent bare = Without_Text(*event);
        Widget_View::keyPressEvent(&bare);
        event->setAccepted(bare.isAccepted());
        return;
    }
    const QString typed = Typed_By(*event);
    if (!typed.isEmpty() && (!All_Pass(typed) || isReadOnly())) {
        event->accept(); // and does nothing
        return;
    }
    if (typed != event->text() && !typed.isEmpty()) {
        QKeyEvent other(event->type(), event->key(), event->modifiers(), typed);
        Widget_View::keyPressEvent(&other);
        return;
    }
    Widget_View::keyPressEvent(event);
}

void Entry_Field::inputMethodEvent(QInputMethodEvent* event) {
    if (control.Entry().filter == Key_Filter::Every_Key) {
        Widget_View::inputMethodEvent(event);
        return;
    }
    // Of a composition only what it comes to counts.
    Take_Text(event->commitString());
    event->accept();
}

void Entry_Field::mouseReleaseEvent(QMouseEvent* event) {
    const QClipboard& clipboard = *QGuiApplication::clipboard();
    if (event->button() == Qt::MiddleButton && clipboard.supportsSelection() && Holds_Focus()) {
        facts.events.Mouse_Down(false);
        deselect();
        setCursorPosition(cursorPositionAt(event->position().toPoint()));
        Take_Text(clipboard.text(QClipboard::Selection));
        return;
    }
    Widget_View::mouseReleaseEvent(event);
}

void Entry_Field::dropEvent(QDropEvent* event) {
    if (!isReadOnly() && event->mimeData()->hasText()) {
        deselect();
        setCursorPosition(cursorPositionAt(event->position().toPoint()));
        Take_Text(event->mimeData()->text());
        event->setDropAction(Qt::CopyAction); // nothing is taken out of another field
        event->accept();
    }
}

void Entry_Field::contextMenuEvent(QContextMenuEvent* event) {
    const std::unique_ptr<QMenu> menu(createStandardContextMenu());
    for (QAction* const action : menu->actions()) {
        if (action->objectName() == QLatin1String("edit-paste")) {
            action->disconnect();
            connect(action, &QAction::triggered, this, [this] { Paste(); });
        }
    }
    menu->exec(event->globalPos());
}

void Entry_Field::Paste() {
    if (!facts.events.Paste_Cells(*this)) {
        Take_Text(QGuiApplication::clipboard()->text());
    }
}

void Entry_Field::Take_Text(const QString& text) {
    if (isReadOnly() || text.isEmpty()) {
        return;
    }
    QString rest = this->text();
    if (hasSelectedText()) {
        rest.remove(selectionStart(), selectedText().size());
    }
    if (rest.size() + text.size() > maxLength()) {
        facts.events.Refuse("That is too much text for one cell.");
        Flash();
        return;
    }
    const auto piece = facts.events.Piece_Of(control, From_Qt(rest), From_Qt(text));
    if (!piece) {
        Flash();
    } else if (!piece->empty()) {
        insert(QString::fromStdU32String(*piece));
    }
}

void Entry_Field::focusInEvent(QFocusEvent* event) {
    // The base would select the text by a rule of its own when the Tab key brings the focus.
    QFocusEvent plain(QEvent::FocusIn, Qt::OtherFocusReason);
    QLineEdit::focusInEvent(&plain); // NOLINT(bugprone-parent-virtual-call)
    facts.events.Focus_Came(*this, event->reason());
    update();
}

void Entry_Field::changeEvent(QEvent* event) {
    Widget_View::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && shown_once_) {
        Show_Ink(); // the desktop has changed its colours
    }
}

void Entry_Field::paintEvent(QPaintEvent* event) {
    const bool is_plain = control.Entry().use == Cell_Use::Caption && !hasFocus();
    if (!is_plain) {
        QPainter painter(this);
        const Crisp crisp(painter);
        crisp.Fill(Cell_Dots(crisp, rect()), theme::Colours_Of(control).back);
    }
    QLineEdit::paintEvent(event);
    if (!is_plain) {
        QPainter painter(this);
        Paint_Frame(painter);
    }
}

/// The focus is a frame of double width, not only another colour.
void Entry_Field::Paint_Frame(QPainter& painter) const {
    const theme::Cell_Colours colours = theme::Colours_Of(control);
    const Crisp crisp(painter);
    const QRect cell = Cell_Dots(crisp, rect());
    const int foot = crisp.Dots_In(foot_height);
    const QRect foot_area(cell.left(), cell.bottom() - foot + 1, cell.width(), foot);
    if (hasFocus()) {
        crisp.Frame(cell, foot, theme::Colours().accent);
    } else {
        crisp.Frame(cell, crisp.Dots_In(1), colours.line);
        if (colours.dashed) {
            crisp.Fill(foot_area, colours.back);
        }
        crisp.Mark(foot_area, colours.foot, colours.dashed);
    }
    if (flashes_) {
        QColor veil = QColor::fromRgb(theme::Colours().failure);
        veil.setAlphaF(0.2F);
        painter.fillRect(rect(), veil);
        crisp.Frame(cell, foot, theme::Colours().failure);
    }
    if (is_left_) {
        Paint_Left_Mark(painter, QRectF(rect()).adjusted(1, 0, 0, -foot_height));
    }
    if (control.Entry().hover == Hover::Shows) {
        Paint_Information_Mark(painter, rect().adjusted(0, 0, -1, 0));
    }
}

} // namespace kestrum::desktop
