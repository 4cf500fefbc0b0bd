#include "desktop/chart_settings.h"

#include "desktop/text_bridge.h"
#include "desktop/user_settings.h"

#include <QSignalBlocker>

#include <algorithm>
#include <cmath>

namespace kestrum::desktop {

namespace {

QStringList Quantity_Titles() {
    QStringList titles;
    for (const Chart_Quantity_Entry& entry : Chart_Quantity_Entries()) {
        titles += To_Qt(entry.title);
    }
    return titles;
}

QStringList Flow_Unit_Names() {
    QStringList names;
    for (const Value_Unit& unit : Entry_Of(Chart_Quantity::Flow).units) {
        names += To_Qt(Printed_Unit(unit.name));
    }
    return names;
}

std::optional<double> Above_Nothing(const QDoubleSpinBox& box) {
    return box.value() > 0 ? std::optional(box.value()) : std::nullopt;
}

} // namespace

Chart_Settings::Chart_Settings(QWidget* parent, const QStringList& names, bool metric)
    : QWidget(parent), form_(new QFormLayout(this)), title_(new QLineEdit(this)) {
    form_->setContentsMargins({});
    title_->setAccessibleName(QStringLiteral("Title"));
    title_->setPlaceholderText(QStringLiteral("of the page"));
    form_->addRow(QStringLiteral("T&itle"), title_);
    quantity_ = Choice(QStringLiteral("&Quantity"), Quantity_Titles());
    sides_ = Choice(QStringLiteral("Si&des"),
                    {QStringLiteral("Both"), QStringLiteral("Intake"), QStringLiteral("Exhaust")});
    baseline_ = Choice(QStringLiteral("&Baseline"), names);
    lift_unit_ =
        Choice(QStringLiteral("&Lift in"), {QStringLiteral("inches"), QStringLiteral("thousandths"),
                                            QStringLiteral("millimetres")});
    flow_unit_ = Choice(QStringLiteral("&Flow in"), Flow_Unit_Names());
    gain_ =
        Choice(QStringLiteral("&Gain in"), {QStringLiteral("units"), QStringLiteral("per cent")});
    gain_side_ =
        Choice(QStringLiteral("Gain &of"), {QStringLiteral("Intake"), QStringLiteral("Exhaust")});
    constexpr double least_pressure = 0.1;
    constexpr double most_pressure = 1000;
    pressure_ = Number(QStringLiteral("&At in. H\u2082O"), {});
    pressure_->setRange(least_pressure, most_pressure);
    pressure_->setDecimals(1);
    pressure_->setSingleStep(1);
    mean_to_ = Number(QStringLiteral("&Mean to lift"), QStringLiteral("common"));
    cam_ = Number(QStringLiteral("&Cam lift"), QStringLiteral("none"));
    step_ = Number(QStringLiteral("Table st&ep"), QStringLiteral("baseline's"));
    if (metric) {
        lift_unit_->setCurrentIndex(static_cast<int>(Lift_Unit::Millimetre));
        flow_unit_->setCurrentIndex(static_cast<int>(Flow_Unit::Cubic_Metres));
    }
    Remember_All(metric);
    Take_Lift_Unit();
    connect(lift_unit_, &QComboBox::currentIndexChanged, this, [this] { Take_Lift_Unit(); });
    connect(title_, &QLineEdit::textChanged, this, [this] { changed(); });
    for (QComboBox* const box :
         {quantity_, sides_, baseline_, lift_unit_, flow_unit_, gain_, gain_side_}) {
        connect(box, &QComboBox::currentIndexChanged, this, [this] { changed(); });
    }
    for (QDoubleSpinBox* const box : {pressure_, mean_to_, cam_, step_}) {
        connect(box, &QDoubleSpinBox::valueChanged, this, [this] { changed(); });
    }
}

void Chart_Settings::Remember(QComboBox& box, const QString& name) {
    const QString key = QStringLiteral("chart/") + name;
    if (const auto kept = user_settings::Kept_Choice(key);
        kept && *kept >= 0 && *kept < box.count()) {
        box.setCurrentIndex(*kept);
    }
    connect(&box, &QComboBox::activated, this,
            [key](int index) { user_settings::Keep_Choice(key, index); });
}

/// What hangs on the tests begins anew: the title, the baseline, and the lifts of a cam and a
/// range. Each system of units keeps its own.
void Chart_Settings::Remember_All(bool metric) {
    const QString system = metric ? QStringLiteral("-metric") : QStringLiteral("-us");
    Remember(*quantity_, QStringLiteral("quantity"));
    Remember(*sides_, QStringLiteral("sides"));
    Remember(*lift_unit_, QStringLiteral("lift") + system);
    Remember(*flow_unit_, QStringLiteral("flow") + system);
    Remember(*gain_, QStringLiteral("gain"));
    Remember(*gain_side_, QStringLiteral("gain-of"));
    const QString key = QStringLiteral("chart/pressure-tenths");
    constexpr int tenths = 10;
    const auto kept = user_settings::Kept_Choice(key);
    pressure_->setValue(kept ? 1.0 * *kept / tenths : full_flow_pressure);
    connect(pressure_, &QDoubleSpinBox::valueChanged, this, [key](double value) {
        user_settings::Keep_Choice(key, static_cast<int>(std::lround(value * tenths)));
    });
}

QComboBox* Chart_Settings::Choice(const QString& name, const QStringList& items) {
    auto* const box = new QComboBox(this);
    box->addItems(items);
    box->setAccessibleName(QString(name).remove(QLatin1Char('&')));
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    constexpr int letters = 14;
    box->setMinimumContentsLength(letters);
    form_->addRow(name, box);
    return box;
}

QDoubleSpinBox* Chart_Settings::Number(const QString& name, const QString& without) {
    auto* const box = new QDoubleSpinBox(this);
    box->setAccessibleName(QString(name).remove(QLatin1Char('&')));
    box->setSpecialValueText(without);
    box->setKeyboardTracking(false);
    form_->addRow(name, box);
    return box;
}

/// The numbers stay the same lifts.
void Chart_Settings::Take_Lift_Unit() {
    const auto unit = static_cast<Lift_Unit>(lift_unit_->currentIndex());
    const Lift_Unit_Entry& entry = Entry_Of(unit);
    const double factor = entry.in_inch / Entry_Of(shown_unit_).in_inch;
    shown_unit_ = unit;
    constexpr double most = 5;    // inches
    constexpr double step = 0.05; // inches
    for (QDoubleSpinBox* const box : {mean_to_, cam_, step_}) {
        const QSignalBlocker quiet(box);
        const double value = box->value() * factor;
        box->setDecimals(entry.decimals);
        box->setRange(0, most * entry.in_inch);
        box->setSingleStep(unit == Lift_Unit::Millimetre ? 1 : step * entry.in_inch);
        box->setValue(value);
    }
}

Chart_Request Chart_Settings::Request() const {
    Chart_Request request;
    request.quantity = static_cast<Chart_Quantity>(quantity_->currentIndex());
    request.shows = {.intake = sides_->currentIndex() != 2, .exhaust = sides_->currentIndex() != 1};
    request.lift_unit = shown_unit_;
    request.flow_unit = static_cast<Flow_Unit>(flow_unit_->currentIndex());
    request.pressure = pressure_->value();
    request.mean_to = Above_Nothing(*mean_to_);
    request.cam_lift = Above_Nothing(*cam_);
    request.step = Above_Nothing(*step_);
    request.baseline = static_cast<std::size_t>(std::max(0, baseline_->currentIndex()));
    return request;
}

Chart_Style Chart_Settings::Style() const {
    Chart_Style style;
    style.gain_in_percent = gain_->currentIndex() == 1;
    if (sides_->currentIndex() == 0 && gain_side_->currentIndex() == 1) {
        style.gain_side = Chart_Side::Exhaust;
    }
    return style;
}

} // namespace kestrum::desktop
