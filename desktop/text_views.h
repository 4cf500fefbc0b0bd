#pragma once

#include "desktop/control_view.h"

#include <QFont>

namespace kestrum::desktop {

class Crisp;

/// A light widget that paints one text and can be read by assistive technology.
class Text_View : public Widget_View<QWidget> {
public:
    Text_View(Control& its_control, const View_Facts& its_facts, QWidget* parent);

    void Refresh() override;

    [[nodiscard]] const QString& Shown_Text() const { return text_; }

    /// The name that a screen reader speaks.
    [[nodiscard]] virtual QString Spoken_Name() const { return text_; }

    /// Whether the text is a figure with a name, not words.
    [[nodiscard]] virtual bool Is_Figure() const { return false; }

protected:
    void changeEvent(QEvent* event) override;

private:
    QString text_;
    Look look_;
    bool is_old_;
};

/// A cell that takes no input: a caption, a heading or a result. A click selects it for copying.
class Cell_View : public Text_View {
public:
    Cell_View(Control& its_control, const View_Facts& its_facts, QWidget* parent);

    [[nodiscard]] QString Spoken_Name() const override;

    [[nodiscard]] bool Is_Figure() const override { return is_result_; }

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void Paint_Back(QPainter& painter) const;
    [[nodiscard]] QRect Text_Area() const;
    [[nodiscard]] QRgb Ink() const;
    void Copy() const;

    bool is_result_;
};

/// A note or a read-out on the bare form.
class Label_View : public Text_View {
public:
    using Text_View::Text_View;

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// A coloured bar that marks a field, or shows in the legend what the mark looks like.
class Marker_View : public Text_View {
public:
    Marker_View(Control& its_control, const View_Facts& its_facts, QWidget* parent,
                bool marks_field);

    [[nodiscard]] QRect Area_In(const QRect& cell) const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool marks_field_;
};

/// Paints one line, in smaller letters when it does not fit.
void Paint_Fitted(QPainter& painter, const QRect& area, Qt::Alignment alignment,
                  const QString& text);

/// Paints words in as many lines as they need, in smaller letters when they do not fit.
void Paint_Wrapped(QPainter& painter, const QRect& area, int flags, const QString& text);

/// The dots of a cell without the gap to its neighbours.
[[nodiscard]] QRect Cell_Dots(const Crisp& crisp, const QRectF& area);

/// The small corner that says: what stands here is from before the file that was loaded.
void Paint_Left_Mark(QPainter& painter, const QRectF& cell);

/// The small corner that says: the mouse over this shows additional information.
void Paint_Information_Mark(QPainter& painter, const QRect& cell);

} // namespace kestrum::desktop
