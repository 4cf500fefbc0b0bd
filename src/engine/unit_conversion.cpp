#include "engine/unit_conversion.h"

#include "base/units.h"

#include <array>
#include <functional>

namespace kestrum {

namespace {

/// How a converted number is shown; what it measures stands in the table of its screen. The two
/// formats need not be a pair.
struct Formats {
    Format to_metric;
    Format to_us;
};

using N = Numeric_Text;

/// A field of `Main`, and the caption that tells its unit where there is one.
struct Main_Field {
    std::string_view array;
    int row;
    Formats formats;
    int caption_row = no_index;
    std::string_view us_caption{};
    std::string_view metric_caption{};
};

constexpr auto main_fields = std::to_array<Main_Field>({
    {"Text102", 3, {&N::Fmt_Two_Place, &N::Fmt_Whole}, 2, "Port Vel Ft/Sec", "Port Vel M/Sec"},
    {"Text103", 3, {&N::Fmt_Three_Place, &N::Fmt_Three_Place}},
    {"Text104", 3, {&N::Fmt_Two_Place, &N::Fmt_Three_Place}, 2, "Inches", "mm"},
    {"Text105", 3, {&N::Fmt_Two_Place, &N::Fmt_Three_Place}, 2, "Inches", "mm"},
    {"Text106", 3, {&N::Fmt_Two_Place, &N::Fmt_Two_Place}},
    {"Text107", 3, {&N::Fmt_Three_Place, &N::Fmt_One_Place}, 2, "CID", "LD"},
    {"Text108", 3, {&N::Fmt_Three_Place, &N::Fmt_Two_Place}, 2, "CID", "LD"},
    {"Text102", 8, {&N::Fmt_Two_Place, &N::Fmt_Whole}, 7, "Ft/Min", "M/Min"},
    {"Text103", 8, {&N::Fmt_Up_To_Five, &N::Fmt_Two_Place}, 5, "CFM @", "M^3/Min @"},
    {"Text104", 8, {&N::Fmt_Three_Place, &N::Fmt_Whole}, 6, "Torque", "Torque NM"},
    {"Text107", 8, {&N::Fmt_Three_Place, &N::Fmt_Three_Place}, 5, "Torque", "Torque NM"},
    {"Text108", 8, {&N::Fmt_Three_Place, &N::Fmt_One_Place}, 5, "Torque", "Torque NM"},
    // The limits show one decimal here, though the calculation writes them whole.
    {"Text105", 8, {&N::Fmt_One_Place, &N::Fmt_One_Place}, 7, "HP limitation", "KW limitation"},
    {"Text106", 8, {&N::Fmt_One_Place, &N::Fmt_One_Place}, 7, "HP limitation", "KW limitation"},
    {"Text109", 8, {&N::Fmt_Three_Place, &N::Fmt_Three_Place}, 5, "HP", "KW"},
    {"Text110", 8, {&N::Fmt_Three_Place, &N::Fmt_Three_Place}, 5, "HP", "KW"},
    {"Text104", 9, {&N::Fmt_Three_Place, &N::Fmt_Three_Place}},
    {"Text106", 9, {&N::Fmt_Three_Place, &N::Fmt_Three_Place}},
});

constexpr Formats three_places{&N::Fmt_Three_Place, &N::Fmt_Three_Place};
constexpr Formats two_places{&N::Fmt_Two_Place, &N::Fmt_Two_Place};
constexpr Formats one_place{&N::Fmt_One_Place, &N::Fmt_One_Place};
constexpr Formats four_places{&N::Fmt_Four_Place, &N::Fmt_Four_Place};
constexpr Formats up_to_six{&N::Fmt_Up_To_Six, &N::Fmt_Up_To_Six};
constexpr Formats quarter_diameter{&N::Fmt_Two_Place, &N::Fmt_Whole};
constexpr Formats lift{&N::Fmt_Three_Place, &N::Fmt_Whole};
constexpr Formats effective_lift{&N::Fmt_Four_Place, &N::Fmt_Whole};
constexpr Formats flow{&N::Fmt_Four_Place, &N::Fmt_Two_Place};

struct Sheet_Field {
    std::string_view array;
    int row;
    Formats formats;
    /// Converted only when it holds a text.
    bool may_be_empty = false;
    /// Row of the column whose number is written when going to US units; its own if none.
    int us_source_row = no_index;
};

constexpr auto header_fields = std::to_array<Sheet_Field>({
    {"Text102", 3, three_places},
    {"Text104", 3, three_places},
    {"Text102", 4, three_places},
    {"Text104", 4, three_places},
    {"Text102", 8, three_places},
    {"Text104", 8, three_places},
    {"Text104", 0, three_places},
    {"Text106", 1, three_places},
    {"Text106", 0, three_places},
    {"Text106", 2, three_places},
    {"Text106", 3, three_places},
    {"Text108", 1, three_places},
    {"Text108", 0, three_places},
    {"Text108", 2, three_places},
    {"Text108", 3, three_places},
    {"Text102", 2, three_places},
    {"Text104", 2, three_places},
    {"Text102", 5, three_places},
    {"Text104", 5, three_places},
    {"Text102", 6, three_places},
    {"Text104", 6, three_places},
    {"Text102", 7, two_places},
    {"Text104", 7, two_places},
    {"Text102", 9, quarter_diameter},
    {"Text103", 9, quarter_diameter},
    {"Text111", 2, up_to_six, true},
    {"Text112", 2, up_to_six, true},
    // Wanted: back in US units the exhaust's loss is written from the intake's, as it reads by
    // then; the next calculation repairs it.
    {"Text111", 3, up_to_six, true, 2},
    {"Text112", 3, up_to_six, true},
    {"Text110", 2, three_places},
    {"Text110", 3, three_places},
    {"Text202", 5, four_places},
    {"Text204", 5, four_places},
});

/// Converted when the rows are done.
constexpr auto late_fields = std::to_array<Sheet_Field>({
    {"Text110", 6, lift},
    {"Text112", 6, four_places},
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
    Formats formats;
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
    {"Text109", two_places},
    {"Text110", two_places},
    {"Text114", one_place},
    {"Text115", one_place},
    {"Text201", three_places},
    {"Text202", three_places},
    {"Text203", one_place},
    {"Text204", one_place},
});

/// One walk over the tables, in either direction.
class Converter {
public:
    Converter(const Numeric_Text& numbers, bool to_metric)
        : numbers_(numbers), to_metric_(to_metric) {}

