#include "desktop/chart_window.h"

#include "base/run_time_error.h"
#include "chart/figure_text.h"
#include "desktop/desktop_printers.h"
#include "desktop/text_bridge.h"
#include "desktop/theme.h"
#include "desktop/window_place.h"
#include "drawing/picture_file.h"
#include "painting/figure_painter.h"
#include "platform/file_store.h"
#include "records/named_files.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QHideEvent>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>

namespace kestrum::desktop {

namespace {

constexpr int row_height = 24; // of the tables

QStringList Names_Of(const std::vector<Chart_Test>& tests) {
    QStringList names;
    for (const Chart_Test& test : tests) {
        names += Digits_Of(static_cast<int>(names.size()) + 1) + QLatin1Char(' ') +
                 To_Qt(test.figures.name.empty() ? test.file : test.figures.name);
    }
    return names;
}

/// The shop's logo as the prints have it; a page without one is still a page.
std::optional<Figure_Picture> Logo_Of(const Session& session) {
    const std::string& file = session.settings.logo.file;
    if (!session.settings.logo.on || file.empty()) {
        return std::nullopt;
    }
    try {
        const std::optional<Picture_Size> size = Size_Of_Picture_File(file);
        return size ? std::optional(
                          Figure_Picture{.box = {.left = 0,
                                                 .top = 0,
                                                 .right = static_cast<double>(size->width),
                                                 .bottom = static_cast<double>(size->height)},
                                         .bytes = Read_Whole_File(file)})
                    : std::nullopt;
    } catch (const Run_Time_Error&) {
        return std::nullopt;
    }
}

bool Paint_Pages(const std::vector<Figure>& pages, QPagedPaintDevice& device) {
    QPainter painter;
    if (!painter.begin(&device)) {
        return false;
    }
    for (const Figure& page : pages) {
        if (&page != &pages.front()) {
            device.newPage();
        }
        const double scale = std::min(painter.viewport().width() / page.width,
                                      painter.viewport().height() / page.height);
        painter.save();
        painter.scale(scale, scale);
        painting::Paint_Figure(page, painter);
        painter.restore();
    }
    return true;
}

} // namespace

Chart_Window::Chart_Window(Session& session, std::vector<Chart_Test> tests)
    : session_(session),
      tests_(std::move(tests)),
      view_(new Chart_View(this)),
      tabs_(new QTabWidget(this)),
      settings_(new Chart_Settings(this, Names_Of(tests_), session.Main().Is_Metric())) {
    setWindowTitle(QStringLiteral("Chart of flow tests"));
    setObjectName(QStringLiteral("Chart"));
    setAttribute(Qt::WA_QuitOnClose, false);
    tables_ = {Table(QStringLiteral("Whole curve")), Table(QStringLiteral("At equal lifts"))};
    auto* const left = new QSplitter(Qt::Vertical, this);
    left->addWidget(view_);
    left->addWidget(tabs_);
    left->setStretchFactor(0, 1);
    left->setChildrenCollapsible(false);
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(theme::page_margin, theme::page_margin, theme::page_margin,
                            theme::page_margin);
    row->addWidget(left, 1);
    row->addWidget(Side());
    auto* const copy = new QAction(this);
    copy->setShortcut(QKeySequence::Copy);
    addAction(copy);
    connect(copy, &QAction::triggered, this, [this] { Copy_Tables(); });
    settings_->changed = [this] { Show_Changes(); };
    constexpr QSize usual_size(1200, 760);
    resize(usual_size.boundedTo(screen()->availableSize()));
    Take_Kept_Size(*this);
    // A line for each of some tests shows; the chart wants the room.
    constexpr int head_height = 92;
    constexpr std::size_t most_lines = 5;
    const int lines =
        head_height + static_cast<int>(std::min(tests_.size(), most_lines)) * row_height;
    left->setSizes({height() - lines, lines});
    Show_Changes();
    view_->setFocus();
}

Chart_Window::~Chart_Window() {
    if (isVisible()) {
        Keep_Place_Of(*this); // the program ends
    }
}

void Chart_Window::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    if (!event->spontaneous()) {
        Keep_Place_Of(*this);
    }
}

