#include "desktop/frame_view.h"

#include "desktop/crisp.h"
#include "desktop/text_bridge.h"
#include "desktop/text_views.h"

#include <QFontMetrics>
#include <QPainter>
#include <QTimer>

namespace kestrum::desktop {

namespace {

constexpr int caption_gap = 4;

} // namespace

bool Frame_View::Covers_Its_Form(const Control& frame) {
    if (frame.Entry().kind != Control_Kind::Frame || !frame.Entry().starts_hidden) {
        return false;
    }
    const Place whole = Place_Of(frame);
    for (const Control& other : frame.Owner().Controls()) {
        const Place place = Place_Of(other);
        if (other.Entry().parent.empty() &&
            (place.column + place.columns > whole.column + whole.columns ||
             place.row + place.rows > whole.row + whole.rows)) {
            return false;
        }
    }
    return whole.column == 0 && whole.row == 0;
}

Frame_View::Frame_View(const Page_Context& context, Control& its_control,
                       const View_Facts& its_facts, QWidget* parent)
    : Widget_View(its_control, its_facts, parent),
      context_(context),
      floats_(its_control.Entry().starts_hidden) {
    setMouseTracking(true);
    setAccessibleName(To_Qt(its_control.Text()));
    Frame_View::Refresh();
}

void Frame_View::Refresh() {
    const bool shows = control.Present_Look().visible;
    if (shows && page_ == nullptr) {
        page_ = new Page(context_, control.Entry().array, this);
        Place_Page();
    }
    if (!shows && isAncestorOf(window()->focusWidget())) {
        window()->focusWidget()->clearFocus(); // or Qt would look for another field
    }
    setFocusPolicy(Qt::NoFocus);
    const bool hidden = isHidden() && testAttribute(Qt::WA_WState_ExplicitShowHide);
    if (hidden == shows) {
        setVisible(shows);
    }
    if (floats_ && shows) {
        raise();
    }
    if (floats_ && shows && hidden) {
        QTimer::singleShot(0, this,
                           [this] { Take_Focus(); }); // the command that shows it has to end
    }
}

/// A panel that opens has what the user goes on with.
void Frame_View::Take_Focus() const {
    const std::vector<QWidget*> order = Tab_Order();
    if (isVisible() && !order.empty()) {
        order.front()->setFocus(Qt::OtherFocusReason);
    }
}

QRect Frame_View::Area_In(const QRect& cell) const {
    return floats_ ? cell : cell.adjusted(1, 1, -4, -4);
}

std::vector<QWidget*> Frame_View::Tab_Order() const {
    return page_ == nullptr ? std::vector<QWidget*>() : page_->Tab_Order();
}

QFont Frame_View::Caption_Font() const {
    QFont letters = font();
    letters.setBold(true);
    return letters;
}

void Frame_View::Place_Page() {
    if (page_ != nullptr) {
        const int padding = floats_ ? 3 * theme::card_padding : theme::card_padding;
        const int caption = QFontMetrics(Caption_Font()).height() + caption_gap;
        page_->setGeometry(rect().adjusted(padding, padding + caption, -padding, -padding));
    }
}

void Frame_View::resizeEvent(QResizeEvent* event) {
    Place_Page();
    Widget_View::resizeEvent(event);
}

void Frame_View::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange) {
        Place_Page();
    }
    Widget_View::changeEvent(event);
}

void Frame_View::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    Crisp(painter).Card(rect(), theme::radius,
                        floats_ ? theme::Colours().accent : theme::Colours().card_line,
                        theme::Colours().card);
    painter.setFont(Caption_Font());
    painter.setPen(QColor::fromRgb(theme::Caption_Ink(Side::Both)));
    const int padding = floats_ ? 3 * theme::card_padding : theme::card_padding;
    Paint_Fitted(painter, rect().adjusted(padding + theme::text_padding, padding, -padding, 0),
                 Qt::AlignLeft | Qt::AlignTop, To_Qt(control.Text()));
}

} // namespace kestrum::desktop
