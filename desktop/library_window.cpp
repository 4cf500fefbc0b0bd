#include "desktop/library_window.h"

#include "base/text.h"
#include "desktop/chart_window.h"
#include "desktop/text_bridge.h"
#include "desktop/theme.h"
#include "library/test_reader.h"
#include "platform/file_store.h"

#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QMenu>
#include <QPointer>
#include <QVBoxLayout>

#include <set>

namespace kestrum::desktop {

namespace {

/// Kept in the place of a format: such a row has no file.
constexpr std::string_view open_sheet = "Flow Test ";

QPushButton* Button(const char* words, QWidget* parent) {
    auto* const button = new QPushButton(QString::fromLatin1(words), parent);
    button->setAutoDefault(false);
    return button;
}

} // namespace

Library_Window::Library_Window(Session& session, Gate& gate)
    : session_(session), gate_(gate), order_(model_) {
    setWindowTitle(QStringLiteral("Library of flow tests"));
    setObjectName(QStringLiteral("Library"));
    setAttribute(Qt::WA_QuitOnClose, false);
    Make_Content();
    constexpr int look_milliseconds = 40;
    constexpr int settle_milliseconds = 700;
    look_.setInterval(look_milliseconds);
    read_again_.setSingleShot(true);
    read_again_.setInterval(settle_milliseconds);
    connect(&look_, &QTimer::timeout, this, [this] { Look_At_Reading(); });
    connect(&read_again_, &QTimer::timeout, this, [this] { Read_Again(); });
    connect(&watcher_, &QFileSystemWatcher::directoryChanged, this,
            [this] { read_again_.start(); });
    try {
        Open_Folder(To_Qt(Without_Outer_Blanks(Read_Whole_File(Note_File()))));
    } catch (const Run_Time_Error&) {
        Read_Again(); // no folder was chosen yet: the open sheets alone
    }
}

std::string Library_Window::Note_File() const {
    return Join_Path(session_.surroundings.folder, "library-folder.txt");
}

void Library_Window::Make_Content() {
    constexpr QSize usual_size(1180, 640);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(theme::page_margin, theme::page_margin, theme::page_margin,
                               theme::page_margin);
    layout->addLayout(Folder_Row());
    words_ = new QLineEdit(this);
    words_->setPlaceholderText(QStringLiteral("Filter by name, file or format"));
    words_->setClearButtonEnabled(true);
    words_->setAccessibleName(QStringLiteral("Filter"));
    layout->addWidget(words_);
    Make_Table();
    layout->addWidget(table_, 1);
    layout->addLayout(Foot_Row());
    connect(words_, &QLineEdit::textChanged, this, [this](const QString& words) {
        order_.Set_Words(words);
        Look_At_Reading();
    });
    resize(usual_size);
    words_->setFocus();
}

QLayout* Library_Window::Folder_Row() {
    auto* const row = new QHBoxLayout;
    path_ = new QLineEdit(this);
    path_->setReadOnly(true);
    path_->setPlaceholderText(QStringLiteral("No folder chosen"));
    path_->setAccessibleName(QStringLiteral("Folder"));
    metric_ = new QCheckBox(QStringLiteral("Numbers of .dat files are metric"), this);
    auto* const choose = Button("Choose &Folder...", this);
    auto* const again = Button("&Read Again", this);
    row->addWidget(choose);
    row->addWidget(path_, 1);
    row->addWidget(metric_);
    row->addWidget(again);
    connect(choose, &QPushButton::clicked, this, [this] { Choose_Folder(); });
    connect(again, &QPushButton::clicked, this, [this] { Read_Again(); });
    connect(metric_, &QCheckBox::toggled, this, [this] { Read_Again(); });
    return row;
}

void Library_Window::Make_Table() {
    table_ = new QTableView(this);
    table_->setModel(&order_);
    table_->setAccessibleName(QStringLiteral("Tests"));
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    table_->setSortingEnabled(true);
    table_->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    table_->horizontalHeader()->setSectionsMovable(true);
    table_->horizontalHeader()->setContextMenuPolicy(Qt::ActionsContextMenu);
    table_->verticalHeader()->hide();
    table_->setAlternatingRowColors(true);
    table_->setWordWrap(false);
    constexpr int row_height = 24;
    table_->verticalHeader()->setDefaultSectionSize(row_height);
    // The columns are chosen in the menu of their head.
    for (int column = 0; column < model_.columnCount({}); ++column) {
        auto* const shows =
            new QAction(model_.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString(),
                        table_->horizontalHeader());
        shows->setCheckable(true);
        shows->setChecked(true);
        connect(shows, &QAction::toggled, table_,
                [this, column](bool on) { table_->setColumnHidden(column, !on); });
        table_->horizontalHeader()->addAction(shows);
        constexpr int wide = 190;
        constexpr int narrow = 92;
        const std::string_view name = Library_Columns()[static_cast<std::size_t>(column)].name;
        const bool is_wide = name == "file" || name == "name" || name == "date";
        table_->setColumnWidth(column, is_wide ? wide : narrow);
    }
    connect(table_, &QTableView::doubleClicked, this,
            [this](const QModelIndex& index) { Open_In_Sheet(order_.Entry(index.row())); });
}

QLayout* Library_Window::Foot_Row() {
    auto* const row = new QHBoxLayout;
    count_ = new QLabel(this);
    progress_ = new QProgressBar(this);
    cancel_ = Button("Cancel", this);
    sheet_ = new QComboBox(this);
    sheet_->setAccessibleName(QStringLiteral("Sheet for a test"));
    for (int number = 1; number <= sheet_count; ++number) {
        sheet_->addItem(QStringLiteral("Flow Test ") + Digits_Of(number));
    }
    auto* const open = Button("&Open in", this);
    chart_ = Button("&Chart of the Chosen", this);
    row->addWidget(count_, 1);
    row->addWidget(progress_);
    row->addWidget(cancel_);
    row->addWidget(open);
    row->addWidget(sheet_);
    row->addWidget(chart_);
    connect(cancel_, &QPushButton::clicked, this, [this] {
        reading_.Give_Up();
        Look_At_Reading();
    });
    connect(open, &QPushButton::clicked, this, [this] {
        const QModelIndex index = table_->currentIndex();
        if (index.isValid()) {
            Open_In_Sheet(order_.Entry(index.row()));
        }
    });
    connect(chart_, &QPushButton::clicked, this, [this] { Show_Chart(); });
    return row;
}

void Library_Window::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (!look_.isActive()) {
        Read_Again(); // the open sheets may have changed meanwhile
    }
}

