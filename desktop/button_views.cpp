#include "desktop/button_views.h"

#include "desktop/crisp.h"
#include "desktop/text_bridge.h"
#include "desktop/text_views.h"
#include "screens/screen.h"

#include <QKeyEvent>
#include <QPainter>
#include <QSignalBlocker>

#include <algorithm>

namespace kestrum::desktop {

namespace {

QRect Beside_Its_Neighbours(const QRect& cell) {
    return cell.adjusted(2, 2, -3, -3);
}

/// The one button of a screen that everything leads to.
bool Is_Primary(const Control& button) {
    return button.Text() == "Calculate" || button.Text() == "&Calculate";
}

template <typename Button>
void Show_Value(Button& button, const Control& control) {
    const QString caption = To_Qt(control.Text());
    if (button.text() != caption) {
        button.setText(caption);
    }
    const QSignalBlocker quiet(button);
    button.setChecked(control.Value() != 0);
    Show_Common_State(button, control);
}

} // namespace

Button_View::Button_View(Control& its_control, const View_Facts& its_facts, QWidget* parent)
    : Widget_View(its_control, its_facts, parent), is_primary_(Is_Primary(its_control)) {
    setAttribute(Qt::WA_Hover);
    Button_View::Refresh();
    connect(this, &QAbstractButton::clicked, this, [this] { facts.events.Clicked(control); });
}

void Button_View::Refresh() {
    const QString caption = To_Qt(control.Text());
    if (text() != caption) {
        setText(caption);
    }
    Show_Common_State(*this, control);
}

QRect Button_View::Area_In(const QRect& cell) const {
    return Beside_Its_Neighbours(cell);
}

bool Button_View::event(QEvent* event) {
    if (event->type() == QEvent::Shortcut) {
        // As with the mouse the focus comes first, so that the field that it leaves has its say.
        setFocus(Qt::ShortcutFocusReason);
        if (Holds_Focus()) {
            click();
        }
        return true;
    }
    return Widget_View::event(event);
}

void Button_View::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
        return;
    }
    Widget_View::keyPressEvent(event);
}

QRgb Button_View::Back() const {
    if (!isEnabled()) {
        return theme::Colours().window;
    }
    if (is_primary_) {
        return isDown() || !underMouse() ? theme::Colours().accent : theme::Colours().accent_hover;
    }
    if (isDown()) {
        return theme::Colours().line;
    }
    return underMouse() ? theme::Colours().accent_soft : theme::Colours().card;
}

QRgb Button_View::Ink() const {
    const Colour_Scheme& colours = theme::Colours();
    return !isEnabled() ? colours.faint_ink : is_primary_ ? colours.on_accent : colours.ink;
}

void Button_View::paintEvent(QPaintEvent* /*event*/) {
    const Colour_Scheme& colours = theme::Colours();
    QPainter painter(this);
    const Crisp crisp(painter);
    const bool has_focus = hasFocus();
    const bool is_strong = has_focus || (is_primary_ && isEnabled());
    crisp.Card(rect(), theme::radius,
               is_strong     ? colours.accent
               : isEnabled() ? colours.line
                             : colours.card_line,
               Back());
    if (has_focus) {
        crisp.Card(rect().adjusted(2, 2, -2, -2), theme::radius - 2,
                   is_primary_ ? colours.on_accent : colours.accent, qRgba(0, 0, 0, 0));
    }
    Paint_Caption(painter);
}

void Button_View::Paint_Caption(QPainter& painter) const {
    QFont letters = font();
    letters.setBold(is_primary_);
    painter.setFont(letters);
    painter.setPen(QColor::fromRgb(Ink()));
    Paint_Wrapped(painter, rect().adjusted(4, 0, -4, 0),
                  static_cast<int>(Qt::AlignCenter) | static_cast<int>(Qt::TextShowMnemonic),
                  text());
}

Check_View::Check_View(Control& its_control, const View_Facts& its_facts, QWidget* parent)
    : Widget_View(its_control, its_facts, parent) {
    Check_View::Refresh();
    // Not `clicked`: a screen reader toggles without a click.
    connect(this, &QCheckBox::toggled, this, [this] { facts.events.Clicked(control); });
}

void Check_View::Refresh() {
    Show_Value(*this, control);
}

QRect Check_View::Area_In(const QRect& cell) const {
    return cell.adjusted(theme::text_padding, 1, -2, -1);
}

Option_View::Option_View(Control& its_control, const View_Facts& its_facts, QWidget* parent)
    : Widget_View(its_control, its_facts, parent) {
    Option_View::Refresh();
    connect(this, &QRadioButton::toggled, this, [this](bool chosen) {
        if (chosen) {
            facts.events.Clicked(control);
        }
    });
}

/// The Tab key comes to the option that is chosen, and the arrow keys choose another.
void Option_View::Refresh() {
    Show_Value(*this, control);
    const bool other_is_chosen =
        control.Value() == 0 &&
        std::ranges::any_of(control.Owner().Controls(), [this](const Control& other) {
            return other.Entry().array == control.Entry().array && other.Value() != 0;
        });
    if (other_is_chosen) {
        setFocusPolicy(Qt::ClickFocus);
    }
}

QRect Option_View::Area_In(const QRect& cell) const {
    return cell.adjusted(theme::text_padding, 1, -2, -1);
}

Combo_View::Combo_View(Control& its_control, const View_Facts& its_facts, QWidget* parent)
    : Widget_View(its_control, its_facts, parent) {
    Combo_View::Refresh();
    connect(this, &QComboBox::activated, this,
            [this](int item) { facts.events.Picked(control, From_Qt(itemText(item))); });
}

void Combo_View::Refresh() {
    const QSignalBlocker quiet(this);
    const std::vector<std::string>& items = control.Items();
    bool same = static_cast<std::size_t>(count()) == items.size();
    for (int item = 0; same && item < count(); ++item) {
        same = itemText(item) == To_Qt(items[static_cast<std::size_t>(item)]);
    }
    if (!same) {
        clear();
        for (const std::string& item : items) {
            addItem(To_Qt(item));
        }
    }
    setCurrentIndex(findText(To_Qt(control.Text())));
    Show_Common_State(*this, control);
}

QRect Combo_View::Area_In(const QRect& cell) const {
    return cell.adjusted(0, 1, -1, -1);
}

} // namespace kestrum::desktop
