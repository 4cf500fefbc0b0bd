#include "chart/chart_page.h"

#include "base/text.h"
#include "chart/chart_picture.h"
#include "chart/figure_text.h"
#include "chart/page_table.h"

#include <algorithm>
#include <functional>

namespace kestrum {

namespace {

constexpr double page_width = 595;
constexpr double page_height = 842;
constexpr double margin = 36;
constexpr Figure_Box content{margin, margin + 44, page_width - margin, page_height - margin - 6};

/// Something of a page that stands below the chart.
struct Page_Block {
    double height = 0;
    std::function<void(Figure& page, double top)> draw;
};

/// Lines of a text that are no wider than a page.
std::vector<std::string> Wrapped(const std::string& text, double size) {
    std::vector<std::string> lines(1);
    std::size_t at = 0;
    while (at < text.size()) {
        const std::size_t end = std::min(text.find(' ', at), text.size());
        const std::string word = text.substr(at, end - at);
        const std::string longer = lines.back() + (lines.back().empty() ? "" : " ") + word;
        if (lines.back().empty() || Figure_Text_Width(longer, size, false) <= content.Width()) {
            lines.back() = longer;
        } else {
            lines.push_back(word);
        }
        at = end + 1;
    }
    for (std::string& line : lines) {
        line = Fitted_Text(line, size, false, content.Width()); // a word as long as a page
    }
    return lines;
}

/// Head and foot, the same on each page.
class Page_Frame {
public:
    Page_Frame(const Chart& chart, const Chart_Head& head, const Chart_Colours& colours)
        : chart_(chart), head_(head), colours_(colours) {}

    [[nodiscard]] Figure Page() const {
        Figure page(page_width, page_height);
        page.Add(Figure_Path{
            .points = {{0, 0}, {page_width, 0}, {page_width, page_height}, {0, page_height}},
            .closed = true,
            .fill = colours_.ground});
        Draw_Head(page);
        constexpr double foot_size = 7;
        Put(page, {.x = content.left,
                   .y = page_height - margin + foot_size,
                   .text = Foot(),
                   .size = foot_size,
                   .colour = colours_.quiet});
        return page;
    }

private:
    [[nodiscard]] std::string Foot() const {
        return std::string(Sides_With_Points(chart_).size() > 1
                               ? "Thick lines: intake, thin lines: exhaust. "
                               : "") +
               "Curves overshoot no measured point. Gains compare equal lifts and pressures.";
    }

    [[nodiscard]] std::string Title() const {
        if (!head_.title.empty()) {
            return head_.title;
        }
        const Chart_Quantity_Entry& entry = Entry_Of(chart_.request.quantity);
        return std::string(entry.title) + Pressure_Words();
    }

    [[nodiscard]] std::string Pressure_Words() const {
        return Entry_Of(chart_.request.quantity).pressure_rule == Pressure_Rule::To_Asked
                   ? " at " + Bare_Text(chart_.request.pressure, 3) + " in. H\xE2\x82\x82O"
                   : "";
    }

    [[nodiscard]] std::string Under_Title() const {
        if (chart_.tests.empty()) {
            return "No test could be read";
        }
        std::vector<std::string> parts;
        if (!head_.title.empty()) {
            parts.push_back(std::string(Entry_Of(chart_.request.quantity).title) +
                            Pressure_Words());
        }
        if (chart_.tests.size() > 1) {
            parts.push_back("Baseline " + Numbered_Name(chart_, chart_.request.baseline));
        }
        std::string words;
        for (const std::string& part : parts) {
            words += (words.empty() ? "" : " \xC2\xB7 ") + part;
        }
        return words;
    }

    /// Its width on the page, the box that it may fill being low and wide.
    [[nodiscard]] double Draw_Logo(Figure& page) const {
        if (!head_.logo || head_.logo->box.Height() <= 0) {
            return 0;
        }
        constexpr double most_width = 120;
        constexpr double most_height = 38;
        constexpr double gap = 10;
        const Figure_Box& own = head_.logo->box;
        const double scale = std::min({most_width / own.Width(), most_height / own.Height(), 1.0});
        const double width = own.Width() * scale;
        const double height = own.Height() * scale;
        constexpr double rule = margin + 37;
        constexpr double above_rule = 4;
        page.Add(Figure_Picture{.box = {.left = content.right - width,
                                        .top = rule - above_rule - height,
                                        .right = content.right,
                                        .bottom = rule - above_rule},
                                .bytes = head_.logo->bytes});
        return width + gap;
    }

