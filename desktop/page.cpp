#include "desktop/page.h"

#include "desktop/crisp.h"
#include "desktop/frame_view.h"
#include "desktop/make_view.h"
#include "desktop/text_bridge.h"
#include "desktop/text_views.h"

#include <QFontMetrics>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace kestrum::desktop {

namespace {

bool Needs_View(const Control& control) {
    return control.Entry().use != Cell_Use::Blank || control.Entry().hover != Hover::Hides ||
           !control.Text().empty();
}

} // namespace

Page::Page(const Page_Context& context, std::string_view holder, QWidget* parent, int rows)
    : QWidget(parent),
      context_(context),
      holder_(holder),
      design_(Design_Of(context.screen, holder)),
      map_(context.screen, holder),
      is_panel_(!holder.empty() && rows == 0),
      rows_(std::max(rows, 1)) {
    setMouseTracking(true);
    context_.page_made(*this);
    if (!is_panel_) {
        setFont(theme::Text_Font());
    }
    for (Control& control : context_.screen.Controls()) {
        if (control.Entry().parent == holder && control.Entry().kind != Control_Kind::Menu_Entry &&
            Place_Of(control).column >= 0) {
            const Place place = Place_Of(control);
            columns_ = std::max(columns_, place.column + place.columns);
            rows_ = std::max(rows_, place.row + place.rows);
        }
    }
    for (Control& control : context_.screen.Controls()) {
        if (control.Entry().parent == holder && Place_Of(control).column >= 0 &&
            Needs_View(control)) {
            Add_View(control);
        }
    }
    Measure_Columns();
    Weigh_Rows();
}

View_Facts Page::Facts_Of(const Control& control) const {
    View_Facts facts{.events = context_.events};
    if (control.Is_Text_Box()) {
        facts.heads_column = control.Entry().use == Cell_Use::Caption && map_.Heads_Column(control);
    }
    return facts;
}

void Page::Add_View(Control& control) {
    if (control.Entry().kind == Control_Kind::Frame) {
        if (Frame_View::Covers_Its_Form(control)) {
            return; // the window has it beside this page
        }
        auto* const frame = new Frame_View(context_, control, Facts_Of(control), this);
        Give_Description(*frame, control);
        context_.made(*frame);
        items_.push_back({frame, Place_Of(control)});
        return;
    }
    const Place place = Place_Of(control);
    Control_View& view =
        Make_View(control, Facts_Of(control), this, map_.Has_Cell(place.column, place.row));
    if (dynamic_cast<const Text_View*>(&view) == nullptr) {
        Give_Description(*view.Widget(), control); // light cells tell it when they are asked
    }
    context_.made(view);
    items_.push_back({&view, place});
    if (control.Is_Text_Box()) {
        static_cast<void>(Takes_Font(control));
    }
    if (isVisible()) {
        Place_Item(items_.back());
        view.Widget()->show();
    }
}

void Page::Add_Second_View(Control& control, const Place& place) {
    Control_View& view = Make_View(control, Facts_Of(control), this, false);
    view.Widget()->setObjectName(view.Widget()->objectName() + QLatin1String(" on ") +
                                 QLatin1String(holder_.data(), qsizetype(holder_.size())));
    items_.push_back({&view, place});
}

void Page::Name_Fields_Anew() {
    update();
    for (const Item& item : items_) {
        if (item.view->control.Is_Text_Box()) {
            item.view->Name_Anew();
        }
    }
}

void Page::Name_Rows_Anew(const std::set<int>& rows) {
    update(); // the heads of the rows
    for (const Item& item : items_) {
        if (rows.contains(item.place.row)) {
            item.view->Name_Anew();
        }
    }
}

bool Page::Takes_Font(const Control& field) {
    const Font chosen = theme::Chosen_Font(field);
    const auto known = fonts_.find(&field);
    if (chosen == (known == fonts_.end() ? Font() : known->second)) {
        return false;
    }
    fonts_[&field] = chosen;
    return true;
}

void Page::Measure_Anew() {
    Measure_Columns();
    Weigh_Rows();
    updateGeometry();
    Set_Letters();
    Lay_Out();
}

/// A control's letters at the theme's own size.
QFont Page::Letters_Of(const Control& control) const {
    return fonts_.contains(&control) ? theme::Font_Of(control, theme::Text_Font())
                                     : theme::Text_Font();
}

