#include "chart/chart_page.h"

#include "base/text.h"
#include "chart/chart_picture.h"
#include "chart/figure_text.h"
#include "chart/page_table.h"

#include <algorithm>

namespace kestrum {

namespace {

constexpr double page_width = 595;
constexpr double page_height = 842;
constexpr double margin = 42;

std::string At_Pressure(const Chart& chart) {
    return "at " + Bare_Text(chart.request.pressure, 3) + " in. H\xE2\x82\x82O";
}

std::string Percent(std::optional<double> percent) {
    const std::string text = Signed_Text(percent, 1);
    return text.empty() ? text : text + " %";
}

/// The tables of a page, which hold as much as there is room for.
class Table_Maker {
public:
    Table_Maker(const Chart& chart, const Figure_Box& page) : chart_(chart), page_(page) {}

    [[nodiscard]] Page_Table Summary() const {
        Page_Table table;
        table.title = "Whole curve" + Range_Words();
        const bool event = chart_.request.cam_lift.has_value();
        std::vector<Wide_Title> titles{{"Test", name_share}};
        for (const Chart_Side side : Sides()) {
            const std::string name = side == Chart_Side::Intake ? "intake" : "exhaust";
            titles.push_back({"Peak " + name, peak_share});
            titles.push_back({"Mean", figure_share});
            titles.push_back({"gain", figure_share});
            if (event) {
                titles.push_back({"Event", figure_share});
                titles.push_back({"gain", figure_share});
            }
        }
        titles.push_back({"Ex / In", figure_share});
        table.text_size = titles.size() > wide_table ? 7 : 8;
        Place_Columns(table, titles);
        const double name_room =
            table.columns[1].right - page_.left - peak_letters * table.text_size;
        for (std::size_t place = 0; place < chart_.tests.size(); ++place) {
            table.rows.push_back(Summary_Row(place, table.text_size, name_room));
        }
        return table;
    }

    [[nodiscard]] Page_Table Lifts(Chart_Side side) const {
        Page_Table table;
        const std::size_t tests = chart_.tests.size();
        const bool shows_percent = tests <= most_with_percent;
        const std::size_t in_test = shows_percent ? 3 : 2;
        table.title =
            side == Chart_Side::Intake ? "Intake at equal lifts" : "Exhaust at equal lifts";
        table.text_size = tests > most_with_percent + 2 ? 6.2 : 8;
        std::vector<Wide_Title> titles{
            {"Lift [" + std::string(chart_.request.Lift_Unit()) + "]", figure_share}};
        const double columns = static_cast<double>(2 + (tests - 1) * in_test);
        const double room = page_.Width() / columns;
        for (std::size_t place = 0; place < tests; ++place) {
            constexpr double gap = 9;
            titles.push_back(
                {Fitted_Name(Numbered_Name(chart_, place), table.text_size - 1, false, room - gap),
                 figure_share});
            if (place > 0) {
                titles.push_back({"gain", figure_share});
                if (shows_percent) {
                    titles.push_back({"", figure_share});
                }
            }
        }
        Place_Columns(table, titles);
        for (const Chart_Row& row : chart_.table) {
            table.rows.push_back(Lift_Row(row, side, shows_percent));
        }
        return table;
    }

    [[nodiscard]] std::vector<Chart_Side> Sides() const {
        std::vector<Chart_Side> sides;
        for (const Chart_Side side : chart_sides) {
            const bool any = std::ranges::any_of(chart_.tests, [&](const Chart_Entry& test) {
                return !test.sides[side].points.empty();
            });
            if (chart_.request.shows[side] && any) {
                sides.push_back(side);
            }
        }
        return sides;
    }

private:
    struct Wide_Title {
        std::string text;
        double share = 1;
    };

    static constexpr double name_share = 2;
    static constexpr double peak_share = 2;
    static constexpr double figure_share = 1;
    static constexpr double peak_letters = 9; // width of a peak, in heights of its letters
    static constexpr std::size_t wide_table = 9;
    static constexpr std::size_t most_with_percent = 4;

    [[nodiscard]] std::string Range_Words() const {
        const Mean_Range* range = nullptr;
        for (const Chart_Side side : Sides()) {
            if (range == nullptr && chart_.mean_range[side]) {
                range = &*chart_.mean_range[side];
            }
        }
        const bool metric = chart_.request.metric;
        std::string words;
        if (range != nullptr) {
            words = ", mean from " + Bare_Text(range->from, 3) + " to " +
                    Lift_Text(range->to, metric) + " " + std::string(chart_.request.Lift_Unit());
        }
        if (chart_.request.cam_lift) {
            words += ", valve event up to " + Lift_Text(*chart_.request.cam_lift, metric);
        }
        return words;
    }

