#include "desktop/form_design.h"

#include <algorithm>
#include <array>

namespace kestrum::desktop {

namespace {

constexpr std::array main_cards{
    Place{0, 0, 11, 13},
    Place{0, 14, 11, 2},
    Place{0, 17, 11, 6},
};
constexpr std::array sheet_cards{
    Place{0, 0, 15, 12},
    Place{0, 12, 15, 19},
};
constexpr std::array page_2_cards{
    Place{0, 3, 4, 3},
    Place{0, 13, 11, 18},
};
constexpr std::array compare_cards{
    Place{0, 10, 3, 21}, // the From test
    Place{3, 10, 3, 21}, // the To test
    Place{6, 10, 4, 21}, Place{10, 7, 4, 4}, Place{10, 12, 4, 4}, Place{10, 17, 4, 2},
};
constexpr std::array graph_cards{
    Place{10, 0, 4, 5},
    Place{10, 6, 4, 2},
};

constexpr Form_Design main_design{.column_width = 104,
                                  .row_height = 29,
                                  .opening_scale = 1, // painting it is what a start waits for
                                  .cards = main_cards,
                                  .information_sample = Place{6, 22, 1, 1}};
constexpr Form_Design sheet_design{
    .column_width = 66, .row_height = 20, .gap_before_row = 12, .cards = sheet_cards};
constexpr Form_Design page_2_design{.column_width = 84,
                                    .row_height = 20,
                                    .gap_before_row = 13,
                                    .row_heads = "Text101",
                                    .first_row_head = 13,
                                    .row_heads_width = 66,
                                    .cards = page_2_cards};
constexpr Form_Design compare_design{.column_width = 88,
                                     .row_height = 20,

                                     .rows_of_options = 11,
                                     .cards = compare_cards};
constexpr Form_Design graph_design{.column_width = 66, .row_height = 22, .cards = graph_cards};
constexpr Form_Design report_design{.column_width = 88, .row_height = 28};
constexpr Form_Design panel_design{.column_width = 60, .row_height = 26};

constexpr auto own_words = std::to_array<Own_Words>({
    {Screen_Kind::Engine, "", "Text33", no_index, "Name of test", {}},
    {Screen_Kind::Engine, "", "Text38", no_index, "Comments", {}},
    {Screen_Kind::Engine, "", "Check1", no_index, "User Mach #", {}},
    {Screen_Kind::Engine, "", "Check3", no_index, "User Peak HP RPM", {}},
    {Screen_Kind::Engine, "", "Combo1", no_index, "Printer", {}},
    {Screen_Kind::Engine, "", "Option4", 0, "Company on prints", {6, 17, 2, 1}},
    {Screen_Kind::Engine, "Frame4", "Text1", 0, "Flow Test #1", {0, 0, 1, 1}},
    {Screen_Kind::Engine, "Frame4", "Text1", 1, "Flow Test #2", {0, 1, 1, 1}},
    {Screen_Kind::Engine, "Frame4", "Text1", 2, "Flow Test #3", {0, 2, 1, 1}},
    {Screen_Kind::Engine, "Frame4", "Text1", 3, "Flow Test #4", {0, 3, 1, 1}},
    {Screen_Kind::Engine, "Frame4", "Text1", 4, "Flow Test #5", {0, 4, 1, 1}},
    {Screen_Kind::Engine, "Frame96", "Text94", no_index, "Company name", {0, 0, 2, 1}},
    {Screen_Kind::Engine, "Frame96", "Text95", no_index, "Street address", {0, 1, 2, 1}},
    {Screen_Kind::Engine, "Frame96", "Text96", no_index, "City, state, zip", {0, 2, 2, 1}},
    {Screen_Kind::Engine, "Frame96", "Text97", no_index, "Phone, fax, email", {0, 3, 2, 1}},
    {Screen_Kind::Engine, "Frame96", "Text98", no_index, "Website", {0, 4, 2, 1}},
    {Screen_Kind::Compare, "", "Text1", no_index, "Y Axis Low", {}},
    {Screen_Kind::Compare, "", "Text2", no_index, "Y Axis High", {}},
    {Screen_Kind::Compare, "", "Text3", no_index, "Valve Lift 1", {}},
    {Screen_Kind::Compare, "", "Text4", no_index, "Valve Lift 2", {}},
    {Screen_Kind::Compare, "", "Text71", no_index, "Graph Caption Line 1", {}},
    {Screen_Kind::Compare, "", "Text72", no_index, "Graph Caption Line 2", {}},
    {Screen_Kind::Graph, "", "Combo1", no_index, "Draw Line Width", {}},
    {Screen_Kind::Graph, "", "Picture1", no_index, "Graph", {}},
    {Screen_Kind::Sheet, "", "Text39", no_index, "File", {}},
    {Screen_Kind::Sheet, "Frame1", "Text38", no_index, "Comments", {}},
    {Screen_Kind::Report, "", "Text38", no_index, "Text Report", {}},
});

} // namespace

const Form_Design& Design_Of(const Screen& screen, std::string_view holder) {
    if (screen.Kind() == Screen_Kind::Sheet) {
        return holder.empty() ? sheet_design : page_2_design;
    }
    if (!holder.empty()) {
        return panel_design;
    }
    switch (screen.Kind()) {
    case Screen_Kind::Compare:
        return compare_design;
    case Screen_Kind::Graph:
        return graph_design;
    case Screen_Kind::Report:
        return report_design;
    default:
        return main_design;
    }
}

std::span<const Own_Words> All_Own_Words() {
    return own_words;
}

const Own_Words* Own_Words_Of(const Control& field) {
    const auto* const found = std::ranges::find_if(own_words, [&field](const Own_Words& line) {
        return line.array == field.Entry().array && line.index == field.Index() &&
               line.screen == field.Owner().Kind();
    });
    return found == own_words.end() ? nullptr : found;
}

} // namespace kestrum::desktop
