#include "desktop/library_model.h"

#include "chart/figure_text.h"
#include "desktop/text_bridge.h"
#include "desktop/theme.h"

#include <QColor>
#include <QFont>

#include <algorithm>
#include <utility>

namespace kestrum::desktop {

namespace {

const Library_Column& Column_At(int column) {
    return *Window_Columns()[static_cast<std::size_t>(column)];
}

/// Figures of one column stand with equal places below each other, given ones as they are.
std::string Text_Of(std::string_view column, double number) {
    constexpr int places = 3;
    if (column == "port_volume" || column == "pressure" || column == "points") {
        return Bare_Text(number, places);
    }
    const bool is_flow = column.ends_with("_peak") || column.ends_with("_mean");
    return Fixed_Text(number, is_flow ? 1 : places);
}

QString Words_Of(const Library_Column& column, const Library_Value& value) {
    if (const auto* const text = std::get_if<std::string>(&value)) {
        return column.name == "date"
                   ? To_Qt(*text).replace(QLatin1Char('T'), QLatin1Char(' ')).left(16)
                   : To_Qt(*text);
    }
    const auto* const number = std::get_if<double>(&value);
    return number != nullptr ? To_Qt(Text_Of(column.name, *number)) : QString();
}

} // namespace

void Library_Model::Set_Files(Entries files) {
    beginResetModel();
    files_ = std::move(files);
    Arrange();
    endResetModel();
}

void Library_Model::Set_Sheets(std::vector<Library_Entry> sheets) {
    beginResetModel();
    sheets_ = std::move(sheets);
    Arrange();
    endResetModel();
}

void Library_Model::Set_Words(const QString& words) {
    beginResetModel();
    order_.words = Lower_Words(From_Qt(words.simplified()));
    Arrange();
    endResetModel();
}

void Library_Model::Set_Groups(bool by_port_volume) {
    beginResetModel();
    order_.by_port_volume = by_port_volume;
    Arrange();
    endResetModel();
}

void Library_Model::sort(int column, Qt::SortOrder order) {
    beginResetModel();
    order_.sort = column < 0 ? nullptr : &Column_At(column);
    order_.descending = order == Qt::DescendingOrder;
    Arrange();
    endResetModel();
}

void Library_Model::Arrange() {
    rows_ = Rows_In_Order(sheets_, *files_, order_);
    shown_tests_ = static_cast<int>(
        std::ranges::count_if(rows_, [](const Library_Row& row) { return row.entry != nullptr; }));
}

int Library_Model::All_Tests() const {
    return static_cast<int>(sheets_.size() + files_->size());
}

const Library_Entry* Library_Model::Entry(int row) const {
    return rows_[static_cast<std::size_t>(row)].entry;
}

int Library_Model::Place_Of(std::string_view column) {
    const auto columns = Window_Columns();
    const auto found = std::ranges::find(columns, column, &Library_Column::name);
    return found == columns.end() ? -1 : static_cast<int>(found - columns.begin());
}

int Library_Model::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int Library_Model::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(Window_Columns().size());
}

QVariant Library_Model::Heading_Data(int row, int column, int role) const {
    if (role == Qt::DisplayRole && column == 0) {
        return To_Qt(rows_[static_cast<std::size_t>(row)].heading);
    }
    if (role == Qt::FontRole) {
        QFont bold;
        bold.setBold(true);
        return bold;
    }
    return role == Qt::BackgroundRole ? QVariant(QColor::fromRgb(theme::Colours().accent_soft))
                                      : QVariant();
}

QVariant Library_Model::data(const QModelIndex& index, int role) const {
    const Library_Entry* const entry = Entry(index.row());
    if (entry == nullptr) {
        return Heading_Data(index.row(), index.column(), role);
    }
    const Library_Column& column = Column_At(index.column());
    switch (role) {
    case Qt::DisplayRole:
        return entry->problem && column.name == "name" ? To_Qt(*entry->problem)
                                                       : Words_Of(column, Value_In(column, *entry));
    case Qt::ToolTipRole:
        return To_Qt(entry->problem ? entry->file + "\n" + *entry->problem : entry->file);
    case Qt::TextAlignmentRole:
        return QVariant(std::holds_alternative<double>(Value_In(column, *entry))
                            ? Qt::AlignRight | Qt::AlignVCenter
                            : Qt::AlignLeft | Qt::AlignVCenter);
    case Qt::ForegroundRole:
        return entry->problem ? QVariant(QColor::fromRgb(theme::Colours().failure)) : QVariant();
    default:
        return {};
    }
}

QVariant Library_Model::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole) {
        return To_Qt(Column_At(section).title);
    }
    return QAbstractTableModel::headerData(section, orientation, role);
}

Qt::ItemFlags Library_Model::flags(const QModelIndex& index) const {
    const bool is_test = index.isValid() && Entry(index.row()) != nullptr;
    return is_test ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled
                   : Qt::ItemIsEnabled;
}

} // namespace kestrum::desktop
