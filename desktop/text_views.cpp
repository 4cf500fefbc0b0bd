#include "desktop/text_views.h"

#include "desktop/crisp.h"
#include "desktop/form_design.h"
#include "desktop/text_bridge.h"
#include "screens/geometry.h"

#include <QAccessible>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QPolygonF>
#include <QStyle>
#include <QTextLayout>
#include <QToolTip>

#include <algorithm>
#include <memory>

namespace kestrum::desktop {

namespace {

/// More than this of a line is never seen, and a file may bring lines of megabytes.
constexpr qsizetype longest_line = 1000;

/// What would begin another line, or jump, is a blank.
QString On_One_Line(const QString& text) {
    QString line = text.left(longest_line);
    for (QChar& character : line) {
        if (character.category() == QChar::Other_Control ||
            character == QChar(QChar::LineSeparator) ||
            character == QChar(QChar::ParagraphSeparator)) {
            character = QLatin1Char(' ');
        }
    }
    return line;
}

/// A line of text, shaped once for both its width and its painting.
class Shaped_Line {
public:
    Shaped_Line(const QString& text, const QPainter& painter) : layout_(text, painter.font()) {
        QTextOption option;
        option.setWrapMode(QTextOption::NoWrap);
        layout_.setTextOption(option);
        layout_.setCacheEnabled(true); // or it would be shaped again to be painted
        layout_.beginLayout();
        layout_.createLine();
        layout_.endLayout();
    }

    [[nodiscard]] int Width() const { return qRound(layout_.lineAt(0).naturalTextWidth()); }

    void Paint(QPainter& painter, const QRect& place, const QRect& area) const {
        if (area.contains(place)) {
            layout_.draw(&painter, place.topLeft());
            return;
        }
        painter.save();
        painter.setClipRect(area, Qt::IntersectClip);
        layout_.draw(&painter, place.topLeft());
        painter.restore();
    }

private:
    QTextLayout layout_;
};

} // namespace

void Paint_Fitted(QPainter& painter, const QRect& area, Qt::Alignment alignment,
                  const QString& text) {
    const QString line = On_One_Line(text);
    if (line.isEmpty()) {
        return;
    }
    const QFont usual = painter.font();
    QFont font = usual;
    auto shaped = std::make_unique<Shaped_Line>(line, painter);
    while (font.pixelSize() > theme::smallest_pixels &&
           (shaped->Width() > area.width() || painter.fontMetrics().ascent() > area.height())) {
        font.setPixelSize(font.pixelSize() - 1);
        painter.setFont(font);
        shaped = std::make_unique<Shaped_Line>(line, painter);
    }
    const QFontMetrics metrics = painter.fontMetrics();
    if (shaped->Width() > area.width()) {
        const QString cut = metrics.elidedText(line, Qt::ElideRight, area.width());
        shaped = std::make_unique<Shaped_Line>(cut, painter);
    }
    const QSize size(shaped->Width(), metrics.height());
    shaped->Paint(painter, QStyle::alignedRect(Qt::LeftToRight, alignment, size, area), area);
    painter.setFont(usual);
}

void Paint_Wrapped(QPainter& painter, const QRect& area, int flags, const QString& text) {
    const QString words = text.left(longest_line);
    const QFont usual = painter.font();
    QFont font = usual;
    flags |= Qt::TextWordWrap;
    while (font.pixelSize() > theme::smallest_pixels &&
           !area.contains(painter.boundingRect(area, flags, words))) {
        font.setPixelSize(font.pixelSize() - 1);
        painter.setFont(font);
    }
    painter.drawText(area, flags, words);
    painter.setFont(usual);
}

namespace {

/// `across` and `down` tell where the cell lies from its corner, and how far the mark goes.
void Paint_Corner(QPainter& painter, const QPointF& corner, double across, double down,
                  QRgb colour) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgb(colour));
    painter.drawPolygon(QPolygonF{corner, corner + QPointF(across, 0), corner + QPointF(0, down)});
}

} // namespace

void Paint_Left_Mark(QPainter& painter, const QRectF& cell) {
    constexpr int size = 8;
    Paint_Corner(painter, cell.bottomLeft(), size, -size, theme::Colours().warning);
}

void Paint_Information_Mark(QPainter& painter, const QRect& cell) {
    constexpr int size = 6;
    Paint_Corner(painter, QPointF(cell.right() + 1, cell.top()), -size, size,
                 theme::Colours().information);
}

QRect Cell_Dots(const Crisp& crisp, const QRectF& area) {
    const int gap = crisp.Dots_In(1);
    return crisp.Dots_Of(area).adjusted(0, 0, -gap, -gap);
}

Text_View::Text_View(Control& its_control, const View_Facts& its_facts, QWidget* parent)
    : Widget_View(its_control, its_facts, parent),
      text_(Lines_To_Qt(its_control.Text())),
      look_(its_control.Present_Look()),
      is_old_(theme::Is_Old(its_control)) {
    Show_Common_State(*this, control);
}

void Text_View::Refresh() {
    QString text = Lines_To_Qt(control.Text());
    const bool is_old = theme::Is_Old(control);
    const bool changed = text != text_ || look_ != control.Present_Look() || is_old_ != is_old;
    if (QAccessible::isActive() && text != text_) {
        QAccessibleTextUpdateEvent news(this, 0, text_, text);
        QAccessible::updateAccessibility(&news);
    }
    text_ = std::move(text);
    look_ = control.Present_Look();
    is_old_ = is_old;
    if (changed) {
        Show_Common_State(*this, control);
        update();
    }
}

