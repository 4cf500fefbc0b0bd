#pragma once

#include "chart/chart_layout.h"

#include <QPixmap>
#include <QWidget>

#include <optional>

namespace kestrum::desktop {

/// Shows a chart as large as it is, reads its values under the mouse, and takes parts of it larger.
///
/// The wheel zooms (with Shift the lifts alone, with Ctrl the values alone), a drag moves, a double
/// click shows the whole; Left and Right move the reading, + and - zoom, Shift and an arrow moves,
/// Home shows the whole.
class Chart_View : public QWidget {
public:
    explicit Chart_View(QWidget* parent);

    /// Keeps the part that shows if the axes stay.
    void Show_Chart(Chart chart, const Chart_Style& style);
    void Show_Whole();

    [[nodiscard]] const Chart_Layout& Layout() const { return layout_; }

    /// The lift whose values show; nothing without a mouse over the chart.
    [[nodiscard]] std::optional<double> Reading() const { return lift_; }

    /// Pixels of a unit of the chart.
    [[nodiscard]] double Scale() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    [[nodiscard]] Figure_Point In_Chart(QPointF place) const;
    void Lay_Out();
    void Show_Part(const Chart_Part& part);
    void Read_At(std::optional<double> lift);
    void Step_Reading(int steps);
    void Zoom(const Lift_Point& about, const Chart_Zoom& zoom);
    /// By shares of what shows.
    void Move(double lifts, double values);
    void Paint_Ground();
    [[nodiscard]] Lift_Point Middle() const;

    Chart chart_;
    Chart_Style style_;
    Chart_Layout layout_;
    std::optional<double> lift_;
    QPointF grip_;
    QPixmap ground_; // all but the reading
};

} // namespace kestrum::desktop
