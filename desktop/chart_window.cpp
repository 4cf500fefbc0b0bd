#include "desktop/chart_window.h"

#include "base/run_time_error.h"
#include "chart/chart_page.h"
#include "chart/chart_picture.h"
#include "chart/figure_text.h"
#include "desktop/desktop_printers.h"
#include "desktop/print_preview.h"
#include "desktop/text_bridge.h"
#include "desktop/theme.h"
#include "painting/figure_painter.h"
#include "platform/file_store.h"

#include <QClipboard>
#include <QFileDialog>
#include <QFormLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace kestrum::desktop {

namespace {

QString Number_Or_Nothing(std::optional<double> value, int decimals) {
    return To_Qt(Fixed_Text(value, decimals));
}

/// A picture's or table's file as the user names it; one that has no ending gets the usual one.
QString Chosen_Name(QWidget* parent, const QString& title, const QString& filter,
                    const QString& ending) {
    QString path = QFileDialog::getSaveFileName(parent, title, QString(), filter);
    if (!path.isEmpty() && !path.contains(QLatin1Char('.'))) {
        path += ending;
    }
    return path;
}

} // namespace

Chart_View::Chart_View(QWidget* parent) : QWidget(parent) {
    constexpr QSize least(560, 300);
    setMinimumSize(least);
    setAccessibleName(QStringLiteral("Chart"));
}

void Chart_View::Show_Chart(const Chart& chart) {
    chart_ = chart;
    update();
}

void Chart_View::paintEvent(QPaintEvent* /*event*/) {
    // Letters of the chart are set in points of paper; on a screen they want to be larger.
    constexpr double scale = 1.3;
    constexpr double margin = 8;
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    painter.scale(scale, scale);
    Figure figure(width() / scale, height() / scale);
    Draw_Chart(figure, {margin, margin, figure.width - margin, figure.height - margin}, chart_, {});
    painting::Paint_Figure(figure, painter);
}

Chart_Window::Chart_Window(Session& session, std::vector<Chart_Test> tests)
    : session_(session), tests_(std::move(tests)) {
    setWindowTitle(QStringLiteral("Chart of flow tests"));
    setObjectName(QStringLiteral("Chart"));
    setAttribute(Qt::WA_QuitOnClose, false);
    auto* const row = new QHBoxLayout(this);
    auto* const left = new QVBoxLayout;
    view_ = new Chart_View(this);
    table_ = new QTableWidget(this);
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->verticalHeader()->hide();
    table_->setAccessibleName(QStringLiteral("Figures"));
    left->addWidget(view_, 3);
    left->addWidget(table_, 1);
    row->addLayout(left, 1);
    row->addWidget(Settings());
    constexpr QSize usual_size(1160, 760);
    resize(usual_size);
    Show_Changes();
}

QDoubleSpinBox* Chart_Window::Number_Box(const QString& name, double most) {
    auto* const box = new QDoubleSpinBox(this);
    box->setRange(0, most);
    box->setDecimals(3);
    box->setAccessibleName(name);
    connect(box, &QDoubleSpinBox::valueChanged, this, [this] { Show_Changes(); });
    return box;
}