    void Draw_Head(Figure& page) const {
        constexpr double title_size = 17;
        constexpr double shop_size = 11;
        constexpr double line_size = 8.5;
        constexpr double title_line = margin + 14;
        constexpr double under_line = margin + 29;
        constexpr double gap = 14;
        const double right = content.right - Draw_Logo(page);
        constexpr double most_shop = 180;
        const std::string shop = Fitted_Text(head_.shop, shop_size, true, most_shop);
        const std::string line = Fitted_Text(head_.shop_line, line_size, false, most_shop);
        const auto room = [&](const std::string& beside, double size, bool bold) {
            return right - content.left - Figure_Text_Width(beside, size, bold) - gap;
        };
        Put_Within(page,
                   {.x = content.left,
                    .y = title_line,
                    .text = Title(),
                    .size = title_size,
                    .colour = colours_.ink,
                    .bold = true},
                   room(shop, shop_size, true));
        Put(page, {.x = right,
                   .y = title_line,
                   .text = shop,
                   .size = shop_size,
                   .colour = colours_.ink,
                   .bold = true,
                   .anchor = Text_Anchor::Right});
        Put_Within(page,
                   {.x = content.left,
                    .y = under_line,
                    .text = Under_Title(),
                    .size = line_size,
                    .colour = colours_.quiet},
                   room(line, line_size, false));
        Put(page, {.x = right,
                   .y = under_line,
                   .text = line,
                   .size = line_size,
                   .colour = colours_.quiet,
                   .anchor = Text_Anchor::Right});
        page.Line({content.left, margin + 37}, {content.right, margin + 37}, colours_.ink, 1);
    }

    /// In smaller letters where it has to be, and cut only where these do not help.
    static void Put_Within(Figure& page, Figure_Text text, double room) {
        constexpr double most_smaller = 0.68;
        const double width = Figure_Text_Width(text.text, text.size, text.bold);
        if (width > room) {
            text.size *= std::max(most_smaller, room / width);
        }
        text.text = Fitted_Text(text.text, text.size * (1 - 1e-9), text.bold, room);
        Put(page, std::move(text));
    }

    static void Put(Figure& page, Figure_Text text) {
        if (!text.text.empty()) {
            page.Add(std::move(text));
        }
    }

    const Chart& chart_;
    const Chart_Head& head_;
    const Chart_Colours& colours_;
};

class Page_Maker {
public:
    Page_Maker(const Chart& chart, const Chart_Style& style, const Chart_Head& head)
        : chart_(chart),
          style_{.colours = Light_Chart(),
                 .gain_in_percent = style.gain_in_percent,
                 .gain_side = style.gain_side,
                 .part = {}},
          frame_(chart, head, style_.colours) {
        if (!chart.tests.empty()) {
            Make_Tables();
            Take_Comments();
        }
    }

    [[nodiscard]] std::vector<Figure> Make() {
        constexpr double least_chart = 255;
        constexpr double usual_chart = 360;
        constexpr double most_chart = 470;
        constexpr double gap = 8;
        const std::vector<Page_Block> blocks =
            Blocks_Beside({usual_chart + gap, least_chart + gap});
        const auto first_behind =
            First_That_Does_Not_Fit(blocks, content.Height() - least_chart - gap);
        const double below = Sum({blocks.begin(), first_behind});
        const double bottom = std::min(content.top + most_chart, content.bottom - below - gap);
        pages_.push_back(frame_.Page());
        Draw_Chart(pages_.back(),
                   Layout_Of(chart_, style_, {content.left, content.top, content.right, bottom}));
        double top = bottom + gap;
        for (auto block = blocks.begin(); block != blocks.end(); ++block) {
            if (block >= first_behind && top + block->height > content.bottom) {
                pages_.push_back(frame_.Page());
                top = content.top + gap;
            }
            block->draw(pages_.back(), top);
            top += block->height;
        }
        return std::move(pages_);
    }

private:
    static double Sum(std::span<const Page_Block> blocks) {
        double height = 0;
        for (const Page_Block& block : blocks) {
            height += block.height;
        }
        return height;
    }

