#include "desktop/help_line.h"

#include "desktop/crisp.h"
#include "desktop/text_bridge.h"

#include <QEvent>
#include <QPainter>

#include <algorithm>

namespace kestrum::desktop {

namespace {

constexpr int wrapped = static_cast<int>(Qt::AlignLeft) | static_cast<int>(Qt::AlignVCenter) |
                        static_cast<int>(Qt::TextWordWrap);

QRect Inside(const QRect& area) {
    return area.adjusted(theme::page_margin + theme::text_padding, 1, -theme::page_margin, 0);
}

} // namespace

Help_Line::Help_Line(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_TransparentForMouseEvents); // the cell below goes on being pointed at
    parent->installEventFilter(this);
    end_of_news_.setSingleShot(true);
    connect(&end_of_news_, &QTimer::timeout, this, [this] { Say(QString()); });
}

const QString& Help_Line::Present() const {
    return !refusal_.isEmpty() ? refusal_ : !news_.isEmpty() ? news_ : words_;
}

/// The mouse lies over some cell when a box closes: its words must not hide the news at once.
void Help_Line::Say(const QString& news) {
    constexpr int milliseconds = 8000;
    end_of_news_.start(milliseconds);
    if (news != news_) {
        news_ = news;
        Show_Present();
    }
}

void Help_Line::Forget_All() {
    Forget();
    Say(QString());
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
    Take_Place();
    update();
}

int Help_Line::Least_Height() const {
    return fontMetrics().lineSpacing() + theme::page_margin;
}

void Help_Line::Take_Place() {
    const QRect window = parentWidget()->rect();
    const int needed =
        Present().isEmpty()
            ? 0
            : fontMetrics().boundingRect(Inside(window), wrapped, Present()).height() +
                  theme::page_margin;
    const int height =
        std::clamp(needed, Least_Height(), std::max(Least_Height(), window.height()));
    setGeometry(0, window.height() - height, window.width(), height);
    if (height > Least_Height()) {
        raise();
    }
}

bool Help_Line::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize) {
        Take_Place();
    }
    return QWidget::eventFilter(watched, event);
}

void Help_Line::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange) {
        Take_Place();
    }
    QWidget::changeEvent(event);
}

void Help_Line::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const bool lies_over_page = height() > Least_Height();
    painter.fillRect(
        rect(), QColor::fromRgb(lies_over_page ? theme::Colours().card : theme::Colours().window));
    const Crisp crisp(painter);
    const QRect whole = crisp.Dots_Of(rect());
    crisp.Fill({whole.topLeft(), QSize(whole.width(), crisp.Dots_In(1))},
               lies_over_page ? theme::Colours().line : theme::Colours().card_line);
    painter.setPen(QColor::fromRgb(refusal_.isEmpty() ? theme::Colours().quiet_ink
                                                      : theme::Colours().failure));
    painter.drawText(Inside(rect()), wrapped, Present());
}

Help_Label_View::Help_Label_View(Control& its_control, const View_Facts& its_facts, Help_Line& line)
    : Control_View(its_control, its_facts), line_(line) {
    Give_Name(line, its_control);
    Give_Description(line, its_control);
}

void Help_Label_View::Refresh() {
    line_.Show_Words(control.Present_Look().visible ? Lines_To_Qt(control.Text()) : QString());
}

} // namespace kestrum::desktop
