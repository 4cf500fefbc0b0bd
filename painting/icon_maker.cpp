// Draws the program's icon into the folder of an installation's icons, while it is built.
#include "painting/figure_painter.h"
#include "painting/program_picture.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>

#include <cstdio>

namespace {

using kestrum::Figure;

bool Write_Png(const Figure& figure, int side, const QString& folder) {
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.scale(side / figure.width, side / figure.height);
    kestrum::painting::Paint_Figure(figure, painter);
    painter.end();
    return QDir().mkpath(folder) && image.save(folder + QLatin1String("/kestrum.png"));
}

bool Write_Svg(const Figure& figure, const QString& folder) {
    const std::string text = Figure_Svg(figure);
    QFile file(folder + QLatin1String("/kestrum.svg"));
    return QDir().mkpath(folder) && file.open(QIODevice::WriteOnly) &&
           file.write(text.data(), static_cast<qint64>(text.size())) ==
               static_cast<qint64>(text.size());
}

} // namespace

int main(int count, char* values[]) { // NOLINT(*-avoid-c-arrays)
    if (count != 2) {
        std::fputs("usage: icon_maker FOLDER\n", stderr);
        return 2;
    }
    const QString folder = QFile::decodeName(values[1]); // NOLINT(*-pointer-arithmetic)
    const Figure figure = kestrum::painting::Program_Picture();
    bool is_written = Write_Svg(figure, folder + QLatin1String("/scalable/apps"));
    for (const char* const size : {"16", "22", "24", "32", "48", "64", "128", "256", "512"}) {
        const QString side = QLatin1String(size);
        const QString place = folder + QLatin1Char('/') + side + QLatin1Char('x') + side;
        is_written = Write_Png(figure, side.toInt(), place + QLatin1String("/apps")) && is_written;
    }
    if (!is_written) {
        std::fputs("icon_maker: an icon cannot be written\n", stderr);
    }
    return is_written ? 0 : 1;
}
