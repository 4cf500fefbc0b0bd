#pragma once

#include "library/library_columns.h"

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>

#include <vector>

namespace kestrum::desktop {

/// The library as a table: a row for each test, the open sheets first.
class Library_Model : public QAbstractTableModel {
public:
    void Set_Entries(std::vector<Library_Entry> entries);

    [[nodiscard]] const Library_Entry& Entry(int row) const {
        return entries_[static_cast<std::size_t>(row)];
    }

    [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    std::vector<Library_Entry> entries_;
};

/// The rows that hold what was typed, in the order of a column; what has no value comes last.
class Library_Order : public QSortFilterProxyModel {
public:
    explicit Library_Order(Library_Model& model) : model_(model) { setSourceModel(&model); }

    void Set_Words(const QString& words);

    [[nodiscard]] const Library_Entry& Entry(int row) const {
        return model_.Entry(mapToSource(index(row, 0)).row());
    }

protected:
    [[nodiscard]] bool filterAcceptsRow(int row, const QModelIndex& parent) const override;
    [[nodiscard]] bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    Library_Model& model_;
    std::string words_; // in lower case
};

} // namespace kestrum::desktop
