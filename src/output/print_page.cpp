#include "output/print_page.h"

#include "output/print_state.h"

#include <array>
#include <utility>

namespace kestrum {

namespace {

constexpr double twips_per_pixel = 15;

} // namespace

Print_Page::Print_Page(Session& session, const Paper& paper)
    : session_(session), end_(Page_End(paper)), pages_(1) {}

double Print_Page::Measure(std::string_view text) {
    Print_Of(session_).text_width = Printed_Text_Width(text, size);
    return Print_Of(session_).text_width;
}

void Print_Page::Print_Aligned(std::string_view text, double left, double right, Text_Anchor anchor,
                               double limit) {
    const double width = Measure(text);
    x = left;
    if (width < right - left && anchor == Text_Anchor::Centre) {
        x = (right - left - width) / 2 + left;
    } else if (width < right - left && anchor == Text_Anchor::Right) {
        x = right - left - width + left;
    }
    if (!text.empty()) {
        pages_.back().Add({.kind = Draw_Kind::Text,
                           .x1 = x,
                           .y1 = y,
                           .x2 = right,
                           .size = size,
                           .bold = bold,
                           .anchor = anchor,
                           .cell = left,
                           .limit = limit > right ? limit : right,
                           .font = "Arial",
                           .text = std::string(text)});
    }
    x = 0;
    y += Printed_Text_Height(size);
}

void Print_Page::Print(std::string_view text) {
    Print_Aligned(text, x, Tab(full_width), Text_Anchor::Left);
}

void Print_Page::Rule(double below, double width) {
    constexpr double left = 50;
    y += below;
    x = Tab(full_width);
    pages_.back().Line(left, y, x, y, 0, width);
}

double Print_Page::Logo_Width() const {
    const bool printed = session_.settings.logo.on && session_.settings.logo.size;
    return printed ? session_.settings.logo.size->width * twips_per_pixel : 0;
}

double Print_Page::Logo_Height() const {
    const bool printed = session_.settings.logo.on && session_.settings.logo.size;
    return printed ? session_.settings.logo.size->height * twips_per_pixel : 0;
}

void Print_Page::Paint_Logo(double left, double top) {
    pages_.back().Add({.kind = Draw_Kind::Picture,
                       .x1 = left,
                       .y1 = top,
                       .x2 = Logo_Width(),
                       .y2 = Logo_Height(),
                       .text = session_.settings.logo.file});
}

void Print_Page::Start_Row(double highest) {
    if (y + Printed_Text_Height(highest) > end_) {
        New_Page();
    }
    Print_Of(session_).row_y = static_cast<int>(y);
}

void Print_Page::Print_Label_Font() {
    constexpr double label_size = 10;
    Return_To_Row();
    Set_Font(label_size, true);
}

void Print_Page::Print_Value_Font() {
    Return_To_Row();
    Set_Font(value_size, false);
}

void Print_Page::Return_To_Row() {
    y = Print_Of(session_).row_y;
}

void Print_Page::Cell(std::string_view text, int column, int behind, double limit) {
    Print_Aligned(text, Tab(column), Tab(behind), Text_Anchor::Centre, limit);
}

void Print_Page::New_Page() {
    pages_.emplace_back();
    x = 0;
    y = 0;
}

int Print_Page::Tab(int index) const {
    return Print_Of(session_).tab.at(static_cast<std::size_t>(index));
}

void Print_Page::Set_Tabs() {
    static constexpr std::array columns{100,  1200, 2300, 3400,  4500,  5600,
                                        6700, 7800, 8900, 10000, 11100, 12200};
    static constexpr std::array<std::pair<std::size_t, int>, 3> limits{
        {{97, 125}, {98, 12075}, {99, 12150}}};
    auto& tab = Print_Of(session_).tab;
    std::copy(columns.begin(), columns.end(), tab.begin() + 1);
    for (const auto& [index, place] : limits) {
        tab.at(index) = place;
    }
}

} // namespace kestrum
