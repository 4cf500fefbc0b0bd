#pragma once

#include "exchange/csv_columns.h"

#include <array>
#include <string_view>

namespace kestrum {

inline constexpr std::string_view csv_filter = "CSV Files (*.csv)|*.csv|All Files (*.*)|*.*";

/// The column of the sheet that holds a quantity.
struct Csv_Field {
    Csv_Quantity quantity;
    std::string_view array;
};

inline constexpr std::array<Csv_Field, csv_quantities> csv_fields{{
    {Csv_Quantity::Lift, "Text101"},
    {Csv_Quantity::Intake, "Text106"},
    {Csv_Quantity::Exhaust, "Text107"},
    {Csv_Quantity::Swirl, "Text207"},
    {Csv_Quantity::Intake_Depression, "Text210"},
    {Csv_Quantity::Exhaust_Depression, "Text211"},
}};

} // namespace kestrum
