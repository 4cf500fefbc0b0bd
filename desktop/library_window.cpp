#include "desktop/library_window.h"

#include "core/sheet_opening.h"
#include "desktop/chart_window.h"
#include "desktop/library_opening.h"
#include "desktop/text_bridge.h"
#include "desktop/theme.h"
#include "desktop/window_place.h"
#include "library/test_reader.h"
#include "platform/file_store.h"

#include <QEvent>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHideEvent>
#include <QScreen>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace kestrum::desktop {

namespace {

using std::chrono::milliseconds;

QPushButton* Button(const char* words, QWidget* parent) {
    auto* const button = new QPushButton(QString::fromLatin1(words), parent);
    button->setAutoDefault(false);
    return button;
}

/// How long the list rests before the folder is looked at again: so that a large folder or a slow
/// disk has little to do for it.
milliseconds Rest_After(std::chrono::steady_clock::duration reading) {
    constexpr milliseconds least{2000};
    constexpr milliseconds most{30000};
    constexpr int times = 10;
    return std::clamp(std::chrono::duration_cast<milliseconds>(reading * times), least, most);
}

} // namespace

Library_Window::Library_Window(Session& session, Gate& gate)
    : session_(session), gate_(gate), notes_(Read_Library_Notes(session.surroundings.folder)) {
    setWindowTitle(QStringLiteral("Library of flow tests"));
    setObjectName(QStringLiteral("Library"));
    setAttribute(Qt::WA_QuitOnClose, false);
    Make_Content();
    Connect_Timers();
    if (!notes_.folder.empty()) {
        Open_Folder(To_Qt(notes_.folder));
    }
}

Library_Window::~Library_Window() {
    if (isVisible()) {
        Keep_Place_Of(*this); // the program ends
    }
}

void Library_Window::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    if (!event->spontaneous()) {
        Keep_Place_Of(*this);
    }
}

void Library_Window::Connect_Timers() {
    constexpr int look_milliseconds = 30;
    look_.setInterval(look_milliseconds);
    read_again_.setSingleShot(true);
    connect(&look_, &QTimer::timeout, this, [this] { Look_At_Reading(); });
    connect(&read_again_, &QTimer::timeout, this, [this] {
        if (isVisible()) {
            Show_Sheets();
            Start_Reading(false);
        }
    });
}

void Library_Window::Make_Content() {
    constexpr QSize usual_size(1240, 640);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(theme::page_margin, theme::page_margin, theme::page_margin,
                               theme::page_margin);
    layout->addLayout(Folder_Row());
    table_ = new Library_Table(model_, notes_.hidden_columns, this);
    table_->on_columns = [this](const std::set<std::string>& hidden) {
        notes_.hidden_columns = hidden;
        Keep_Notes();
    };
    table_->Set_Column_Order(notes_.column_order);
    table_->on_order = [this](const std::vector<std::string>& names) {
        notes_.column_order = names;
        Keep_Notes();
    };
    table_->on_sort = [this](int column, Qt::SortOrder order) {
        Change_List([&] { model_.sort(column, order); });
    };
    connect(table_, &QTableView::doubleClicked, this,
            [this] { Open_Current_In(sheet_->currentIndex()); });
    layout->addLayout(Look_Row());
    layout->addWidget(table_, 1);
    layout->addLayout(Foot_Row());
    resize(usual_size.boundedTo(screen()->availableSize() * 0.95));
    Take_Kept_Place(*this);
    words_->setFocus();
}

QLayout* Library_Window::Folder_Row() {
    auto* const row = new QHBoxLayout;
    path_ = new QLineEdit(this);
    path_->setReadOnly(true);
    path_->setPlaceholderText(QStringLiteral("No folder chosen"));
    path_->setAccessibleName(QStringLiteral("Folder"));
    metric_ = new QCheckBox(QStringLiteral("Numbers of .dat files are metric"), this);
    metric_->setToolTip(QStringLiteral("These files do not say it. Remembered for this folder."));
    auto* const choose = Button("Choose &Folder...", this);
    auto* const again = Button("&Read Again", this);
    row->addWidget(choose);
    row->addWidget(path_, 1);
    row->addWidget(metric_);
    row->addWidget(again);
    connect(choose, &QPushButton::clicked, this, [this] { Choose_Folder(); });
    connect(again, &QPushButton::clicked, this, [this] {
        is_known_ = false;
        Start_Reading(true);
    });
    connect(metric_, &QCheckBox::clicked, this, [this](bool metric) { Choose_Units(metric); });
    return row;
}

