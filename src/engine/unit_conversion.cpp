#include "engine/unit_conversion.h"

#include "core/units.h"

#include <array>

namespace kestrum {

namespace {

enum class Quantity { Length, Area, Volume, Speed, Flow, Torque, Power, Lift, Flow_Per_Area };

constexpr double lifts_in_inch = 1000; // sheets keep lifts in thousandths of an inch

Real To_Metric(Real value, Quantity quantity) {
    switch (quantity) {
    case Quantity::Length:
        return value * factor::inch;
    case Quantity::Area:
        return value * factor::square_inch;
    case Quantity::Volume:
        return value / factor::litre;
    case Quantity::Speed:
        return value * factor::foot;
    case Quantity::Flow:
        return value * factor::cubic_foot;
    case Quantity::Torque:
        return value * factor::pound_foot;
    case Quantity::Power:
        return value * factor::horsepower;
    case Quantity::Lift:
        return value * factor::inch / lifts_in_inch;
    case Quantity::Flow_Per_Area:
        return value * factor::square_inch * factor::cubic_foot;
    }
    return value;
}

Real To_Us(Real value, Quantity quantity) {
    switch (quantity) {
    case Quantity::Length:
        return value / factor::inch;
    case Quantity::Area:
        return value / factor::square_inch;
    case Quantity::Volume:
        return value * factor::litre;
    case Quantity::Speed:
        return value / factor::foot;
    case Quantity::Flow:
        return value / factor::cubic_foot;
    case Quantity::Torque:
        return value / factor::pound_foot;
    case Quantity::Power:
        return value / factor::horsepower;
    case Quantity::Lift:
        return value / factor::inch * lifts_in_inch;
    case Quantity::Flow_Per_Area:
        return value / factor::square_inch / factor::cubic_foot;
    }
    return value;
}

/// How one kind of number is converted and shown. The two formats need not be a pair.
struct Rule {
    Quantity quantity;
    Format to_metric;
    Format to_us;
};

using N = Numeric_Text;
using enum Quantity;

/// A field of `Main`, and the caption that tells its unit where there is one.
struct Main_Field {
    std::string_view array;
    int row;
    Rule rule;
    int caption_row = no_index;
    std::string_view us_caption{};
    std::string_view metric_caption{};
};

constexpr auto main_fields = std::to_array<Main_Field>({
    {"Text102",
     3,
     {Speed, &N::Fmt_Two_Place, &N::Fmt_Whole},
     2,
     "Port Vel Ft/Sec",
     "Port Vel M/Sec"},
    {"Text103", 3, {Area, &N::Fmt_Three_Place, &N::Fmt_Three_Place}},
    {"Text104", 3, {Length, &N::Fmt_Two_Place, &N::Fmt_Three_Place}, 2, "Inches", "mm"},
    {"Text105", 3, {Length, &N::Fmt_Two_Place, &N::Fmt_Three_Place}, 2, "Inches", "mm"},
    {"Text106", 3, {Area, &N::Fmt_Two_Place, &N::Fmt_Two_Place}},
    {"Text107", 3, {Volume, &N::Fmt_Three_Place, &N::Fmt_One_Place}, 2, "CID", "LD"},
    {"Text108", 3, {Volume, &N::Fmt_Three_Place, &N::Fmt_Two_Place}, 2, "CID", "LD"},
    {"Text102", 8, {Speed, &N::Fmt_Two_Place, &N::Fmt_Whole}, 7, "Ft/Min", "M/Min"},
    {"Text103", 8, {Flow, &N::Fmt_Up_To_Five, &N::Fmt_Two_Place}, 5, "CFM @", "M^3/Min @"},
    {"Text104", 8, {Torque, &N::Fmt_Three_Place, &N::Fmt_Whole}, 6, "Torque", "Torque NM"},
    {"Text107", 8, {Torque, &N::Fmt_Three_Place, &N::Fmt_Three_Place}, 5, "Torque", "Torque NM"},
    {"Text108", 8, {Torque, &N::Fmt_Three_Place, &N::Fmt_One_Place}, 5, "Torque", "Torque NM"},
    // The limits show one decimal here, though the calculation writes them whole.
    {"Text105",
     8,
     {Power, &N::Fmt_One_Place, &N::Fmt_One_Place},
     7,
     "HP limitation",
     "KW limitation"},
    {"Text106",
     8,
     {Power, &N::Fmt_One_Place, &N::Fmt_One_Place},
     7,
     "HP limitation",
     "KW limitation"},
    {"Text109", 8, {Power, &N::Fmt_Three_Place, &N::Fmt_Three_Place}, 5, "HP", "KW"},
    {"Text110", 8, {Power, &N::Fmt_Three_Place, &N::Fmt_Three_Place}, 5, "HP", "KW"},
    {"Text104", 9, {Length, &N::Fmt_Three_Place, &N::Fmt_Three_Place}},
    {"Text106", 9, {Area, &N::Fmt_Three_Place, &N::Fmt_Three_Place}},
});

constexpr Rule dimension{Length, &N::Fmt_Three_Place, &N::Fmt_Three_Place};
constexpr Rule area{Area, &N::Fmt_Three_Place, &N::Fmt_Three_Place};
constexpr Rule throat_area{Area, &N::Fmt_Two_Place, &N::Fmt_Two_Place};
constexpr Rule corner_loss{Area, &N::Fmt_Up_To_Six, &N::Fmt_Up_To_Six};
constexpr Rule fine_dimension{Length, &N::Fmt_Four_Place, &N::Fmt_Four_Place};
constexpr Rule quarter_diameter{Lift, &N::Fmt_Two_Place, &N::Fmt_Whole};
constexpr Rule lift{Lift, &N::Fmt_Three_Place, &N::Fmt_Whole};
constexpr Rule effective_lift{Lift, &N::Fmt_Four_Place, &N::Fmt_Whole};
constexpr Rule flow{Flow, &N::Fmt_Four_Place, &N::Fmt_Two_Place};
constexpr Rule flow_per_area{Flow_Per_Area, &N::Fmt_Two_Place, &N::Fmt_Two_Place};
constexpr Rule velocity{Speed, &N::Fmt_One_Place, &N::Fmt_One_Place};

struct Sheet_Field {
    std::string_view array;
    int row;
    Rule rule;
    /// Converted only when it holds a text.
    bool may_be_empty = false;
    /// Row of the column whose number is written when going to US units; its own if none.
    int us_source_row = no_index;
};

constexpr auto header_fields = std::to_array<Sheet_Field>({
    {"Text102", 3, dimension},
    {"Text104", 3, dimension},
    {"Text102", 4, dimension},
    {"Text104", 4, dimension},
    {"Text102", 8, dimension},
    {"Text104", 8, dimension},
    {"Text104", 0, dimension},
    {"Text106", 1, dimension},
    {"Text106", 0, dimension},
    {"Text106", 2, dimension},
    {"Text106", 3, dimension},
    {"Text108", 1, dimension},
    {"Text108", 0, dimension},
    {"Text108", 2, dimension},
    {"Text108", 3, dimension},
    {"Text102", 2, area},
    {"Text104", 2, area},
    {"Text102", 5, area},
    {"Text104", 5, area},
    {"Text102", 6, dimension},
    {"Text104", 6, dimension},
    {"Text102", 7, throat_area},
    {"Text104", 7, throat_area},
    {"Text102", 9, quarter_diameter},
    {"Text103", 9, quarter_diameter},
    {"Text111", 2, corner_loss, true},
    {"Text112", 2, corner_loss, true},
    // Wanted: back in US units the exhaust's loss is written from the intake's, as it reads by
    // then; the next calculation repairs it.
    {"Text111", 3, corner_loss, true, 2},
    {"Text112", 3, corner_loss, true},
    {"Text110", 2, area},
    {"Text110", 3, area},
    {"Text202", 5, fine_dimension},
    {"Text204", 5, fine_dimension},
});

/// Converted when the rows are done.
constexpr auto late_fields = std::to_array<Sheet_Field>({
    {"Text110", 6, lift},
    {"Text112", 6, fine_dimension},
});

struct Sheet_Caption {
    std::string_view array;
    int row;
    std::string_view us;
    std::string_view metric;
};

constexpr auto sheet_captions = std::to_array<Sheet_Caption>({
    {"Text101", 15, "Lift Inch", "Lift mm"},
    {"Text104", 14, "Lift Inch", "Lift mm"},
    {"Text105", 14, "Lift Inch", "Lift mm"},
    {"Text108", 15, "Lift Inch", "Lift mm"},
    {"Text102", 13, "CFM", "M^3 Min"},
    {"Text103", 13, "CFM", "M^3 Min"},
    {"Text106", 12, "CFM", "M^3 Min"},
    {"Text107", 12, "CFM", "M^3 Min"},
    {"Text109", 13, "CFM", "M^3 Min"},
    {"Text110", 13, "CFM", "M^3 Min"},
    {"Text109", 14, "Sq In", "Sq mm"},
    {"Text110", 14, "Sq In", "Sq mm"},
    {"Text114", 12, "fps", "M/Sec"},
    {"Text115", 12, "fps", "M/Sec"},
});

struct Lift_Column {
    std::string_view array;
    Rule rule;
};

constexpr auto lift_columns = std::to_array<Lift_Column>({
    {"Text101", lift},
    {"Text102", flow},
    {"Text103", flow},
    {"Text104", effective_lift},
    {"Text105", effective_lift},
    {"Text106", flow},
    {"Text107", flow},
    {"Text108", lift},
    {"Text109", flow_per_area},
    {"Text110", flow_per_area},
    {"Text114", velocity},
    {"Text115", velocity},
    {"Text201", area},
    {"Text202", area},
    {"Text203", velocity},
    {"Text204", velocity},
});

/// One walk over the tables, in either direction.
class Converter {
public:
    Converter(const Numeric_Text& number, bool to_metric)
        : number_(number), to_metric_(to_metric) {}

