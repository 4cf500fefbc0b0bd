#include "desktop/notes_field.h"

#include "desktop/text_bridge.h"
#include "desktop/text_views.h"
#include "desktop/typed_keys.h"

#include <QKeyEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QTextCursor>
#include <QTextOption>

namespace kestrum::desktop {

namespace {

/// The editor lays out a whole paragraph at once: more than this would stop it for seconds.
constexpr std::size_t longest_text = 200'000;

} // namespace

Notes_Field::Notes_Field(Control& its_control, const View_Facts& its_facts, QWidget* parent)
    : Widget_View(its_control, its_facts, parent) {
    setTabChangesFocus(true);
    document()->setDocumentMargin(theme::text_padding);
    Notes_Field::Name_Anew();
    Notes_Field::Refresh();
    connect(this, &QPlainTextEdit::textChanged, this, &Notes_Field::Take_Typed);
}

void Notes_Field::Refresh() {
    if (shown_ != control.Text()) {
        shown_ = control.Text();
        const QSignalBlocker quiet(this);
        // A text that is cut for showing must not be edited, or it would come back cut.
        const bool too_long = shown_.size() > longest_text;
        setPlainText(Lines_To_Qt(std::string_view(shown_).substr(0, longest_text)));
        setReadOnly(too_long || control.Present_Look().locked);
    }
    Notes_Field::Take_Letters();
    QTextOption option = document()->defaultTextOption();
    if (option.alignment() != Alignment_Of(control)) {
        option.setAlignment(Alignment_Of(control));
        document()->setDefaultTextOption(option);
    }
    Show_Common_State(*this, control);
    viewport()->update();
}

void Notes_Field::Show_Selection(const Selection& selection) {
    if (selection.length > 0) {
        selectAll();
    } else {
        moveCursor(QTextCursor::End);
    }
}

/// Without a font of its own it has its page's, which grows with the window.
void Notes_Field::Take_Letters() {
    const bool chosen = theme::Chosen_Font(control) != Font();
    if (chosen) {
        setFont(theme::Font_Of(control, parentWidget()->font()));
    } else if (own_letters_) {
        setFont(QFont());
    }
    own_letters_ = chosen;
}

void Notes_Field::Name_Anew() {
    setAccessibleName(facts.events.Words_Of(control));
}

QRect Notes_Field::Area_In(const QRect& cell) const {
    return cell.adjusted(0, 0, -1, -1);
}

void Notes_Field::keyPressEvent(QKeyEvent* event) {
    if (Is_Shortcut(*event)) {
        QKeyEvent bare = Without_Text(*event);
        Widget_View::keyPressEvent(&bare);
        event->setAccepted(bare.isAccepted());
        return;
    }
    // Shift and Enter would put in a line separator, which no file knows.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (!isReadOnly()) {
            insertPlainText(QStringLiteral("\n"));
            ensureCursorVisible();
        }
        event->accept();
        return;
    }
    Widget_View::keyPressEvent(event);
}

void Notes_Field::paintEvent(QPaintEvent* event) {
    Widget_View::paintEvent(event);
    if (control.Is_Left()) {
        QPainter painter(viewport());
        Paint_Left_Mark(painter, viewport()->rect());
    }
}

void Notes_Field::Take_Typed() {
    shown_ = Lines_From_Qt(toPlainText());
    facts.events.Typed(control, shown_);
}

} // namespace kestrum::desktop
