#include "tests/desktop/desktop_bench.h"

#include <QImage>

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>
#include <vector>

namespace kestrum::desktop {
namespace {

/// Middle of what a cell shows in dark letters, as a part of its width.
double Middle_Of_Letters(QWidget& cell) {
    const QImage picture = cell.grab().toImage();
    int left = picture.width();
    int right = 0;
    for (int x = 2; x < picture.width() - 8; ++x) { // without frame and mark
        for (int y = 4; y < picture.height() - 4; ++y) {
            if (picture.pixelColor(x, y).lightness() < 140) {
                left = std::min(left, x);
                right = std::max(right, x);
            }
        }
    }
    return (left + right) / 2.0 / picture.width();
}

TEST(Alignment, Captions_Results_Inputs_And_Notes_Take_The_Alignment) {
    Desktop_Bench bench;
    bench.Open_Sheet();
    const std::vector<const char*> cells{"Form1.Text101(6)", "Form1.Text103(17)",
                                         "Form1.Text106(17)", "Main.Text38"};
    for (const auto& [alignment, least, most] :
         {std::tuple(Alignment::Left, 0.0, 0.45), std::tuple(Alignment::Center, 0.4, 0.6),
          std::tuple(Alignment::Right, 0.55, 1.0)}) {
        for (const char* const address : cells) {
            Control& control = bench.At(address);
            control.Set_Text("ab");
            Look look = control.Present_Look();
            look.alignment = alignment;
            control.Set_Look(look);
        }
        bench.program.Its_Windows().Refresh();
        for (const char* const address : cells) {
            const double middle = Middle_Of_Letters(bench.Widget(address));
            EXPECT_GE(middle, least) << address;
            EXPECT_LE(middle, most) << address;
        }
    }
}

} // namespace
} // namespace kestrum::desktop
