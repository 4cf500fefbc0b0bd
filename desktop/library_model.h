#pragma once

#include "library/library_order.h"

#include <QAbstractTableModel>

#include <memory>
#include <vector>

namespace kestrum::desktop {

/// The library as a table: a row for each test that shows, and headings where they are in groups.
class Library_Model : public QAbstractTableModel {
public:
    using Entries = std::shared_ptr<const std::vector<Library_Entry>>;

    void Set_Files(Entries files);
    void Set_Sheets(std::vector<Library_Entry> sheets);

    [[nodiscard]] const std::vector<Library_Entry>& Sheets() const { return sheets_; }

    void Set_Words(const QString& words);
    void Set_Groups(bool by_port_volume);

    /// By the bytes of their names.
    [[nodiscard]] const Entries& Files() const { return files_; }

    /// Tests that show, and all there are.
    [[nodiscard]] int Shown_Tests() const { return shown_tests_; }

    [[nodiscard]] int All_Tests() const;

    /// The test in a row, null for a heading.
    [[nodiscard]] const Library_Entry* Entry(int row) const;

    /// The place of a column, by its name.
    [[nodiscard]] static int Place_Of(std::string_view column);

    [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    void sort(int column, Qt::SortOrder order) override;

private:
    void Arrange();
    [[nodiscard]] QVariant Heading_Data(int row, int column, int role) const;

    Entries files_ = std::make_shared<const std::vector<Library_Entry>>();
    std::vector<Library_Entry> sheets_;
    std::vector<Library_Row> rows_;
    Library_Order order_;
    int shown_tests_ = 0;
};

} // namespace kestrum::desktop
