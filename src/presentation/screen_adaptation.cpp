#include "presentation/screen_adaptation.h"

#include "core/screen_scale.h"

namespace kestrum {

namespace {

constexpr int least_width = 1200;
constexpr int least_height = 600;
/// Share of the display that a screen shall fill.
constexpr double share = 0.925;

void Note_Graph(Display_Scale& display, const Screen_Scale& graph) {
    display.scale_x = graph.x;
    display.scale_y = graph.y;
    display.scale_font = graph.font;
    display.canvas_x_size *= graph.x;
    display.canvas_y_size *= graph.y;
}

} // namespace

bool Scale_All_Screens(Session& session) {
    const Display& display = session.surroundings.display;
    if (display.width < least_width || display.height < least_height) {
        return false;
    }
    for (const Screen_Id id : all_screens) {
        // All first: a sheet that is made later takes the fonts of another, stretched or not.
        static_cast<void>(session.The(id));
    }
    session.display.target_width = display.width * share;
    session.display.target_height = display.height * share;
    for (const Screen_Id id : all_screens) {
        Screen& screen = session.The(id);
        Apply_Screen_Scale(screen, Factors_For(screen, session.display), display);
    }
    Note_Graph(session.display, session.Form60().scale);
    return true;
}

void Show_Screen_Resolution(Session& session) {
    const Display& display = session.surroundings.display;
    const Numeric_Text& numbers = session.numbers;
    session.Message("Screen Resolution: " + numbers.Plain(display.width) + " X " +
                        numbers.Plain(display.height) +
                        "   <-->   Screen DPI: " + numbers.Plain(session.display.dpi),
                    Box_Icon::Information);
}

} // namespace kestrum