void Library_Window::Choose_Folder() {
    const QString chosen =
        QFileDialog::getExistingDirectory(this, QStringLiteral("Folder of flow tests"), folder_);
    if (!chosen.isEmpty()) {
        Open_Folder(chosen);
    }
}

void Library_Window::Open_Folder(const QString& folder) {
    folder_ = folder;
    path_->setText(folder);
    try {
        Write_Whole_File(Note_File(), From_Qt(folder));
    } catch (const Run_Time_Error&) {
        // The next start asks again; nothing else is lost.
    }
    Read_Again();
}

void Library_Window::Read_Again() {
    if (folder_.isEmpty()) {
        model_.Set_Entries(Open_Sheets());
    } else {
        reading_.Start(From_Qt(folder_), metric_->isChecked());
        look_.start();
    }
    Look_At_Reading();
}

void Library_Window::Look_At_Reading() {
    const bool runs = reading_.Runs();
    progress_->setVisible(runs);
    cancel_->setVisible(runs);
    if (runs) {
        progress_->setMaximum(static_cast<int>(reading_.All()));
        progress_->setValue(static_cast<int>(reading_.Read()));
        if (reading_.Is_Done()) {
            Show_Result();
            return;
        }
    } else {
        look_.stop();
    }
    count_->setText(Digits_Of(order_.rowCount()) + QStringLiteral(" of ") +
                    Digits_Of(model_.rowCount({})) + QStringLiteral(" tests"));
}

void Library_Window::Show_Result() {
    Library_Reading::Result result = reading_.Take();
    Watch_Folder(result.entries);
    std::vector<Library_Entry> entries = Open_Sheets();
    entries.insert(entries.end(), std::make_move_iterator(result.entries.begin()),
                   std::make_move_iterator(result.entries.end()));
    model_.Set_Entries(std::move(entries));
    Look_At_Reading();
    QString problems = result.is_there ? QString() : QStringLiteral("   There is no such folder");
    for (const std::string& problem : result.problems) {
        problems += QStringLiteral("   ") + To_Qt(problem);
    }
    count_->setText(count_->text() + problems);
}

