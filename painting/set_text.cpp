#include "painting/set_text.h"

#include <QFontMetricsF>
#include <QTransform>

namespace kestrum::painting {

namespace {

QFont Font_Of(const Draw_Operation& step, double size, const Letters& letters) {
    QFont font;
    QStringList families = letters.families;
    if (!step.font.empty()) {
        families.prepend(QString::fromStdString(step.font));
    }
    font.setFamilies(families);
    font.setStyleHint(QFont::SansSerif);
    // Hinted letters would have another width at each size.
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setPixelSize(qRound(size * letters.dots));
    font.setBold(step.bold);
    font.setItalic(step.italic);
    return font;
}

/// A file may bring a name of megabytes; what is behind this could not be read anyway.
QString Without_Endless_End(const QString& text) {
    constexpr qsizetype most_letters = 200;
    return text.size() <= most_letters ? text : text.left(most_letters) + QChar(0x2026);
}

/// Chooses the size of the letters. Gives their metrics.
QFontMetricsF Fit(Set_Text& set, const Draw_Operation& step, double room, const Letters& letters) {
    for (double size = step.size;; --size) {
        set.font = Font_Of(step, size, letters);
        const QFontMetricsF metrics(set.font);
        set.width = metrics.horizontalAdvance(set.text) * letters.units;
        if (set.width <= room) {
            return metrics;
        }
        if (set.width * letters.least_squeeze <= room || size - 1 < letters.smallest) {
            set.squeeze = room / set.width;
            set.width = room;
            return metrics;
        }
    }
}

double Left_Of(const Draw_Operation& step, double width) {
    const double room = step.x2 - step.cell;
    if (step.anchor == Text_Anchor::Left || width >= room) {
        return step.cell;
    }
    return step.anchor == Text_Anchor::Right ? step.x2 - width : step.cell + (room - width) / 2;
}

} // namespace

QRectF Set_Text::Box() const {
    constexpr double above = 0.75; // of the font's height, to the top of the highest letters
    constexpr double below = 0.23;
    return {left, baseline - above * Height(), width, (above + below) * Height()};
}

QPainterPath Set_Text::Outlines() const {
    QPainterPath letters;
    letters.addText(QPointF(0, 0), font, text);
    return QTransform::fromTranslate(left, baseline).scale(scale * squeeze, scale).map(letters);
}

Set_Text Set_In_Room(const Draw_Operation& step, double room, const Letters& letters) {
    Set_Text set{.text = Without_Endless_End(QString::fromStdString(step.text)),
                 .font = {},
                 .colour = QColor::fromRgb(static_cast<QRgb>(step.colour)),
                 .anchor = step.anchor,
                 .scale = letters.units};
    const QFontMetricsF metrics = Fit(set, step, room, letters);
    const double height = (metrics.ascent() + metrics.descent()) * set.scale;
    set.left = Left_Of(step, set.width);
    set.baseline = step.y1 + (letters.line_height - height) / 2 + metrics.ascent() * set.scale;
    return set;
}

void Set_Up_Letters(const Set_Text& set, QPainter& painter) {
    painter.setFont(set.font);
    painter.translate(set.left, set.baseline);
    painter.scale(set.scale * set.squeeze, set.scale);
}

void Paint_Set_Text(const Set_Text& set, QPainter& painter) {
    painter.save();
    Set_Up_Letters(set, painter);
    painter.setPen(set.colour);
    painter.drawText(QPointF(0, 0), set.text);
    painter.restore();
}

} // namespace kestrum::painting
