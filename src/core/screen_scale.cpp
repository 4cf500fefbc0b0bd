#include "core/screen_scale.h"

#include "screens/geometry.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace kestrum {

namespace {

constexpr double design_dpi = 96;

/// The pixels of a length, in single precision and by the seven digits that this shows.
double Pixels_Of(double twips) {
    constexpr int digits = 7;
    std::array<char, 32> text{};
    const auto written = std::to_chars(text.data(), text.data() + text.size(),
                                       static_cast<float>(twips / twips_per_pixel),
                                       std::chars_format::general, digits);
    double pixels = 0;
    std::from_chars(text.data(), written.ptr, pixels);
    return pixels;
}

double Stretch_To(double target, double twips, int dpi) {
    return std::max(target / Pixels_Of(twips) * (design_dpi / dpi), 1.0);
}

/// Cells are wider than their letters, so that letters may grow somewhat more than the cells, and
/// yet not by much more than the rows.
double Font_Factor(double x, double y) {
    constexpr double widest = 1.3;
    constexpr double usual_letters = 1.1;
    constexpr double letters_of_wide = 1.025;
    return x / y <= widest ? x * usual_letters : y * widest * letters_of_wide;
}

Position Place_On(const Display& display, const Twips& size) {
    constexpr double least_gap = 25;
    const double free_width = display.width * twips_per_pixel - size.width;
    const double free_height = display.height * twips_per_pixel - size.height;
    const double gap = std::trunc(free_height / 2 / twips_per_pixel);
    return {.left = free_width / 2, .top = gap <= least_gap ? 0 : free_height / 4};
}

void Stretch(Control& control, const Screen_Scale& scale) {
    const Position& position = control.Moved_To();
    const Extent& extent = control.Picture_Extent();
    control.Move_To({.left = position.left * scale.x, .top = position.top * scale.y});
    control.Set_Extent({.width = extent.width * scale.x, .height = extent.height * scale.y});
    if (control.Entry().kind != Control_Kind::Menu_Entry) {
        Look look = control.Present_Look();
        look.font.size *= scale.font;
        control.Set_Look(look);
    }
}

} // namespace

Screen_Scale Factors_For(const Screen& screen, const Display_Scale& display) {
    const Twips size = Place_In_Twips(screen);
    Screen_Scale scale{.x = Stretch_To(display.target_width, size.width, display.dpi),
                       .y = Stretch_To(display.target_height, size.height, display.dpi)};
    if (screen.Kind() == Screen_Kind::Graph && !display.aspect_free) {
        const double both = std::min(scale.x, scale.y);
        return {.x = both, .y = both, .font = both};
    }
    scale.font = Font_Factor(scale.x, scale.y);
    return scale;
}

void Apply_Screen_Scale(Screen& screen, const Screen_Scale& scale, const Display& display) {
    screen.scale = scale;
    for (Control& control : screen.Controls()) {
        Stretch(control, scale);
    }
    screen.place = Place_On(display, Place_In_Twips(screen));
}

} // namespace kestrum