void Text_View::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange || event->type() == QEvent::EnabledChange) {
        update();
    }
    Widget_View::changeEvent(event);
}

Cell_View::Cell_View(Control& its_control, const View_Facts& its_facts, QWidget* parent)
    : Text_View(its_control, its_facts, parent),
      is_result_(its_control.Entry().use == Cell_Use::Result) {
    setAttribute(Qt::WA_OpaquePaintEvent, is_result_);
}

QString Cell_View::Spoken_Name() const {
    if (is_result_) {
        return facts.events.Words_Of(control) +
               QLatin1String(theme::Is_Old(control) ? ", not calculated anew" : "");
    }
    const Own_Words* const own = Own_Words_Of(control);
    return own == nullptr ? Shown_Text() : To_Qt(own->words) + QLatin1String(": ") + Shown_Text();
}

/// A field keeps a foot below its text; so words and figures of one row stand on one line.
QRect Cell_View::Text_Area() const {
    return rect().adjusted(theme::text_padding, 0, -2, -1);
}

QRgb Cell_View::Ink() const {
    return is_result_ ? theme::Colours_Of(control).text
                      : theme::Caption_Ink(control.Present_Look().side);
}

void Cell_View::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    Paint_Back(painter);
    QFont usual = font();
    if (facts.heads_column) {
        usual.setBold(true);
    }
    painter.setFont(theme::Font_Of(control, usual));
    painter.setPen(QColor::fromRgb(Ink()));
    Paint_Fitted(painter, Text_Area(), Alignment_Of(control) | Qt::AlignVCenter, Shown_Text());
    if (control.Entry().hover == Hover::Shows) {
        Paint_Information_Mark(painter, rect());
    }
}

/// A result fills its cell but for the gap to the next one; the focus shows as a frame as well, not
/// by a tint alone.
void Cell_View::Paint_Back(QPainter& painter) const {
    if (!is_result_ && !hasFocus()) {
        return;
    }
    const Crisp crisp(painter);
    const QRect cell = Cell_Dots(crisp, rect());
    const theme::Cell_Colours colours = theme::Colours_Of(control);
    if (is_result_) {
        crisp.Fill(crisp.Dots_Of(rect()).adjusted(0, 0, 1, 1), theme::Colours().card);
    }
    crisp.Fill(cell, hasFocus() ? theme::Colours().accent_soft : colours.back);
    if (is_result_ && colours.stripe != 0) {
        crisp.Mark({cell.topLeft(), QSize(crisp.Dots_In(2), cell.height())}, colours.stripe,
                   colours.dashed);
    }
    if (hasFocus()) {
        crisp.Frame(cell, crisp.Dots_In(1), theme::Colours().accent);
    }
}

/// A text that even small letters do not get into its cell is shown whole under the mouse.
bool Cell_View::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) {
        return Text_View::event(event);
    }
    QFont smallest = font();
    smallest.setPixelSize(theme::smallest_pixels);
    const QString line = Shown_Text().left(longest_line);
    const bool fits = QFontMetrics(smallest).horizontalAdvance(line) <= Text_Area().width();
    QToolTip::showText(mapToGlobal(QPoint(0, height())), fits ? QString() : line, this);
    return true;
}

void Cell_View::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        Copy();
        return;
    }
    Text_View::keyPressEvent(event);
}

void Cell_View::mousePressEvent(QMouseEvent* event) {
    Text_View::mousePressEvent(event);
    event->accept();
    update();
}

void Cell_View::contextMenuEvent(QContextMenuEvent* event) {
    QMenu menu(this);
    menu.addAction(QStringLiteral("&Copy"), QKeySequence::Copy, this, [this] { Copy(); });
    menu.exec(event->globalPos());
}

void Cell_View::Copy() const {
    QGuiApplication::clipboard()->setText(Shown_Text());
}

void Label_View::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const bool is_note = Place_Of(control).rows > 1;
    painter.setFont(font());
    painter.setPen(
        QColor::fromRgb(isEnabled() ? theme::Colours().quiet_ink : theme::Colours().faint_ink));
    // Notes stand side by side, and their lines must not run together.
    const int right = is_note ? font().pixelSize() : theme::text_padding;
    const QRect area =
        rect().adjusted(theme::text_padding, is_note ? theme::text_padding : 0, -right, 0);
    if (is_note) {
        Paint_Wrapped(painter, area, Qt::AlignLeft | Qt::AlignTop, Shown_Text());
    } else {
        Paint_Fitted(painter, area, Qt::AlignLeft | Qt::AlignVCenter, Shown_Text());
    }
}

Marker_View::Marker_View(Control& its_control, const View_Facts& its_facts, QWidget* parent,
                         bool marks_field)
    : Text_View(its_control, its_facts, parent), marks_field_(marks_field) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

QRect Marker_View::Area_In(const QRect& cell) const {
    constexpr int thickness = 3;
    if (marks_field_) {
        return {cell.left() + 1, cell.bottom() - thickness, cell.width() - 3, thickness};
    }
    constexpr int width = 24;
    return {cell.right() - width - theme::text_padding, cell.center().y() - 1, width, thickness};
}

void Marker_View::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), theme::Marker_Colour(control));
}

} // namespace kestrum::desktop
