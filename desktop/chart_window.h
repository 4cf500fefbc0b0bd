#pragma once

#include "chart/chart.h"
#include "core/session.h"
#include "desktop/printable.h"
#include "drawing/figure.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QTableWidget>
#include <QWidget>

#include <vector>

namespace kestrum::desktop {

/// Shows a chart as large as it is.
class Chart_View : public QWidget {
public:
    explicit Chart_View(QWidget* parent);

    void Show_Chart(const Chart& chart);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Chart chart_;
};

/// Up to eight tests side by side, with what is set of the chart at its side and its figures below.
class Chart_Window : public QWidget {
public:
    Chart_Window(Session& session, std::vector<Chart_Test> tests);

private:
    [[nodiscard]] QWidget* Settings();
    [[nodiscard]] QDoubleSpinBox* Number_Box(const QString& name, double most);
    [[nodiscard]] Chart_Request Request() const;
    [[nodiscard]] std::vector<Chart_Test> Ordered_Tests() const;
    void Show_Changes();
    void Fill_Table();
    [[nodiscard]] QString Table_Text(QChar separator) const;
    [[nodiscard]] Figure Page() const;
    void Copy_Table() const;
    void Save_Table();
    void Save_Picture();
    void Print();

    Session& session_;
    std::vector<Chart_Test> tests_;
    Chart chart_;
    Chart_View* view_ = nullptr;
    QTableWidget* table_ = nullptr;
    QComboBox* quantity_ = nullptr;
    QComboBox* sides_ = nullptr;
    QComboBox* units_ = nullptr;
    QComboBox* baseline_ = nullptr;
    QDoubleSpinBox* pressure_ = nullptr;
    QDoubleSpinBox* mean_to_ = nullptr;
    QDoubleSpinBox* cam_ = nullptr;
    QLabel* message_ = nullptr;
};

} // namespace kestrum::desktop