    /// Columns take the width in the proportion of their shares.
    void Place_Columns(Page_Table& table, const std::vector<Wide_Title>& titles) const {
        double all = 0;
        for (const Wide_Title& title : titles) {
            all += title.share;
        }
        double right = page_.left;
        for (const Wide_Title& title : titles) {
            right += page_.Width() * title.share / all;
            table.columns.push_back({.title = title.text, .right = right});
        }
    }

    [[nodiscard]] std::vector<Table_Cell> Summary_Row(std::size_t place, double text_size,
                                                      double name_room) const {
        const Chart_Entry& test = chart_.tests[place];
        const Chart_Entry& baseline = chart_.tests.front();
        const int decimals = chart_.request.Decimals();
        const auto gain = [&](std::optional<double> own, std::optional<double> base) {
            return Signed_Text(place == 0 ? std::nullopt : Compared(own, base).gain, decimals);
        };
        std::vector<Table_Cell> row{
            {.text = Fitted_Name(Numbered_Name(chart_, place), text_size, true, name_room),
             .colour = Look_Of_Curve(place).colour,
             .bold = true}};
        for (const Chart_Side side : Sides()) {
            const Chart_Curve& own = test.sides[side];
            const Chart_Curve& base = baseline.sides[side];
            row.push_back({.text = own.peak ? Fixed_Text(own.peak->value, decimals) + " @ " +
                                                  Lift_Text(own.peak->lift, chart_.request.metric)
                                            : ""});
            row.push_back({.text = Fixed_Text(own.mean, decimals)});
            row.push_back({.text = gain(own.mean, base.mean)});
            if (chart_.request.cam_lift) {
                row.push_back({.text = Fixed_Text(own.event_mean, decimals)});
                row.push_back({.text = gain(own.event_mean, base.event_mean)});
            }
        }
        constexpr double whole = 100;
        row.push_back({.text = test.ratio ? Fixed_Text(*test.ratio * whole, 0) + " %" : ""});
        return row;
    }

    [[nodiscard]] std::vector<Table_Cell> Lift_Row(const Chart_Row& row, Chart_Side side,
                                                   bool shows_percent) const {
        const int decimals = chart_.request.Decimals();
        std::vector<Table_Cell> cells{{.text = Lift_Text(row.lift, chart_.request.metric)}};
        for (std::size_t place = 0; place < row.cells[side].size(); ++place) {
            const Chart_Cell& cell = row.cells[side][place];
            const int colour = Look_Of_Curve(place).colour;
            cells.push_back({.text = Fixed_Text(cell.value, decimals)});
            if (place > 0) {
                cells.push_back({.text = Signed_Text(cell.gain, decimals), .colour = colour});
                if (shows_percent) {
                    cells.push_back({.text = Percent(cell.percent), .colour = colour});
                }
            }
        }
        return cells;
    }

    const Chart& chart_;
    const Figure_Box& page_;
};

class Page_Maker {
public:
    Page_Maker(const Chart& chart, const Chart_Head& head) : chart_(chart), head_(head) {}

    [[nodiscard]] Figure Make() {
        figure_.Add(Figure_Path{
            .points = {{0, 0}, {page_width, 0}, {page_width, page_height}, {0, page_height}},
            .closed = true,
            .fill = colours_.ground});
        Draw_Head();
        Draw_Foot();
        std::vector<Page_Table> tables;
        if (!chart_.tests.empty()) {
            tables = Tables_That_Fit();
        }
        double height = 0;
        for (const Page_Table& table : tables) {
            height += table.Height();
        }
        constexpr double most_chart = 470;
        const double comments = Comment_Height();
        const double chart_bottom =
            std::min(page_.top + most_chart, page_.bottom - height - comments);
        Draw_Chart(figure_, {page_.left, page_.top, page_.right, chart_bottom}, chart_, colours_);
        double top = chart_bottom + 8;
        for (const Page_Table& table : tables) {
            top = table.Draw(figure_, page_, top, colours_);
        }
        Draw_Comments(top);
        return std::move(figure_);
    }

private:
    [[nodiscard]] std::vector<Page_Table> Tables_That_Fit() const {
        constexpr double least_chart = 330;
        const Table_Maker maker(chart_, page_);
        std::vector<Page_Table> tables{maker.Summary()};
        double room = page_.Height() - least_chart - tables.front().Height();
        std::vector<Chart_Side> sides = maker.Sides();
        if (Leading_Side(chart_) == Chart_Side::Exhaust) {
            std::ranges::reverse(sides);
        }
        for (const Chart_Side side : sides) {
            Page_Table table = maker.Lifts(side);
            constexpr double tight_line = 9;
            if (table.Height() > room) {
                table.line_height = tight_line;
            }
            if (table.Height() <= room) {
                room -= table.Height();
                tables.push_back(std::move(table));
            }
        }
        return tables;
    }