    static std::vector<Page_Block>::const_iterator
    First_That_Does_Not_Fit(const std::vector<Page_Block>& blocks, double room) {
        auto block = blocks.begin();
        while (block != blocks.end() && block->height <= room) {
            room -= block->height;
            ++block;
        }
        return block;
    }

    struct Room_Saving {
        bool is_tight;
        std::size_t comment_lines;
    };

    /// What stands below the chart, as airy and long as it fits beside it, or beside a lower chart;
    /// if nothing helps, what goes on on another page is whole again.
    [[nodiscard]] std::vector<Page_Block>
    Blocks_Beside(std::initializer_list<double> chart_heights) const {
        constexpr std::size_t most_lines = 60;
        for (const double height : chart_heights) {
            for (const Room_Saving& saving :
                 {Room_Saving{false, most_lines}, Room_Saving{true, most_lines},
                  Room_Saving{false, 3}, Room_Saving{true, 3}, Room_Saving{true, 2},
                  Room_Saving{true, 1}}) {
                std::vector<Page_Block> blocks = Blocks(saving);
                if (Sum(blocks) <= content.Height() - height) {
                    return blocks;
                }
            }
        }
        return Blocks({true, most_lines});
    }

    /// The tables and comments of the tests in their order.
    [[nodiscard]] std::vector<Page_Block> Blocks(const Room_Saving& saving) const {
        std::vector<Page_Block> blocks;
        for (const Page_Table& table : tables_) {
            blocks.push_back({.height = table.Height(saving.is_tight),
                              .draw = [&table, saving, this](Figure& page, double top) {
                                  table.Draw(page, top, style_.colours, saving.is_tight);
                              }});
        }
        for (const std::vector<std::string>& comment : comments_) {
            blocks.push_back(Comment_Block(comment, saving));
        }
        return blocks;
    }

    [[nodiscard]] Page_Block Comment_Block(std::vector<std::string> lines,
                                           const Room_Saving& saving) const {
        const std::size_t most = saving.comment_lines;
        if (lines.size() > most) {
            lines[most - 1] = Fitted_Text(lines[most - 1] + " " + lines[most], comment_size, false,
                                          content.Width());
            lines.resize(most);
        }
        const double line = saving.is_tight ? 9 : 10;
        return {.height = static_cast<double>(lines.size()) * line,
                .draw = [lines, line, this](Figure& page, double top) {
                    for (const std::string& text : lines) {
                        page.Add(Figure_Text{.x = content.left,
                                             .y = top + comment_size,
                                             .text = text,
                                             .size = comment_size,
                                             .colour = style_.colours.quiet});
                        top += line;
                    }
                }};
    }

    void Make_Tables() {
        tables_.emplace_back(Summary_Table(chart_, Table_Detail::Page), content);
        const std::vector<Chart_Side> sides = Sides_With_Points(chart_);
        constexpr std::size_t most_side_by_side = 2;
        if (chart_.tests.size() <= most_side_by_side) {
            tables_.emplace_back(Lift_Table(chart_, sides, Table_Detail::Page), content);
            return;
        }
        for (const Chart_Side side : sides) {
            tables_.emplace_back(Lift_Table(chart_, std::array{side}, Table_Detail::Page), content);
        }
    }

    void Take_Comments() {
        for (std::size_t test = 0; test < chart_.tests.size(); ++test) {
            std::string comment(Without_Outer_Blanks(chart_.tests[test].comment));
            std::ranges::replace_if(
                comment, [](char letter) { return static_cast<unsigned char>(letter) < ' '; }, ' ');
            if (!comment.empty()) {
                comments_.push_back(
                    Wrapped(Numbered_Name(chart_, test) + ": " + comment, comment_size));
            }
        }
    }

    static constexpr double comment_size = 7.5;

    const Chart& chart_;
    Chart_Style style_;
    Page_Frame frame_;
    std::vector<Page_Table> tables_;
    std::vector<std::vector<std::string>> comments_; // their lines
    std::vector<Figure> pages_;
};

} // namespace

std::vector<Figure> Chart_Pages(const Chart& chart, const Chart_Style& style,
                                const Chart_Head& head) {
    return Page_Maker(chart, style, head).Make();
}

} // namespace kestrum