/// A column is as wide as its widest caption. Captions that stand alone in their place count only,
/// and figures in letters of their own.
void Page::Measure_Columns() {
    widths_.assign(static_cast<std::size_t>(columns_), design_.column_width);
    // Bold letters are that much wider. To measure them would load a font that only the display at
    // its present scale needs, which takes longer than to paint the page.
    constexpr double of_bold = 1.15;
    const QFontMetrics usual(theme::Text_Font());
    for (const Item& item : items_) {
        const Control& control = item.view->control;
        const bool own_letters = fonts_.contains(&control);
        if (item.place.columns == 1 && (control.Entry().use == Cell_Use::Caption || own_letters)) {
            const double letters = map_.Heads_Column(control) ? of_bold : 1;
            const QString text = To_Qt(control.Text());
            const int words = own_letters
                                  ? QFontMetrics(Letters_Of(control)).horizontalAdvance(text)
                                  : usual.horizontalAdvance(text);
            int& width = widths_[static_cast<std::size_t>(item.place.column)];
            width =
                std::max(width, static_cast<int>(letters * words) + 2 * theme::text_padding + 1);
        }
    }
}

/// Rows against the usual height. Lines of a heading belong together, and a row that nothing stands
/// in is only a gap. A row is as high as its largest letters need.
double Page::Weight_Of(const Control& control) const {
    constexpr double line_height = 16;
    const bool is_heading = control.Entry().use == Cell_Use::Caption && map_.Heads_Column(control);
    const double usual = is_heading ? line_height / design_.row_height : 1.0;
    if (!fonts_.contains(&control)) {
        return usual;
    }
    const double letters = QFontMetrics(Letters_Of(control)).height();
    const double of_usual = QFontMetrics(theme::Text_Font()).height();
    return std::max(usual, usual * letters / of_usual);
}

void Page::Weigh_Rows() {
    constexpr double of_gap = 0.4;
    std::vector<double> weights(static_cast<std::size_t>(rows_), of_gap);
    for (const Item& item : items_) {
        const Control& control = item.view->control;
        if (control.Entry().kind == Control_Kind::Frame && control.Entry().starts_hidden) {
            continue; // floats above the rows
        }
        const double needed = Weight_Of(control);
        for (int row = item.place.row; row < item.place.row + item.place.rows; ++row) {
            double& weight = weights[static_cast<std::size_t>(row)];
            weight = std::max(weight, needed);
        }
    }
    constexpr double of_options = 1.25;
    for (int row = 0; row < std::min(rows_, design_.rows_of_options); ++row) {
        weights[static_cast<std::size_t>(row)] = of_options;
    }
    Sum_Rows_Up(weights);
}

void Page::Sum_Rows_Up(const std::vector<double>& weights) {
    constexpr double gap = 0.5;
    row_tops_.clear();
    row_feet_.clear();
    double foot = 0;
    for (int row = 0; row < rows_; ++row) {
        row_tops_.push_back(row > 0 && row == design_.gap_before_row ? foot + gap : foot);
        foot = row_tops_.back() + weights[static_cast<std::size_t>(row)];
        row_feet_.push_back(foot);
    }
}

Control_View* Page::View_Of(const Control& control) const {
    const auto found = std::ranges::find_if(
        items_, [&control](const Item& item) { return &item.view->control == &control; });
    return found == items_.end() ? nullptr : found->view;
}

QSize Page::sizeHint() const {
    const int width = std::accumulate(widths_.begin(), widths_.end(), design_.row_heads_width);
    const int margins = is_panel_ ? 0 : 2 * theme::page_margin;
    return {width + margins, static_cast<int>(row_feet_.back() * design_.row_height) + margins};
}

/// Smaller, even the smallest letters would be cut.
QSize Page::minimumSizeHint() const {
    constexpr double least_across = 0.7;
    constexpr double least_down = 0.62;
    return {static_cast<int>(sizeHint().width() * least_across),
            static_cast<int>(sizeHint().height() * least_down)};
}

void Page::resizeEvent(QResizeEvent* /*event*/) {
    Set_Letters();
    Lay_Out();
}

double Page::Scale_Across() const {
    const int margins = is_panel_ ? 0 : 2 * theme::page_margin;
    return static_cast<double>(width() - margins) / (sizeHint().width() - margins);
}

double Page::Scale_Down() const {
    const int margins = is_panel_ ? 0 : 2 * theme::page_margin;
    return static_cast<double>(height() - margins) / (sizeHint().height() - margins);
}

