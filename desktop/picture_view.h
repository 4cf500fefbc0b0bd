#pragma once

#include "desktop/control_view.h"
#include "painting/replay.h"

#include <optional>
#include <string>

namespace kestrum::desktop {

/// The canvas of the graph with the logo that lies over it. While it has the focus, keys do what
/// the mouse does: the arrows move a cross, and the space bar presses and lets go.
class Picture_View : public Widget_View<QWidget> {
public:
    Picture_View(Control& its_control, const View_Facts& its_facts, QWidget* parent);

    void Refresh() override;
    [[nodiscard]] QRect Area_In(const QRect& cell) const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    [[nodiscard]] QPointF On_Canvas(const QPointF& place) const;
    void Tell(Mouse_Action action, const QPointF& place);
    void Press_At(const QPointF& place);
    void Release_At(const QPointF& place);
    [[nodiscard]] QPointF Cross() const;
    void Move_Cross(const QPointF& units);
    void Paint_Cross(QPainter& painter) const;
    void Load_Logo_Anew();

    std::optional<painting::Logo_Picture> logo_;
    std::string logo_file_;
    bool on_logo_ = false;
    QPointF cross_; // on the canvas
    bool held_by_key_ = false;
};

} // namespace kestrum::desktop