QWidget* Chart_Window::Settings() {
    auto* const panel = new QWidget(this);
    auto* const form = new QFormLayout(panel);
    const auto choice = [&](const QString& name, const QStringList& items) {
        auto* const box = new QComboBox(panel);
        box->addItems(items);
        box->setAccessibleName(name);
        form->addRow(name, box);
        connect(box, &QComboBox::currentIndexChanged, this, [this] { Show_Changes(); });
        return box;
    };
    QStringList quantities;
    for (const Chart_Quantity_Entry& entry : Chart_Quantity_Entries()) {
        quantities += To_Qt(entry.title);
    }
    QStringList names;
    for (const Chart_Test& test : tests_) {
        names += To_Qt(test.figures.name.empty() ? test.file : test.figures.name);
    }
    quantity_ = choice(QStringLiteral("Quantity"), quantities);
    sides_ = choice(QStringLiteral("Sides"),
                    {QStringLiteral("Both"), QStringLiteral("Intake"), QStringLiteral("Exhaust")});
    units_ = choice(QStringLiteral("Units"), {QStringLiteral("US"), QStringLiteral("Metric")});
    baseline_ = choice(QStringLiteral("Baseline"), names);
    constexpr int name_width = 150;
    baseline_->setMaximumWidth(name_width);
    pressure_ = Number_Box(QStringLiteral("Pressure"), 1000);
    mean_to_ = Number_Box(QStringLiteral("Mean to lift"), 100);
    cam_ = Number_Box(QStringLiteral("Cam lift"), 100);
    mean_to_->setSpecialValueText(QStringLiteral("common"));
    cam_->setSpecialValueText(QStringLiteral("none"));
    for (QDoubleSpinBox* const box : {mean_to_, cam_}) {
        box->setSingleStep(0.05);
    }
    pressure_->setMinimum(0.1);
    pressure_->setValue(full_flow_pressure);
    form->addRow(QStringLiteral("At in. H\u2082O"), pressure_);
    form->addRow(QStringLiteral("Mean to lift"), mean_to_);
    form->addRow(QStringLiteral("Cam lift"), cam_);
    const auto button = [&](const QString& words, void (Chart_Window::*act)()) {
        auto* const made = new QPushButton(words, panel);
        form->addRow(made);
        connect(made, &QPushButton::clicked, this, [this, act] { (this->*act)(); });
    };
    auto* const copy = new QPushButton(QStringLiteral("&Copy Table"), panel);
    form->addRow(copy);
    connect(copy, &QPushButton::clicked, this, [this] { Copy_Table(); });
    button(QStringLiteral("Save &Table..."), &Chart_Window::Save_Table);
    button(QStringLiteral("Save &Page..."), &Chart_Window::Save_Picture);
    button(QStringLiteral("P&rint..."), &Chart_Window::Print);
    message_ = new QLabel(panel);
    message_->setWordWrap(true);
    form->addRow(message_);
    return panel;
}

Chart_Request Chart_Window::Request() const {
    Chart_Request request;
    request.quantity = static_cast<Chart_Quantity>(quantity_->currentIndex());
    request.shows = {.intake = sides_->currentIndex() != 2, .exhaust = sides_->currentIndex() != 1};
    request.metric = units_->currentIndex() == 1;
    request.pressure = pressure_->value();
    if (mean_to_->value() > 0) {
        request.mean_to = mean_to_->value();
    }
    if (cam_->value() > 0) {
        request.cam_lift = cam_->value();
    }
    return request;
}

/// The baseline stands first.
std::vector<Chart_Test> Chart_Window::Ordered_Tests() const {
    std::vector<Chart_Test> tests = tests_;
    const auto first = tests.begin() + std::max(0, baseline_->currentIndex());
    std::rotate(tests.begin(), first, first + 1);
    return tests;
}

void Chart_Window::Show_Changes() {
    if (message_ == nullptr) {
        return; // the settings are being made
    }
    chart_ = Chart_Of(Ordered_Tests(), Request());
    view_->Show_Chart(chart_);
    Fill_Table();
}

void Chart_Window::Fill_Table() {
    const Chart_Request& request = chart_.request;
    const int decimals = request.Decimals();
    QStringList heads{QStringLiteral("Lift [") + To_Qt(request.Lift_Unit()) + QStringLiteral("]")};
    std::vector<Chart_Side> sides;
    for (const Chart_Side side : chart_sides) {
        if (!request.shows[side]) {
            continue;
        }
        sides.push_back(side);
        for (std::size_t test = 0; test < chart_.tests.size(); ++test) {
            const QString name =
                To_Qt(Numbered_Name(chart_, test)) +
                (side == Chart_Side::Intake ? QStringLiteral(" in") : QStringLiteral(" ex"));
            heads += name;
            if (test > 0) {
                heads += QStringLiteral("gain");
                heads += QStringLiteral("%");
            }
        }
    }
    table_->clear();
    table_->setColumnCount(static_cast<int>(heads.size()));
    table_->setHorizontalHeaderLabels(heads);
    table_->setRowCount(static_cast<int>(chart_.table.size()));
    for (int row = 0; row < table_->rowCount(); ++row) {
        const Chart_Row& figures = chart_.table[static_cast<std::size_t>(row)];
        int column = 0;
        const auto put = [&](const QString& text) {
            auto* const item = new QTableWidgetItem(text);
            item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            table_->setItem(row, column++, item);
        };
        put(To_Qt(Lift_Text(figures.lift, request.metric)));
        for (const Chart_Side side : sides) {
            for (const Chart_Cell& cell : figures.cells[side]) {
                put(Number_Or_Nothing(cell.value, decimals));
                if (&cell != &figures.cells[side].front()) {
                    put(To_Qt(Signed_Text(cell.gain, decimals)));
                    put(To_Qt(Signed_Text(cell.percent, 1)));
                }
            }
        }
    }
    table_->resizeColumnsToContents();
}

