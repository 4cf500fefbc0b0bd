#include "output/print_head.h"

#include "base/text.h"

#include <algorithm>

namespace kestrum {

namespace {

constexpr int left_limit = 97;
constexpr int right_limit = 98;
constexpr double inner_left = 150;

Text_Anchor Head_Anchor(const Engine_Screen& main) {
    if (main.Option4(1).Value() != 0) {
        return Text_Anchor::Centre;
    }
    return main.Option4(2).Value() != 0 ? Text_Anchor::Right : Text_Anchor::Left;
}

/// Paints the logo on the side where the company is not. Gives where it ends, as the layout counts
/// it: on the left side the company's lines may begin higher than on the right one.
double Print_Head_Logo(Print_Page& page, Text_Anchor anchor, double text_right) {
    constexpr double below_rule = 150;
    constexpr double less_on_the_left = 175;
    if (anchor == Text_Anchor::Centre || page.Logo_Width() == 0) {
        return 0;
    }
    if (anchor == Text_Anchor::Left) {
        page.Paint_Logo(text_right - page.Logo_Width(), page.y + below_rule);
        return page.y + below_rule + page.Logo_Height();
    }
    page.Paint_Logo(inner_left, page.y + below_rule);
    return page.y - less_on_the_left + page.Logo_Height();
}

/// A line of one character is taken for an empty one.
void Print_Company_Line(Print_Page& page, const Control& line, double right, Text_Anchor anchor) {
    if (Length(line.Text()) >= 2) {
        page.Print_Aligned(line.Text(), inner_left, right, anchor);
    }
}

void Print_Company(Print_Page& page, double text_right, Text_Anchor anchor) {
    constexpr double gap = 100;
    constexpr double name_size = 16;
    constexpr double address_size = 13;
    const Engine_Screen& main = page.Its_Session().Main();
    page.Set_Font(name_size, true);
    page.y += gap;
    Print_Company_Line(page, main.Text94, text_right, anchor);
    page.Set_Font(address_size, false);
    for (const Control* const line : {&main.Text95, &main.Text96, &main.Text97, &main.Text98}) {
        Print_Company_Line(page, *line, text_right, anchor);
    }
}

/// "Printed: Monday November 16 2026 9:5:3".
std::string Time_Of_Print(const Session& session) {
    const Moment now = session.surroundings.clock.Now();
    const auto plain = [&session](int number) { return session.numbers.Plain(number); };
    return "Printed: " + Decoded(now.day_name) + " " + Decoded(now.month_name) + " " +
           plain(now.day) + " " + plain(now.year) + " " + plain(now.hour) + ":" +
           plain(now.minute) + ":" + plain(now.second);
}

void Print_Customer_Lines(Print_Page& page) {
    constexpr double customer_size = 12;
    constexpr double gap = 100;
    page.Start_Row(customer_size);
    page.Set_Font(customer_size, true);
    const auto print = [&page](std::string_view text, Text_Anchor anchor) {
        page.Print_Aligned(text, page.Tab(left_limit), page.Tab(right_limit), anchor);
    };
    print("Customer Name: ____________________________", Text_Anchor::Left);
    page.Return_To_Row();
    print(Time_Of_Print(page.Its_Session()), Text_Anchor::Right);
    page.y += gap;
    print("Order / Invoice #: ____________________________", Text_Anchor::Left);
    Print_Block_Rule(page);
}

} // namespace

void Print_Page_Head(Print_Page& page) {
    constexpr double top = 150;
    constexpr double title_size = 13;
    constexpr double thick = 20;
    constexpr double below_title = 50;
    constexpr double below_company = 75;
    Session& session = page.Its_Session();
    page.Set_Tabs();
    page.x = 0;
    page.y = top;
    page.Set_Font(title_size, false);
    page.Print_Aligned(session.title_text, 0, page.Tab(full_width), Text_Anchor::Centre);
    page.Rule(below_title, thick);
    const Text_Anchor anchor = Head_Anchor(session.Main());
    const double text_right = page.Tab(right_limit) - inner_left;
    const double logo_bottom = Print_Head_Logo(page, anchor, text_right);
    Print_Company(page, text_right, anchor);
    page.y = std::max(page.y, logo_bottom) + below_company;
    Print_Customer_Lines(page);
}

void Print_Block_Rule(Print_Page& page) {
    constexpr double below_block = 150;
    page.Rule(below_block);
}

void Print_Logo_Foot(Print_Page& page) {
    constexpr double lowest = 13800;
    if (page.Logo_Width() == 0) {
        return;
    }
    if (page.y > lowest) {
        page.New_Page();
    }
    page.x = 0;
    page.Paint_Logo(page.x, page.y);
}

bool Has_Logo_At_Foot(Print_Page& page) {
    return Head_Anchor(page.Its_Session().Main()) == Text_Anchor::Centre;
}

} // namespace kestrum