QLayout* Library_Window::Look_Row() {
    auto* const row = new QHBoxLayout;
    words_ = new QLineEdit(this);
    words_->setPlaceholderText(QStringLiteral("Filter: words of name, part number, file, format, "
                                              "date or problem"));
    words_->setClearButtonEnabled(true);
    words_->setAccessibleName(QStringLiteral("Filter"));
    auto* const groups = new QCheckBox(QStringLiteral("&Group by port volume"), this);
    groups->setChecked(notes_.by_port_volume);
    model_.Set_Groups(notes_.by_port_volume);
    auto* const columns = new QToolButton(this);
    columns->setText(QStringLiteral("Columns"));
    columns->setPopupMode(QToolButton::InstantPopup);
    columns->setMenu(table_->Column_Menu());
    row->addWidget(words_, 1);
    row->addWidget(groups);
    row->addWidget(columns);
    connect(words_, &QLineEdit::textChanged, this,
            [this](const QString& words) { Change_List([&] { model_.Set_Words(words); }); });
    connect(groups, &QCheckBox::toggled, this, [this](bool on) {
        notes_.by_port_volume = on;
        Keep_Notes();
        Change_List([&] { model_.Set_Groups(on); });
    });
    return row;
}

QLayout* Library_Window::Foot_Row() {
    auto* const row = new QHBoxLayout;
    count_ = new QLabel(this);
    count_->setWordWrap(true);
    progress_ = new QProgressBar(this);
    cancel_ = Button("Cancel", this);
    sheet_ = new QComboBox(this);
    sheet_->setAccessibleName(QStringLiteral("Sheet for a test"));
    sheet_->addItem(QStringLiteral("Next Free Sheet"));
    for (int number = 1; number <= sheet_count; ++number) {
        sheet_->addItem(QStringLiteral("Flow Test ") + Digits_Of(number));
    }
    auto* const open = Button("&Open in", this);
    auto* const chart = Button("&Chart of the Chosen", this);
    row->addWidget(count_, 1);
    row->addWidget(progress_);
    row->addWidget(cancel_);
    row->addWidget(open);
    row->addWidget(sheet_);
    row->addWidget(chart);
    progress_->hide();
    cancel_->hide();
    connect(cancel_, &QPushButton::clicked, this, [this] { Cancel(); });
    connect(open, &QPushButton::clicked, this, [this] { Open_Current_In(sheet_->currentIndex()); });
    connect(chart, &QPushButton::clicked, this, [this] { Show_Chart(); });
    return row;
}

void Library_Window::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    Show_Sheets();
    if (!reading_.Runs()) {
        Start_Reading(false);
    }
}

void Library_Window::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        Show_Sheets(); // they may have been worked on
    }
}

void Library_Window::Choose_Folder() {
    const QString chosen = QFileDialog::getExistingDirectory(
        this, QStringLiteral("Folder of flow tests"), To_Qt(notes_.folder));
    if (!chosen.isEmpty()) {
        Open_Folder(chosen);
    }
}

void Library_Window::Open_Folder(const QString& folder) {
    notes_.folder = From_Qt(folder);
    path_->setText(folder);
    metric_->setChecked(notes_.metric_folders.contains(notes_.folder));
    Keep_Notes();
    is_known_ = false;
    Start_Reading(true);
}

void Library_Window::Choose_Units(bool metric) {
    if (metric) {
        notes_.metric_folders.insert(notes_.folder);
    } else {
        notes_.metric_folders.erase(notes_.folder);
    }
    Keep_Notes();
    is_known_ = false;
    Start_Reading(true);
}

void Library_Window::Keep_Notes() const {
    Write_Library_Notes(session_.surroundings.folder, notes_);
}

void Library_Window::Start_Reading(bool is_asked_for) {
    if (notes_.folder.empty()) {
        Show_Count();
        return;
    }
    if (is_asked_for) {
        problems_ = QStringLiteral("Reading...");
        Show_Count();
    }
    read_again_.stop();
    begun_ = std::chrono::steady_clock::now();
    const auto nothing = std::make_shared<const std::vector<Library_Entry>>();
    reading_.Start(notes_.folder, metric_->isChecked(), is_known_ ? model_.Files() : nothing);
    look_.start();
}

void Library_Window::Cancel() {
    reading_.Give_Up();
    problems_ = QStringLiteral("The reading was cancelled");
    Show_Progress();
    Show_Count();
}

void Library_Window::Look_At_Reading() {
    if (reading_.Is_Done()) {
        Take_Result();
    }
    if (!reading_.Runs()) {
        look_.stop();
    }
    Show_Progress();
}