    void Convert_Main(Engine_Screen& main) const {
        for (const Main_Field& entry : main_fields) {
            const Control_Array& column = main.Array(entry.array);
            Convert(column(entry.row), column(entry.row), entry.formats);
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
    void Convert(const Control& source, Control& target, const Formats& formats) const {
        const Real value = numbers_(source);
        const Quantity quantity = target.Entry().quantity;
        target.Set_Text(to_metric_ ? (numbers_.*formats.to_metric)(To_Metric(value, quantity))
                                   : (numbers_.*formats.to_us)(To_Us(value, quantity)));
    }

    void Convert_Field(Flow_Sheet& sheet, const Sheet_Field& entry) const {
        const Control_Array& column = sheet.Array(entry.array);
        Control& field = column(entry.row);
        if (entry.may_be_empty && field.Text().empty()) {
            return;
        }
        const bool other_source = !to_metric_ && entry.us_source_row != no_index;
        Convert(other_source ? column(entry.us_source_row) : field, field, entry.formats);
    }

    void Convert_Rows(Flow_Sheet& sheet) const {
        std::array<const Control_Array*, lift_columns.size()> columns{};
        for (std::size_t column = 0; column < columns.size(); ++column) {
            columns[column] = &sheet.Array(lift_columns[column].array);
        }
        for (int row = zero_lift_row; row <= last_lift_row; ++row) {
            for (std::size_t column = 0; column < columns.size(); ++column) {
                Control& field = (*columns[column])(row);
                Convert(field, field, lift_columns[column].formats);
            }
        }
    }

    const Numeric_Text& numbers_;
    bool to_metric_;
};

/// Results go with the inputs they were worked out from.
void Convert_As_It_Stands(Screen& screen, const std::function<void()>& convert) {
    const bool results_are_old = screen.Results_Are_Old();
    convert();
    if (!results_are_old) {
        screen.Note_Calculation();
    }
}

} // namespace

void Set_Metric(Session& session, bool metric) {
    if (session.Main().Is_Metric() != metric) {
        session.Main().Check2.Set_Value(metric ? 1 : 0);
        Convert_Units(session);
    }
}

void Convert_Units(Session& session) {
    const Converter converter(session.numbers, session.Main().Is_Metric());
    for (int number = 1; number <= sheet_count; ++number) {
        static_cast<void>(session.Sheet(number)); // created before the first text changes
    }
    Engine_Screen& main = session.Main();
    Convert_As_It_Stands(main, [&] { converter.Convert_Main(main); });
    for (int number = 1; number <= sheet_count; ++number) {
        Flow_Sheet& sheet = session.Sheet(number);
        Convert_As_It_Stands(sheet, [&] { converter.Convert_Sheet(sheet); });
    }
}

} // namespace kestrum
