#pragma once

#include <QScrollBar>
#include <QSize>
#include <QWidget>

#include <array>
#include <vector>

namespace kestrum::desktop {

class Page;

/// The part of a window that shows its pages. Pages are as large as itself; where that is too
/// little for their letters, they keep their least size and can be scrolled.
class Body : public QWidget {
public:
    using QWidget::QWidget;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

    /// Gives a new page, or all of them, their place.
    void Place_Pages();
    /// Scrolls until a widget of a page is to be seen.
    void Reveal(const QWidget& widget);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    [[nodiscard]] std::vector<Page*> Pages() const;

    [[nodiscard]] bool Can_Scroll() const { return bars_[0] != nullptr; }

    void Make_Bars();
    void Place_Bars(const QSize& room, const QSize& whole);
    void Move_Pages();

    std::array<QScrollBar*, 2> bars_{}; // across and down
};

} // namespace kestrum::desktop