void Library_Window::Show_Progress() {
    // What is read at once needs no bar that flickers.
    constexpr milliseconds soon{250};
    const bool shows = reading_.Runs() && std::chrono::steady_clock::now() - begun_ > soon;
    progress_->setVisible(shows);
    cancel_->setVisible(shows);
    if (shows) {
        progress_->setMaximum(static_cast<int>(reading_.All()));
        progress_->setValue(static_cast<int>(reading_.Read()));
    }
}

void Library_Window::Take_Result() {
    Library_Reading::Result result = reading_.Take();
    problems_ = result.is_there ? QString() : QStringLiteral("There is no such folder");
    for (const std::string& problem : result.problems) {
        problems_ += QStringLiteral("   ") + To_Qt(problem);
    }
    if (!is_known_ || !result.is_as_known) {
        Change_List([&] {
            model_.Set_Files(
                std::make_shared<const std::vector<Library_Entry>>(std::move(result.entries)));
        });
    }
    is_known_ = true;
    Show_Count();
    read_again_.start(Rest_After(result.time));
}

void Library_Window::Show_Count() {
    count_->setText(Digits_Of(model_.Shown_Tests()) + QStringLiteral(" of ") +
                    Digits_Of(model_.All_Tests()) + QStringLiteral(" tests   ") + problems_);
}

void Library_Window::Change_List(const std::function<void()>& change) {
    table_->Keep_Chosen_Through(change);
    Show_Count();
}

void Library_Window::Show_Sheets() {
    std::vector<Library_Entry> sheets = Open_Sheets();
    if (sheets != model_.Sheets()) {
        Change_List([&] { model_.Set_Sheets(std::move(sheets)); });
    }
}

std::vector<Library_Entry> Library_Window::Open_Sheets() {
    Zeroed_Sheet zeroed(session_.Main().Is_Metric());
    std::vector<Library_Entry> entries;
    for (int number = 1; number <= sheet_count; ++number) {
        if (!Is_Open_Sheet(session_, number)) {
            continue;
        }
        Library_Entry entry;
        entry.sheet = number;
        entry.file = "Flow Test " + From_Qt(Digits_Of(number));
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
    return Join_Path(notes_.folder, entry.file);
}

void Library_Window::Open_Current_In(int sheet_number) {
    const QModelIndex index = table_->currentIndex();
    if (index.isValid() && model_.Entry(index.row()) != nullptr) {
        const Library_Entry entry = *model_.Entry(index.row()); // the list may change meanwhile
        Open(entry, sheet_number);
    }
}

void Library_Window::Open(const Library_Entry& entry, int sheet_number) {
    if (entry.sheet != 0) {
        gate_.Enter_Command([&] { Show_With_Caption(session_, session_.Sheet(entry.sheet)); });
        return;
    }
    const int number = sheet_number != 0 ? sheet_number : Next_Free_Sheet(session_);
    if (number == 0) {
        problems_ = QStringLiteral("All sheets are open: choose one beside Open in");
        Show_Count();
        return;
    }
    Open_In_Sheet(session_, gate_,
                  {.path = Path_Of(entry),
                   .name = entry.figures.name.empty() ? entry.file : entry.figures.name,
                   .format = entry.format,
                   .metric = metric_->isChecked()},
                  number);
    Show_Sheets();
}

void Library_Window::Show_Chart() {
    std::vector<Chart_Test> tests;
    Test_Reader reader(metric_->isChecked());
    Zeroed_Sheet zeroed(session_.Main().Is_Metric());
    const std::vector<Library_Entry> chosen = table_->Chosen();
    for (const Library_Entry& entry : chosen) {
        auto figures = entry.sheet != 0 ? zeroed.Take(session_.Sheet(entry.sheet))
                                        : reader.Read(Path_Of(entry), entry.format).figures;
        if (figures && tests.size() < most_chart_tests) {
            tests.push_back({.file = entry.file, .figures = std::move(*figures)});
        }
    }
    problems_ = tests.empty() ? QStringLiteral("Choose one to eight tests that could be read")
                : tests.size() < chosen.size()
                    ? QStringLiteral("A chart shows eight tests that could be read at most")
                    : QString();
    Show_Count();
    if (!tests.empty()) {
        auto* const window = new Chart_Window(session_, std::move(tests));
        window->setAttribute(Qt::WA_DeleteOnClose);
        connect(this, &QObject::destroyed, window, &QWidget::close);
        window->show();
    }
}

} // namespace kestrum::desktop