    void Draw_Head() {
        constexpr double title_size = 17;
        constexpr double line_size = 9;
        const std::string title =
            head_.title.empty()
                ? std::string(Entry_Of(chart_.request.quantity).title) + " " + At_Pressure(chart_)
                : head_.title;
        constexpr double title_room = 340;
        Put(page_.left, margin + 14, Fitted_Text(title, title_size, true, title_room), title_size,
            true, Text_Anchor::Left);
        Put(page_.right, margin + 14, Fitted_Text(head_.shop, 11, true, 165), 11, true,
            Text_Anchor::Right);
        std::string under = chart_.tests.empty() ? "No test could be read"
                                                 : "Baseline: " + chart_.tests.front().name;
        if (chart_.request.shows.intake && chart_.request.shows.exhaust) {
            under += " \xC2\xB7 thick lines intake, thin lines exhaust";
        }
        const double under_room =
            page_.Width() - Figure_Text_Width(head_.shop_line, line_size, false);
        Put_Quiet(page_.left, margin + 29, Fitted_Text(under, line_size, false, under_room),
                  line_size, Text_Anchor::Left);
        Put_Quiet(page_.right, margin + 29, Fitted_Text(head_.shop_line, 8, false, 165), 8,
                  Text_Anchor::Right);
        figure_.Line({page_.left, margin + 37}, {page_.right, margin + 37}, colours_.ink, 1);
    }

    void Draw_Foot() {
        constexpr double foot_size = 7;
        Put_Quiet(page_.left, page_height - margin + foot_size,
                  "Each curve runs through its measured points and overshoots none of them. Gains "
                  "compare equal lifts at equal pressure.",
                  foot_size, Text_Anchor::Left);
    }

    static constexpr double comment_line = 10;

    [[nodiscard]] std::vector<std::string> Comments() const {
        std::vector<std::string> lines;
        for (const Chart_Entry& test : chart_.tests) {
            std::string comment(Without_Outer_Blanks(test.comment));
            std::ranges::replace_if(
                comment, [](char letter) { return static_cast<unsigned char>(letter) < ' '; }, ' ');
            if (!comment.empty()) {
                lines.push_back(test.name + ": " + comment);
            }
        }
        return lines;
    }

    [[nodiscard]] double Comment_Height() const {
        const std::size_t lines = Comments().size();
        return lines == 0 ? 0 : static_cast<double>(lines + 1) * comment_line;
    }

    void Draw_Comments(double top) {
        constexpr double size = 7.5;
        for (const std::string& line : Comments()) {
            top += comment_line;
            Put_Quiet(page_.left, top, Fitted_Text(line, size, false, page_.Width()), size,
                      Text_Anchor::Left);
        }
    }

    void Put(double x, double y, const std::string& text, double size, bool bold,
             Text_Anchor anchor) {
        if (!text.empty()) {
            figure_.Add(Figure_Text{.x = x,
                                    .y = y,
                                    .text = text,
                                    .size = size,
                                    .colour = colours_.ink,
                                    .bold = bold,
                                    .anchor = anchor});
        }
    }

    void Put_Quiet(double x, double y, const std::string& text, double size, Text_Anchor anchor) {
        if (!text.empty()) {
            figure_.Add(Figure_Text{.x = x,
                                    .y = y,
                                    .text = text,
                                    .size = size,
                                    .colour = colours_.quiet,
                                    .anchor = anchor});
        }
    }

    const Chart& chart_;
    const Chart_Head& head_;
    const Chart_Colours colours_;
    const Figure_Box page_{margin, margin + 44, page_width - margin, page_height - margin - 6};
    Figure figure_{page_width, page_height};
};

} // namespace

Figure Chart_Page(const Chart& chart, const Chart_Head& head) {
    return Page_Maker(chart, head).Make();
}

} // namespace kestrum