/// Letters grow with the window, all of a page alike; those of a panel are those of the form that
/// it lies on.
void Page::Set_Letters() {
    if (is_panel_) {
        return;
    }
    // On a display that its screen was stretched to, letters grow as the cells do.
    const Screen_Scale& stretched = context_.screen.scale;
    const double most = 1.6 * std::max(stretched.x, stretched.y);
    // Whole dots of a letter, but never more than the columns have room for.
    const double pixels =
        std::floor(theme::text_pixels * std::min({most, Scale_Across(), Scale_Down()}) + 0.01);
    const QFont letters = theme::Text_Font(pixels / theme::text_pixels);
    if (letters.pixelSize() != font().pixelSize()) {
        setFont(letters);
    }
    for (const auto& [field, chosen] : fonts_) {
        if (Control_View* const view = View_Of(*field)) {
            view->Take_Letters();
        }
    }
}

void Page::Lay_Out() {
    const int margin = is_panel_ ? 0 : theme::page_margin;
    int sum = design_.row_heads_width;
    edges_.assign(1, margin + static_cast<int>(sum * Scale_Across()));
    for (const int width : widths_) {
        sum += width;
        edges_.push_back(margin + static_cast<int>(sum * Scale_Across()));
    }
    for (const Item& item : items_) {
        Place_Item(item);
    }
}

void Page::Place_Item(const Item& item) const {
    item.view->Widget()->setGeometry(item.view->Area_In(Area_Of(item.place)));
}

QRect Page::Area_Of(const Place& place) const {
    const int margin = is_panel_ ? 0 : theme::page_margin;
    const int height_given = height() - 2 * margin;
    const auto edge_of_row = [&](const std::vector<double>& edges, int row) {
        const double above = edges[static_cast<std::size_t>(std::clamp(row, 0, rows_ - 1))];
        return margin + static_cast<int>(above * height_given / row_feet_.back());
    };
    const auto edge_of_column = [&](int column) {
        return edges_[static_cast<std::size_t>(std::clamp(column, 0, columns_))];
    };
    const QPoint corner(edge_of_column(place.column), edge_of_row(row_tops_, place.row));
    return {corner, QPoint(edge_of_column(place.column + place.columns) - 1,
                           edge_of_row(row_feet_, place.row + place.rows - 1) - 1)};
}

void Page::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const Crisp crisp(painter);
    for (const Place& place : design_.cards) {
        const bool at_left = place.column == 0;
        const bool at_right = place.column + place.columns == columns_;
        const QRectF card = QRectF(Area_Of(place) | Area_Of_Row_Heads(place))
                                .adjusted(at_left ? -4 : -1, -3, at_right ? 3 : 0, 3);
        crisp.Card(card, theme::radius, theme::Colours().card_line, theme::Colours().card);
    }
    Paint_Captions(painter);
    Paint_Row_Heads(painter);
    if (holder_.empty() && design_.information_sample) {
        const QRect cell = Area_Of(*design_.information_sample);
        Paint_Information_Mark(painter,
                               cell.adjusted(0, cell.height() / 3, -2 * theme::text_padding, 0));
    }
}

/// Words of fields that have no caption cell.
void Page::Paint_Captions(QPainter& painter) const {
    painter.setPen(QColor::fromRgb(theme::Caption_Ink(Side::Both)));
    for (const Own_Words& line : All_Own_Words()) {
        if (line.screen == context_.screen.Kind() && line.holder == holder_ &&
            line.place.column >= 0) {
            Paint_Fitted(painter, Area_Of(line.place).adjusted(theme::text_padding, 0, -2, -1),
                         Qt::AlignLeft | Qt::AlignVCenter, To_Qt(line.words));
        }
    }
}

/// Left of a card's rows; nothing where no heads stand.
QRect Page::Area_Of_Row_Heads(const Place& rows) const {
    if (design_.row_heads_width == 0 || rows.column > 0 || rows.row < design_.first_row_head) {
        return {};
    }
    const QRect cells = Area_Of(rows);
    return {QPoint(is_panel_ ? 0 : theme::page_margin, cells.top()),
            QPoint(edges_.front() - 1, cells.bottom())};
}

/// Cells of another page that tell what a row is of.
void Page::Paint_Row_Heads(QPainter& painter) const {
    painter.setPen(QColor::fromRgb(theme::Caption_Ink(Side::Both)));
    for (int row = design_.first_row_head; row < rows_; ++row) {
        const Control* const head = context_.screen.Find(design_.row_heads, row);
        const QRect area = Area_Of_Row_Heads({0, row, 1, 1});
        if (head != nullptr && !area.isEmpty()) {
            Paint_Fitted(painter, area.adjusted(theme::text_padding, 0, -theme::text_padding, -1),
                         Qt::AlignRight | Qt::AlignVCenter, To_Qt(head->Text()));
        }
    }
}

void Page::mouseMoveEvent(QMouseEvent* event) {
    if (childAt(event->position().toPoint()) == nullptr) {
        context_.events.Hovered_Form();
    }
}

} // namespace kestrum::desktop
