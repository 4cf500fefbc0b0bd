#pragma once

#include "desktop/control_view.h"

#include <QLineEdit>

namespace kestrum::desktop {

/// A field that the user types into, or one whose role may change to that.
class Entry_Field : public Widget_View<QLineEdit> {
public:
    Entry_Field(Control& its_control, const View_Facts& its_facts, QWidget* parent);

    void Refresh() override;
    void Show_Selection(const Selection& selection) override;
    void Name_Anew() override;

    void Take_Letters() override { Show_Letters(); }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Show_Text();
    [[nodiscard]] QString Typed_By(const QKeyEvent& event) const;
    void Show_Look();
    void Show_Ink();
    void Show_Letters();
    void Paint_Frame(QPainter& painter) const;
    [[nodiscard]] bool Moves_Away(const QKeyEvent& event);
    /// Whether the filter lets all pass; flashes where it does not.
    [[nodiscard]] bool All_Pass(const QString& typed);
    /// What the clipboard holds, for this cell or from it on.
    void Paste();
    /// Puts in a text that was pasted or dropped, or changes nothing and flashes.
    void Take_Text(const QString& text);
    /// Shows for a moment that something was refused.
    void Flash();
    void Take_Typed(const QString& text);

    Look look_;
    bool is_old_ = false;
    bool is_left_ = false;
    bool shown_once_ = false;
    bool own_letters_ = false;
    bool flashes_ = false;
};

} // namespace kestrum::desktop
