#include "desktop/program_icon.h"

#include "painting/figure_painter.h"
#include "painting/program_picture.h"

#include <QPainter>
#include <QPixmap>

namespace kestrum::desktop {

namespace {

QPixmap Drawn(const Figure& figure, int size) {
    QPixmap picture(size, size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.scale(size / figure.width, size / figure.height);
    painting::Paint_Figure(figure, painter);
    return picture;
}

} // namespace

QIcon Program_Icon() {
    const Figure figure = painting::Program_Picture();
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 128}) {
        icon.addPixmap(Drawn(figure, size));
    }
    return icon;
}

} // namespace kestrum::desktop
