#pragma once

#include "chart/chart_page.h"
#include "chart/chart_table.h"
#include "core/session.h"
#include "desktop/chart_settings.h"
#include "desktop/chart_view.h"

#include <QLabel>
#include <QTabWidget>
#include <QTableWidget>
#include <QWidget>

#include <array>
#include <vector>

namespace kestrum::desktop {

/// Up to eight tests side by side, with what is set of the chart at its side and its figures below.
class Chart_Window : public QWidget {
public:
    Chart_Window(Session& session, std::vector<Chart_Test> tests);
    ~Chart_Window() override;
    Chart_Window(const Chart_Window&) = delete;
    Chart_Window& operator=(const Chart_Window&) = delete;

    [[nodiscard]] Chart_View& View() const { return *view_; }

protected:
    void hideEvent(QHideEvent* event) override;

private:
    [[nodiscard]] QWidget* Side();
    [[nodiscard]] QTableWidget* Table(const QString& name);
    void Show_Changes();
    void Fill(QTableWidget& table, const Chart_Table& texts) const;
    [[nodiscard]] std::vector<Figure> Pages() const;
    void Copy_Tables() const;
    void Save_Tables();
    void Save_Page();
    void Print();
    /// A name made of the test's part number, or of those of two tests.
    [[nodiscard]] std::string Proposal(std::string_view ending) const;
    /// Saves under the name that the user chooses and says so, or why not.
    void Save(std::string_view entries, std::string_view ending,
              const std::function<std::string(const QString& path)>& bytes);

    Session& session_;
    std::vector<Chart_Test> tests_;
    Chart chart_;
    std::vector<Chart_Table> texts_; // of the tables
    Chart_View* view_;
    QTabWidget* tabs_;
    std::array<QTableWidget*, 2> tables_{};
    Chart_Settings* settings_;
    QLabel* message_ = nullptr;
};

} // namespace kestrum::desktop