void Library_Window::Watch_Folder(const std::vector<Library_Entry>& entries) {
    constexpr std::size_t most_folders = 500;
    std::set<QString> folders{folder_};
    for (const Library_Entry& entry : entries) {
        const std::size_t end = entry.file.rfind('/');
        if (end != std::string::npos && folders.size() < most_folders) {
            folders.insert(folder_ + QLatin1Char('/') + To_Qt(entry.file.substr(0, end)));
        }
    }
    if (!watcher_.directories().isEmpty()) {
        watcher_.removePaths(watcher_.directories());
    }
    watcher_.addPaths(QStringList(folders.begin(), folders.end()));
}

std::vector<Library_Entry> Library_Window::Open_Sheets() {
    Zeroed_Sheet zeroed(session_.Main().Is_Metric());
    std::vector<Library_Entry> entries;
    for (int number = 1; number <= sheet_count; ++number) {
        if (!session_.Is_Loaded(Screen_Id{Screen_Kind::Sheet, number})) {
            continue;
        }
        Library_Entry entry;
        entry.file = std::string(open_sheet) + From_Qt(Digits_Of(number));
        if (const auto figures = zeroed.Take(session_.Sheet(number))) {
            entry.figures = Library_Figures_Of(*figures, entry.file);
        } else {
            entry.problem = zeroed.Problem();
        }
        entries.push_back(std::move(entry));
    }
    return entries;
}

std::string Library_Window::Path_Of(const Library_Entry& entry) const {
    return Join_Path(From_Qt(folder_), entry.file);
}

void Library_Window::Open_In_Sheet(const Library_Entry& entry) {
    const bool is_open = entry.figures.date.empty() && !entry.problem;
    const int number = is_open ? entry.file.back() - '0' : sheet_->currentIndex() + 1;
    const std::string path = Path_Of(entry);
    const Test_Format format = entry.format;
    gate_.Enter_Command([&] {
        Flow_Sheet& sheet = session_.Sheet(number);
        if (!is_open) {
            session_.file.path = path;
            const std::string bytes = Read_Whole_File(path);
            if (Read_Test(session_, sheet, format, bytes)) {
                sheet.Text39.Set_Text(path);
            }
        }
        session_.Show(sheet);
    });
}

void Library_Window::Show_Chart() {
    std::vector<Chart_Test> tests;
    Test_Reader reader(metric_->isChecked());
    Zeroed_Sheet zeroed(session_.Main().Is_Metric());
    for (const QModelIndex& index : table_->selectionModel()->selectedRows()) {
        const Library_Entry& entry = order_.Entry(index.row());
        const bool is_open = entry.figures.date.empty() && !entry.problem;
        auto figures = is_open ? zeroed.Take(session_.Sheet(entry.file.back() - '0'))
                               : reader.Read(Path_Of(entry), entry.format).figures;
        if (figures && tests.size() < most_chart_tests) {
            tests.push_back({.file = entry.file, .figures = std::move(*figures)});
        }
    }
    if (tests.empty()) {
        count_->setText(QStringLiteral("Choose one to eight tests that could be read"));
        return;
    }
    auto* const window = new Chart_Window(session_, std::move(tests));
    window->setAttribute(Qt::WA_DeleteOnClose);
    connect(this, &QObject::destroyed, window, &QWidget::close);
    window->show();
}

void Add_Library_Entry(QMenuBar& bar, Session& session, Gate& gate, Screen& screen) {
    if (screen.Kind() != Screen_Kind::Engine) {
        return;
    }
    QMenu* const menu = bar.addMenu(QStringLiteral("&Tests"));
    menu->setObjectName(To_Qt(screen.Name() + ".Tests"));
    QAction* const entry = menu->addAction(QStringLiteral("&Library..."));
    entry->setObjectName(To_Qt(screen.Name() + ".Library"));
    entry->setShortcut(QKeySequence(QStringLiteral("Ctrl+L")));
    // One window, which goes with the menu bar.
    auto window = std::make_shared<std::unique_ptr<Library_Window>>();
    QObject::connect(entry, &QAction::triggered, &bar, [&session, &gate, window] {
        if (!*window) {
            *window = std::make_unique<Library_Window>(session, gate);
        }
        (*window)->show();
        (*window)->raise();
        (*window)->activateWindow();
    });
}

} // namespace kestrum::desktop