QString Chart_Window::Table_Text(QChar separator) const {
    const auto field = [separator](QString text) {
        const bool wants_quotes = text.contains(separator) || text.contains(QLatin1Char('"'));
        return wants_quotes
                   ? QLatin1Char('"') + text.replace(QLatin1Char('"'), QLatin1String("\"\"")) +
                         QLatin1Char('"')
                   : text;
    };
    QString text;
    for (int row = -1; row < table_->rowCount(); ++row) {
        for (int column = 0; column < table_->columnCount(); ++column) {
            const QTableWidgetItem* const item =
                row < 0 ? table_->horizontalHeaderItem(column) : table_->item(row, column);
            text += (column > 0 ? QString(separator) : QString()) +
                    (item != nullptr ? field(item->text()) : QString());
        }
        text += QLatin1Char('\n');
    }
    return text;
}

Figure Chart_Window::Page() const {
    const Engine_Screen& main = session_.Main();
    std::string line;
    for (const Control* const part : {&main.Text95, &main.Text96}) {
        line += (line.empty() || part->Text().empty() ? "" : " \xC2\xB7 ") + part->Text();
    }
    return Chart_Page(chart_, {.title = {}, .shop = main.Text94.Text(), .shop_line = line});
}

void Chart_Window::Copy_Table() const {
    QGuiApplication::clipboard()->setText(Table_Text(QLatin1Char('\t')));
    message_->setText(QStringLiteral("The table is in the clipboard"));
}

void Chart_Window::Save_Table() {
    const QString path = Chosen_Name(this, QStringLiteral("Save the table"),
                                     QStringLiteral("CSV files (*.csv)"), QStringLiteral(".csv"));
    if (path.isEmpty()) {
        return;
    }
    try {
        Write_Whole_File(From_Qt(path), From_Qt(Table_Text(QLatin1Char(','))));
        message_->setText(QStringLiteral("Saved ") + path);
    } catch (const Run_Time_Error& failure) {
        message_->setText(To_Qt("Not saved: " + failure.Description()));
    }
}

void Chart_Window::Save_Picture() {
    const QString path =
        Chosen_Name(this, QStringLiteral("Save the page"),
                    QStringLiteral("PDF files (*.pdf);;SVG files (*.svg);;PNG files (*.png)"),
                    QStringLiteral(".pdf"));
    if (path.isEmpty()) {
        return;
    }
    constexpr int dots_in_inch = 144;
    const bool is_svg = path.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive);
    const bool is_png = path.endsWith(QLatin1String(".png"), Qt::CaseInsensitive);
    try {
        Write_Whole_File(
            From_Qt(path),
            is_svg ? Figure_Svg(Page())
                   : painting::Figure_Bytes(
                         Page(), is_png ? Picture_Format::Png : Picture_Format::Pdf, dots_in_inch));
        message_->setText(QStringLiteral("Saved ") + path);
    } catch (const Run_Time_Error& failure) {
        message_->setText(To_Qt("Not saved: " + failure.Description()));
    }
}

void Chart_Window::Print() {
    auto* const printers = dynamic_cast<Desktop_Printers*>(session_.printers);
    if (printers == nullptr) {
        return;
    }
    const Printable printable{
        .title = QStringLiteral("Chart"), .paint = [page = Page()](QPagedPaintDevice& device) {
            QPainter painter;
            if (!painter.begin(&device)) {
                return false;
            }
            const double scale = std::min(painter.viewport().width() / page.width,
                                          painter.viewport().height() / page.height);
            painter.scale(scale, scale);
            painting::Paint_Figure(page, painter);
            return true;
        }};
    try {
        printers->show_preview(*printers, std::string(pdf_file), printable);
    } catch (const Run_Time_Error& failure) {
        message_->setText(To_Qt("Not printed: " + failure.Description()));
    }
}

} // namespace kestrum::desktop
