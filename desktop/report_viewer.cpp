#include "desktop/report_viewer.h"

#include "desktop/text_bridge.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QKeyEvent>
#include <QScrollBar>

#include <optional>

namespace kestrum::desktop {

namespace {

/// The character that a key yields; none for a shortcut or a key that only moves.
std::optional<char32_t> Character_Of(const QKeyEvent& event) {
    const auto modifiers = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    const bool is_shortcut = modifiers == Qt::ControlModifier || modifiers == Qt::AltModifier ||
                             (event.modifiers() & Qt::MetaModifier) != 0;
    if (is_shortcut || event.text().isEmpty()) {
        return std::nullopt;
    }
    return static_cast<char32_t>(event.text().toUcs4().front());
}

QFont Letters_Of_One_Width() {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    if (!QFontInfo(font).fixedPitch()) { // a desktop that names none
        font.setFamilies({QStringLiteral("monospace"), QStringLiteral("DejaVu Sans Mono")});
    }
    font.setStyleHint(QFont::Monospace);
    font.setFixedPitch(true);
    return font;
}

} // namespace

Report_Viewer::Report_Viewer(Control& its_control, const View_Facts& its_facts, QWidget* parent)
    : Widget_View(its_control, its_facts, parent), hint_(new QLabel(this)) {
    setReadOnly(true);
    // No caret, so that the arrow keys scroll at once.
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    document()->setDocumentMargin(theme::page_margin);
    hint_->setText(QStringLiteral(
        "Any key that types closes the report; with \".\" it is saved to a file first.  Arrow and "
        "page keys scroll.  Ctrl+A selects all, Ctrl+C copies."));
    hint_->setForegroundRole(QPalette::ToolTipText);
    hint_->setBackgroundRole(QPalette::ToolTipBase);
    hint_->setAutoFillBackground(true); // nobody else paints the margin of the text
    hint_->setMargin(theme::text_padding);
    Set_Letters();
    Report_Viewer::Name_Anew();
    Report_Viewer::Refresh();
}

/// As large as those of its window, and a little larger, since they are narrow.
void Report_Viewer::Set_Letters() {
    const int pixels = window()->font().pixelSize();
    if (font().pixelSize() == pixels + 1) {
        return;
    }
    QFont letters = Letters_Of_One_Width();
    letters.setPixelSize(pixels + 1);
    setFont(letters);
    hint_->setFont(theme::Text_Font(1.0 * pixels / theme::text_pixels));
    setViewportMargins(0, hint_->sizeHint().height(), 0, 0);
}

void Report_Viewer::Refresh() {
    const bool was_hidden = isHidden();
    const bool shows = control.Present_Look().visible;
    if (shows && was_hidden) {
        Open();
    }
    Show_Text();
    const bool held_focus = Holds_Focus();
    Show_Common_State(*this, control);
    if (!shows && !was_hidden && held_focus) {
        Give_Focus_Back();
    }
}

void Report_Viewer::Show_Text() {
    if (shown_ != control.Text()) {
        shown_ = control.Text();
        setPlainText(Lines_To_Qt(shown_));
    }
}

void Report_Viewer::Open() {
    focus_before_ = window()->focusWidget();
    verticalScrollBar()->setValue(0);
    horizontalScrollBar()->setValue(0);
    raise(); // above the controls that it covers
}

/// The user goes on where the report was asked for.
void Report_Viewer::Give_Focus_Back() {
    if (focus_before_ != nullptr && focus_before_ != this && focus_before_->isEnabled()) {
        focus_before_->setFocus(Qt::OtherFocusReason);
    }
}

void Report_Viewer::Name_Anew() {
    setAccessibleName(facts.events.Words_Of(control));
}

QRect Report_Viewer::Area_In(const QRect& /*cell*/) const {
    return parentWidget()->rect();
}

bool Report_Viewer::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        event->accept(); // the letters of the buttons beneath are out of reach, as the buttons are
        return true;
    }
    return Widget_View::event(event);
}

void Report_Viewer::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        copy();
    } else if (event->matches(QKeySequence::SelectAll)) {
        selectAll();
    } else if (const auto character = Character_Of(*event)) {
        // A key still held down from the button that made the report does not close it.
        if (!event->isAutoRepeat()) {
            facts.events.Raw_Key(control, *character);
        }
    } else {
        Widget_View::keyPressEvent(event);
        return;
    }
    event->accept();
}

void Report_Viewer::resizeEvent(QResizeEvent* event) {
    Widget_View::resizeEvent(event);
    Set_Letters();
    hint_->setGeometry(frameWidth(), frameWidth(), width() - 2 * frameWidth(),
                       hint_->sizeHint().height());
}

/// The Tab key must not lead to what lies beneath.
bool Report_Viewer::focusNextPrevChild(bool /*next*/) {
    return false;
}

} // namespace kestrum::desktop
