#include "desktop/help_line.h"

#include "desktop/text_bridge.h"

#include <QPainter>

namespace kestrum::desktop {

namespace {

constexpr int wrapped = static_cast<int>(Qt::AlignLeft) | static_cast<int>(Qt::AlignVCenter) |
                        static_cast<int>(Qt::TextWordWrap);

} // namespace

Help_Line::Help_Line(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFont(theme::Text_Font());
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void Help_Line::Show_Words(const QString& words) {
    if (words != words_) {
        words_ = words;
        Show_Present();
    }
}

void Help_Line::Tell(const QString& refusal) {
    if (refusal != refusal_) {
        refusal_ = refusal;
        Show_Present();
    }
}

void Help_Line::Show_Present() {
    setAccessibleName(Present());
    update();
}

QSize Help_Line::sizeHint() const {
    return {0, theme::help_lines * fontMetrics().lineSpacing() + theme::page_margin};
}

void Help_Line::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), QColor::fromRgb(theme::card));
    painter.fillRect(0, 0, width(), 1, QColor::fromRgb(theme::card_line));
    painter.setPen(QColor::fromRgb(refusal_.isEmpty() ? theme::quiet_ink : theme::failure));
    const QRect area =
        rect().adjusted(theme::page_margin + theme::text_padding, 1, -theme::page_margin, 0);
    QString words = Present();
    if (painter.boundingRect(area, wrapped, words).height() > area.height()) {
        words = words.simplified(); // without its line breaks it fits
    }
    painter.drawText(area, wrapped, words);
}

Help_Label_View::Help_Label_View(Control& its_control, const View_Facts& its_facts, Help_Line& line)
    : Control_View(its_control, its_facts), line_(line) {
    Give_Name(line, its_control);
    Give_Description(line);
}

void Help_Label_View::Refresh() {
    line_.Show_Words(control.Present_Look().visible ? Lines_To_Qt(control.Text()) : QString());
}

} // namespace kestrum::desktop
