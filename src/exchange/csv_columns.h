#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrum {

/// What a row of a CSV file may hold, in the order in which an export writes it.
enum class Csv_Quantity { Lift, Intake, Exhaust, Swirl, Intake_Depression, Exhaust_Depression };
inline constexpr std::size_t csv_quantities = 6;

/// `Sheet` stands for the unit of the sheet that takes the values.
enum class Csv_Unit { Sheet, Inch, Thousandth, Millimetre, Cfm, Cubic_Metre };

/// Where a quantity stands in the lines.
struct Csv_Column {
    std::size_t cell = 0; // from 0
    Csv_Unit unit = Csv_Unit::Sheet;
};

struct Csv_Columns {
    /// By quantity; nothing where the file does not have it.
    std::array<std::optional<Csv_Column>, csv_quantities> known;
    /// Names of the columns that nothing is taken from.
    std::vector<std::string> unknown;
    std::size_t cells = 0;
    bool is_header = false;

    [[nodiscard]] const std::optional<Csv_Column>& Of(Csv_Quantity quantity) const {
        return known.at(static_cast<std::size_t>(quantity));
    }
};

/// What the first line says of the columns. When it is no header, the first three are lift, intake
/// and exhaust in the sheet's units. Raises `Csv_Fault` for a header without a lift or with a
/// quantity that comes twice.
[[nodiscard]] Csv_Columns Csv_Columns_Of(const std::vector<std::string>& first_line, int line);

/// The name of a quantity's column in a file of the unit system.
[[nodiscard]] std::string_view Csv_Name_Of(Csv_Quantity quantity, bool metric);

} // namespace kestrum
