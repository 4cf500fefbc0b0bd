#pragma once

#include "core/cell_grid.h"
#include "desktop/page.h"

#include <QWidget>

namespace kestrum::desktop {

/// Lies over a page and marks a block of its cells. The mouse and the keys go through it.
class Block_Veil : public QWidget {
public:
    explicit Block_Veil(Page& page);

    /// Marks a block. The cell that it began with, which the keys go to, stays clear.
    void Show_Over(const Block& block, const Spot& began_with);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Take_Place();
    [[nodiscard]] QRect Area_Of(const Block& block) const;

    Page& page_;
    Block block_;
    Spot began_with_;
};

} // namespace kestrum::desktop