QTableWidget* Chart_Window::Table(const QString& name) {
    auto* const table = new QTableWidget(tabs_);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(row_height);
    table->setAccessibleName(name);
    tabs_->addTab(table, name);
    return table;
}

QWidget* Chart_Window::Side() {
    auto* const side = new QWidget(this);
    auto* const column = new QVBoxLayout(side);
    column->setContentsMargins({});
    column->addWidget(settings_);
    const auto button = [&](const QString& words, auto act) {
        auto* const made = new QPushButton(words, side);
        column->addWidget(made);
        connect(made, &QPushButton::clicked, this, act);
    };
    button(QStringLiteral("&Whole Chart"), [this] { view_->Show_Whole(); });
    button(QStringLiteral("Cop&y Tables"), [this] { Copy_Tables(); });
    button(QStringLiteral("Save &Tables..."), [this] { Save_Tables(); });
    button(QStringLiteral("Save &Page..."), [this] { Save_Page(); });
    button(QStringLiteral("P&rint..."), [this] { Print(); });
    message_ = new QLabel(side);
    message_->setWordWrap(true);
    column->addWidget(message_);
    column->addStretch(1);
    return side;
}

void Chart_Window::Show_Changes() {
    Chart_Request request = settings_->Request();
    message_->clear();
    try {
        chart_ = Chart_Of(tests_, request);
    } catch (const Run_Time_Error&) {
        message_->setText(QStringLiteral("The step of the table is too small"));
        request.step.reset();
        chart_ = Chart_Of(tests_, request);
    }
    view_->Show_Chart(chart_, settings_->Style());
    texts_ = {Summary_Table(chart_, Table_Detail::Whole),
              Lift_Table(chart_, Sides_With_Points(chart_), Table_Detail::Whole)};
    for (std::size_t table = 0; table < tables_.size(); ++table) {
        Fill(*tables_.at(table), texts_.at(table));
    }
}

void Chart_Window::Fill(QTableWidget& table, const Chart_Table& texts) const {
    table.clear();
    table.setColumnCount(static_cast<int>(texts.columns.size()));
    table.setRowCount(static_cast<int>(texts.rows.size()));
    for (int column = 0; column < table.columnCount(); ++column) {
        const Table_Column& head = texts.columns[static_cast<std::size_t>(column)];
        table.setHorizontalHeaderItem(
            column,
            new QTableWidgetItem(head.group.empty() ? To_Qt(head.title)
                                                    : To_Qt(head.group + "\n" + head.title)));
    }
    for (int row = 0; row < table.rowCount(); ++row) {
        for (int column = 0; column < table.columnCount(); ++column) {
            const Table_Cell& cell =
                texts.rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
            auto* const item = new QTableWidgetItem(To_Qt(cell.text));
            item->setTextAlignment(Qt::AlignVCenter | (cell.bold ? Qt::AlignLeft : Qt::AlignRight));
            if (cell.test) {
                item->setForeground(QColor(QRgb(view_->Layout().Colours().Curve(*cell.test))));
            }
            table.setItem(row, column, item);
        }
    }
    table.resizeColumnsToContents();
}

std::vector<Figure> Chart_Window::Pages() const {
    const Engine_Screen& main = session_.Main();
    std::string line;
    for (const Control* const part : {&main.Text95, &main.Text96}) {
        line += (line.empty() || part->Text().empty() ? "" : " \xC2\xB7 ") + part->Text();
    }
    return Chart_Pages(chart_, settings_->Style(),
                       {.title = From_Qt(settings_->Title()),
                        .shop = main.Text94.Text(),
                        .shop_line = line,
                        .logo = Logo_Of(session_)});
}

