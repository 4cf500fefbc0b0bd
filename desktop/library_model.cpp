#include "desktop/library_model.h"

#include "chart/figure_text.h"
#include "desktop/text_bridge.h"
#include "desktop/theme.h"

#include <QColor>

#include <tuple>
#include <utility>

namespace kestrum::desktop {

namespace {

const Library_Column& Column_At(int column) {
    return Library_Columns()[static_cast<std::size_t>(column)];
}

QString Words_Of(const Library_Value& value) {
    if (const auto* const text = std::get_if<std::string>(&value)) {
        return To_Qt(*text);
    }
    const auto* const number = std::get_if<double>(&value);
    constexpr int decimals = 3;
    return number != nullptr ? To_Qt(Bare_Text(*number, decimals)) : QString();
}

bool Is_Missing(const Library_Value& value) {
    return std::holds_alternative<std::monostate>(value);
}

} // namespace

void Library_Model::Set_Entries(std::vector<Library_Entry> entries) {
    beginResetModel();
    entries_ = std::move(entries);
    endResetModel();
}

int Library_Model::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(entries_.size());
}

int Library_Model::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(Library_Columns().size());
}

QVariant Library_Model::data(const QModelIndex& index, int role) const {
    const Library_Entry& entry = Entry(index.row());
    const Library_Column& column = Column_At(index.column());
    const bool says_problem = entry.problem && column.name == "name";
    switch (role) {
    case Qt::DisplayRole:
        return says_problem ? To_Qt(*entry.problem) : Words_Of(Value_In(column, entry));
    case Qt::ToolTipRole:
        return entry.problem ? To_Qt(*entry.problem) : To_Qt(entry.file);
    case Qt::TextAlignmentRole:
        return QVariant(std::holds_alternative<double>(Value_In(column, entry))
                            ? Qt::AlignRight | Qt::AlignVCenter
                            : Qt::AlignLeft | Qt::AlignVCenter);
    case Qt::ForegroundRole:
        return entry.problem ? QVariant(QColor::fromRgb(theme::Colours().failure)) : QVariant();
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

void Library_Order::Set_Words(const QString& words) {
    words_ = Lower_Words(From_Qt(words));
    invalidateFilter();
}

bool Library_Order::filterAcceptsRow(int row, const QModelIndex& /*parent*/) const {
    return words_.empty() || Holds_Words(model_.Entry(row), words_);
}

bool Library_Order::lessThan(const QModelIndex& left, const QModelIndex& right) const {
    const Library_Column& column = Column_At(left.column());
    const Library_Entry& a = model_.Entry(left.row());
    const Library_Entry& b = model_.Entry(right.row());
    const Library_Value first = Value_In(column, a);
    const Library_Value second = Value_In(column, b);
    if (Is_Missing(first) != Is_Missing(second)) {
        // Last in both directions.
        return Is_Missing(second) == (sortOrder() == Qt::AscendingOrder);
    }
    return std::tie(first, a.file) < std::tie(second, b.file);
}

} // namespace kestrum::desktop
