#pragma once

#include "desktop/library_model.h"

#include <QMenu>
#include <QTableView>

#include <functional>
#include <set>
#include <string>
#include <vector>

namespace kestrum::desktop {

/// The list of tests: its columns, and what is chosen in it.
class Library_Table : public QTableView {
public:
    Library_Table(Library_Model& model, std::set<std::string> hidden_columns, QWidget* parent);

    /// Puts the columns of these names in this order; others stay behind them.
    void Set_Column_Order(const std::vector<std::string>& names);

    /// A menu of the columns, which show or not. It belongs to the table.
    [[nodiscard]] QMenu* Column_Menu();

    /// The chosen tests from above.
    [[nodiscard]] std::vector<Library_Entry> Chosen() const;

    /// Changes the list. What is chosen and where the focus is stays with its tests.
    void Keep_Chosen_Through(const std::function<void()>& change);

    /// Told the names of the columns that are hidden when the user has chosen others.
    std::function<void(const std::set<std::string>&)> on_columns;
    /// Told the names of all columns in their order when the user has moved one.
    std::function<void(const std::vector<std::string>&)> on_order = [](const auto&) {};
    /// Asked to sort by a column, or by none, which is -1.
    std::function<void(int column, Qt::SortOrder order)> on_sort;

private:
    void Set_Up_Head();
    void Set_Widths();
    [[nodiscard]] std::vector<std::string> Column_Order() const;
    void Show_Column(int column, bool shows);
    [[nodiscard]] std::string File_At(const QModelIndex& index) const;

    Library_Model& model_;
    std::set<std::string> hidden_;
};

} // namespace kestrum::desktop