    void Convert_Main(Engine_Screen& main) const {
        for (const Main_Field& entry : main_fields) {
            const Control_Array& column = main.Array(entry.array);
            Convert(column(entry.row), column(entry.row), entry.rule);
            if (entry.caption_row != no_index) {
                column(entry.caption_row)
                    .Set_Text(to_metric_ ? entry.metric_caption : entry.us_caption);
            }
        }
    }

    void Convert_Sheet(Flow_Sheet& sheet) const {
        for (const Sheet_Field& entry : header_fields) {
            Convert_Field(sheet, entry);
        }
        for (const Sheet_Caption& entry : sheet_captions) {
            sheet.Array(entry.array)(entry.row).Set_Text(to_metric_ ? entry.metric : entry.us);
        }
        Convert_Rows(sheet);
        for (const Sheet_Field& entry : late_fields) {
            Convert_Field(sheet, entry);
        }
    }

private:
    void Convert(const Control& source, Control& target, const Rule& rule) const {
        const Real value = number_(source);
        target.Set_Text(to_metric_ ? (number_.*rule.to_metric)(To_Metric(value, rule.quantity))
                                   : (number_.*rule.to_us)(To_Us(value, rule.quantity)));
    }

    void Convert_Field(Flow_Sheet& sheet, const Sheet_Field& entry) const {
        const Control_Array& column = sheet.Array(entry.array);
        Control& field = column(entry.row);
        if (entry.may_be_empty && field.Text().empty()) {
            return;
        }
        const bool other_source = !to_metric_ && entry.us_source_row != no_index;
        Convert(other_source ? column(entry.us_source_row) : field, field, entry.rule);
    }

    void Convert_Rows(Flow_Sheet& sheet) const {
        std::array<const Control_Array*, lift_columns.size()> columns{};
        for (std::size_t at = 0; at < columns.size(); ++at) {
            columns[at] = &sheet.Array(lift_columns[at].array);
        }
        for (int row = zero_lift_row; row <= last_lift_row; ++row) {
            for (std::size_t at = 0; at < columns.size(); ++at) {
                Control& field = (*columns[at])(row);
                Convert(field, field, lift_columns[at].rule);
            }
        }
    }

    const Numeric_Text& number_;
    bool to_metric_;
};

} // namespace

void Set_Metric(Session& session, bool metric) {
    if (session.Main().Is_Metric() != metric) {
        session.Main().Check2.Set_Value(metric ? 1 : 0);
        Convert_Units(session);
    }
}

void Convert_Units(Session& session) {
    const Converter converter(session.number, session.Main().Is_Metric());
    for (int number = 1; number <= sheet_count; ++number) {
        static_cast<void>(session.Sheet(number)); // created before the first text changes
    }
    converter.Convert_Main(session.Main());
    for (int number = 1; number <= sheet_count; ++number) {
        converter.Convert_Sheet(session.Sheet(number));
    }
}

} // namespace kestrum
