#pragma once

#include "desktop/theme.h"
#include "desktop/view_host.h"

#include <QEnterEvent>
#include <QFocusEvent>
#include <QMouseEvent>
#include <QRect>
#include <QWidget>

namespace kestrum::desktop {

/// What the window knows of a control besides its table line.
struct View_Facts {
    View_Host& events;
    /// Stands at the head of a column, not before a figure.
    bool heads_column = false;
};

/// Shows one control of a screen.
class Control_View {
public:
    Control_View(Control& its_control, const View_Facts& its_facts)
        : control(its_control), facts(its_facts) {}

    Control_View(const Control_View&) = delete;
    Control_View& operator=(const Control_View&) = delete;
    virtual ~Control_View() = default;

    /// Shows the control's present state. What has not changed is not painted again.
    virtual void Refresh() = 0;

    /// Null for a menu entry.
    virtual QWidget* Widget() = 0;

    /// The part of its cell that the view takes.
    [[nodiscard]] virtual QRect Area_In(const QRect& cell) const { return cell; }

    /// Selects what the control's focus rule says.
    virtual void Show_Selection(const Selection& /*selection*/) {}

    /// The captions around the field, or the lift of its row, have changed.
    virtual void Name_Anew() {}

    /// The letters of the page have got another size.
    virtual void Take_Letters() {}

    Control& control;

protected:
    View_Facts facts;
};

/// The state that all widgets have in common.
void Show_Common_State(QWidget& widget, const Control& control);
/// Where the text of a control stands between left and right.
[[nodiscard]] Qt::Alignment Alignment_Of(const Control& control);
/// The control's address as object name.
void Give_Name(QWidget& widget, const Control& control);
/// What is told of a control besides its name: its help text, or the group that an option belongs
/// to. With KESTRUM_ADDRESSES=1 in the environment it is the address, by which a tool finds it.
[[nodiscard]] QString Description_Of(const Control& control);
/// Gives a widget its description. Qt makes its object for assistive technology at that moment, so
/// the widget must be complete.
void Give_Description(QWidget& widget, const Control& control);
/// Whether the environment asks for addresses.
[[nodiscard]] bool Shows_Addresses();

/// A widget of Qt as a view: hands focus, mouse and hovering on.
template <typename Base>
class Widget_View : public Base, public Control_View {
public:
    Widget_View(Control& its_control, const View_Facts& its_facts, QWidget* parent)
        : Base(parent), Control_View(its_control, its_facts) {
        Give_Name(*this, its_control);
    }

    QWidget* Widget() final { return this; }

    /// Whether the focus is here or will be when the window is active.
    [[nodiscard]] bool Holds_Focus() const { return this->window()->focusWidget() == this; }

protected:
    void focusInEvent(QFocusEvent* event) override {
        Base::focusInEvent(event);
        facts.events.Focus_Came(*this, event->reason());
    }

    void focusOutEvent(QFocusEvent* event) override {
        facts.events.Focus_Went();
        Base::focusOutEvent(event);
    }

    void mousePressEvent(QMouseEvent* event) override {
        if ((this->focusPolicy() & Qt::ClickFocus) != 0 && !Holds_Focus()) {
            event->accept(); // the field that the focus should have left has taken it back
            return;
        }
        if (control.Is_Text_Box()) {
            facts.events.Mouse_Down(true);
        }
        Base::mousePressEvent(event);
    }

    void mouseReleaseEvent(QMouseEvent* event) override {
        facts.events.Mouse_Down(false);
        Base::mouseReleaseEvent(event);
    }

    void enterEvent(QEnterEvent* event) override {
        facts.events.Hovered(control);
        Base::enterEvent(event);
    }
};

} // namespace kestrum::desktop
