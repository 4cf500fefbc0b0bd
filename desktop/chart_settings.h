#pragma once

#include "chart/chart_layout.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QStringList>
#include <QWidget>

#include <functional>

namespace kestrum::desktop {

/// What is set of a chart, at its side.
class Chart_Settings : public QWidget {
public:
    /// `names` are those of the tests; a metric suite begins with metric units.
    Chart_Settings(QWidget* parent, const QStringList& names, bool metric);

    [[nodiscard]] Chart_Request Request() const;
    [[nodiscard]] Chart_Style Style() const;

    /// Of the page.
    [[nodiscard]] QString Title() const { return title_->text(); }

    /// Told of each change.
    std::function<void()> changed = [] {};

private:
    [[nodiscard]] QComboBox* Choice(const QString& name, const QStringList& items);
    [[nodiscard]] QDoubleSpinBox* Number(const QString& name, const QString& without);
    void Take_Lift_Unit();
    /// Chosen as it was last, and remembered from now on.
    void Remember(QComboBox& box, const QString& name);
    void Remember_All(bool metric);

    QFormLayout* form_;
    QLineEdit* title_;
    QComboBox* quantity_;
    QComboBox* sides_;
    QComboBox* lift_unit_;
    QComboBox* flow_unit_;
    QComboBox* baseline_;
    QComboBox* gain_;
    QComboBox* gain_side_;
    QDoubleSpinBox* pressure_;
    QDoubleSpinBox* mean_to_;
    QDoubleSpinBox* cam_;
    QDoubleSpinBox* step_;
    Lift_Unit shown_unit_ = Lift_Unit::Inch; // of the numbers
};

} // namespace kestrum::desktop