/// What is chosen of a table, or else both tables.
void Chart_Window::Copy_Tables() const {
    const std::size_t shown = static_cast<std::size_t>(tabs_->currentIndex());
    const QList<QTableWidgetSelectionRange> ranges = tables_.at(shown)->selectedRanges();
    const bool has_block = tables_.at(shown)->hasFocus() && ranges.size() == 1 &&
                           ranges.front().rowCount() * ranges.front().columnCount() > 1;
    if (!has_block) {
        QGuiApplication::clipboard()->setText(To_Qt(Separated_Text(texts_, '\t')));
        message_->setText(QStringLiteral("Both tables are in the clipboard"));
        return;
    }
    const QTableWidgetSelectionRange& range = ranges.front();
    const auto first = range.leftColumn();
    const auto behind = range.rightColumn() + 1;
    const Chart_Table& whole = texts_.at(shown);
    Chart_Table block;
    block.columns.assign(whole.columns.begin() + first, whole.columns.begin() + behind);
    for (int row = range.topRow(); row <= range.bottomRow(); ++row) {
        const std::vector<Table_Cell>& cells = whole.rows.at(static_cast<std::size_t>(row));
        block.rows.emplace_back(cells.begin() + first, cells.begin() + behind);
    }
    QGuiApplication::clipboard()->setText(To_Qt(Separated_Text(std::array{block}, '\t')));
    message_->setText(QStringLiteral("The chosen cells are in the clipboard"));
}

std::string Chart_Window::Proposal(std::string_view ending) const {
    const auto name = [this](std::size_t test) {
        return tests_.size() > test ? tests_[test].figures.name : std::string();
    };
    return Proposal_For_Tests(name(0), tests_.size() == 2 ? name(1) : std::string(), ending);
}

void Chart_Window::Save(std::string_view entries, std::string_view ending,
                        const std::function<std::string(const QString& path)>& bytes) {
    const auto chosen = session_.dialogs.Choose_File({.mode = Chooser_Mode::Save,
                                                      .filter = {},
                                                      .folder = session_.surroundings.folder,
                                                      .proposal = Proposal(ending),
                                                      .more_entries = std::string(entries)});
    if (!chosen) {
        return;
    }
    try {
        Write_Whole_File(chosen->path, bytes(To_Qt(chosen->path)));
        message_->setText(QStringLiteral("Saved to ") + To_Qt(chosen->path));
    } catch (const Run_Time_Error& failure) {
        message_->setText(To_Qt("Not saved: " + failure.Description()));
    }
}

void Chart_Window::Save_Tables() {
    Save("CSV files (*.csv)|*.csv", ".csv",
         [this](const QString&) { return Separated_Text(texts_, ','); });
}

void Chart_Window::Save_Page() {
    Save("PDF files (*.pdf)|*.pdf|SVG files (*.svg)|*.svg|PNG files (*.png)|*.png", ".pdf",
         [this](const QString& path) {
             constexpr int dots_in_inch = 144;
             const std::vector<Figure> pages = Pages();
             if (path.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive)) {
                 return Figure_Svg(Below_Each_Other(pages));
             }
             const bool is_png = path.endsWith(QLatin1String(".png"), Qt::CaseInsensitive);
             return painting::Figure_Bytes(
                 pages, is_png ? Picture_Format::Png : Picture_Format::Pdf, dots_in_inch);
         });
}

void Chart_Window::Print() {
    auto* const printers = dynamic_cast<Desktop_Printers*>(session_.printers);
    if (printers == nullptr) {
        return;
    }
    const Printable printable{.title = QStringLiteral("Chart"),
                              .proposal = Proposal(".pdf"),
                              .landscape = false,
                              .paint = [pages = Pages()](QPagedPaintDevice& device) {
                                  return Paint_Pages(pages, device);
                              }};
    try {
        printers->show_preview(*printers, std::string(pdf_file), printable);
    } catch (const Run_Time_Error& failure) {
        message_->setText(To_Qt("Not printed: " + failure.Description()));
    }
}

} // namespace kestrum::desktop
