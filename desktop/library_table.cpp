#include "desktop/library_table.h"

#include "desktop/library_curve.h"

#include <QHeaderView>
#include <QSignalBlocker>

#include <algorithm>
#include <utility>

namespace kestrum::desktop {

namespace {

std::string_view Name_At(int column) {
    return Window_Columns()[static_cast<std::size_t>(column)]->name;
}

/// In letters of the table.
int Width_Of(std::string_view column, const QString& title) {
    constexpr int wide = 34;
    constexpr int middle = 23;
    constexpr int least = 8;
    constexpr int valves = 12;
    constexpr int sign_of_order = 3;
    if (column == "file" || column == "name") {
        return wide;
    }
    return column == "date" || column == "part_number" ? middle
           : column == "valves"                        ? valves
                                : std::max(static_cast<int>(title.size()) + sign_of_order, least);
}

} // namespace

Library_Table::Library_Table(Library_Model& model, std::set<std::string> hidden_columns,
                             QWidget* parent)
    : QTableView(parent), model_(model), hidden_(std::move(hidden_columns)) {
    setModel(&model_);
    setAccessibleName(QStringLiteral("Tests"));
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setDragEnabled(true);
    setDragDropMode(QAbstractItemView::DragOnly);
    setAlternatingRowColors(true);
    setWordWrap(false);
    setItemDelegateForColumn(Library_Model::Place_Of("curve"), new Library_Curve(model_, this));
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 3 / 2);
    Set_Up_Head();
    Set_Widths();
}

void Library_Table::Set_Up_Head() {
    QHeaderView* const head = horizontalHeader();
    head->setSectionsMovable(true);
    head->setSectionsClickable(true);
    head->setSortIndicatorShown(true);
    head->setSortIndicatorClearable(true);
    head->setSortIndicator(-1, Qt::AscendingOrder);
    head->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(head, &QHeaderView::sortIndicatorChanged, this,
            [this](int column, Qt::SortOrder order) { on_sort(column, order); });
    connect(head, &QHeaderView::sectionMoved, this, [this] { on_order(Column_Order()); });
    connect(head, &QHeaderView::customContextMenuRequested, this, [this, head](const QPoint& at) {
        QMenu* const menu = Column_Menu();
        menu->setAttribute(Qt::WA_DeleteOnClose);
        menu->popup(head->viewport()->mapToGlobal(at));
    });
}

void Library_Table::Set_Widths() {
    const int letter = fontMetrics().averageCharWidth();
    for (int column = 0; column < model_.columnCount({}); ++column) {
        const QString title = model_.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        setColumnWidth(column, Width_Of(Name_At(column), title) * letter);
        setColumnHidden(column, hidden_.contains(std::string(Name_At(column))));
    }
}

void Library_Table::Set_Column_Order(const std::vector<std::string>& names) {
    QHeaderView* const head = horizontalHeader();
    const QSignalBlocker quiet(head);
    int place = 0;
    for (const std::string& name : names) {
        for (int column = 0; column < head->count(); ++column) {
            if (Name_At(column) == name) {
                head->moveSection(head->visualIndex(column), place++);
            }
        }
    }
}

std::vector<std::string> Library_Table::Column_Order() const {
    std::vector<std::string> names;
    names.reserve(static_cast<std::size_t>(horizontalHeader()->count()));
    for (int place = 0; place < horizontalHeader()->count(); ++place) {
        names.emplace_back(Name_At(horizontalHeader()->logicalIndex(place)));
    }
    return names;
}

QMenu* Library_Table::Column_Menu() {
    auto* const menu = new QMenu(this);
    for (int column = 1; column < model_.columnCount({}); ++column) { // that of the names stays
        QAction* const entry =
            menu->addAction(model_.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
        entry->setCheckable(true);
        connect(menu, &QMenu::aboutToShow, entry,
                [this, entry, column] { entry->setChecked(!isColumnHidden(column)); });
        connect(entry, &QAction::triggered, this,
                [this, column](bool shows) { Show_Column(column, shows); });
    }
    return menu;
}

void Library_Table::Show_Column(int column, bool shows) {
    setColumnHidden(column, !shows);
    if (shows) {
        hidden_.erase(std::string(Name_At(column)));
    } else {
        hidden_.insert(std::string(Name_At(column)));
    }
    on_columns(hidden_);
}

std::vector<Library_Entry> Library_Table::Chosen() const {
    QModelIndexList rows = selectionModel()->selectedRows();
    std::ranges::sort(rows, {}, &QModelIndex::row);
    std::vector<Library_Entry> entries;
    for (const QModelIndex& index : rows) {
        entries.push_back(*model_.Entry(index.row()));
    }
    return entries;
}

std::string Library_Table::File_At(const QModelIndex& index) const {
    const Library_Entry* const entry = index.isValid() ? model_.Entry(index.row()) : nullptr;
    return entry == nullptr ? std::string() : entry->file;
}

void Library_Table::Keep_Chosen_Through(const std::function<void()>& change) {
    std::set<std::string> chosen;
    for (const QModelIndex& index : selectionModel()->selectedRows()) {
        chosen.insert(File_At(index));
    }
    const std::string current = File_At(currentIndex());
    change();
    QItemSelection selection;
    for (int row = 0; row < model_.rowCount({}) && !(chosen.empty() && current.empty()); ++row) {
        const QModelIndex index = model_.index(row, 0);
        const std::string file = File_At(index);
        if (!file.empty() && file == current) {
            selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
        }
        if (chosen.contains(file)) {
            selection.select(index, index);
        }
    }
    selectionModel()->select(selection,
                             QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

} // namespace kestrum::desktop
