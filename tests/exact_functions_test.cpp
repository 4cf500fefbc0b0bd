#include "base/exact_functions.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace {

using namespace kestrum;

// The expected figures were worked out with 400 bits and rounded once. The angles are in degrees as
// the seat counts them. At some of these places one library of C or the other is a last bit off.

struct Angle_Case {
    double degrees;
    double sine;
    double cosine;
    double tangent;
};

TEST(Exact_Functions, The_Figures_Of_An_Angle_Are_The_Nearest_Doubles) {
    constexpr double degree = 0.017453292519943278;
    const std::vector<Angle_Case> cases{
        {0, 0, 1, 0},
        {3.54, 0x1.f9d164978572ep-5, 0x1.ff05e7f8bb162p-1, 0x1.fac8f07d8ffd9p-5},
        {35, 0x1.25abcf87c4974p-1, 0x1.a367e5915874ap-1, 0x1.66819a3a0bf73p-1},
        {90, 1, 0x1.d1a62633145c0p-50, 0x1.197b7e0796822p+49},
        {100, 0x1.f838b8c811c1ap-1, -0x1.63a1a7e0b7349p-3, -0x1.6af648056a17ap+2},
        {-30, -0x1.ffffffffffff8p-2, 0x1.bb67ae8584cadp-1, -0x1.279a745903316p-1},
        {-135, -0x1.6a09e667f3bdbp-1, -0x1.6a09e667f3bbep-1, 0x1.0000000000015p+0},
        {750, 0x1.fffffffffff2dp-2, 0x1.bb67ae8584ce7p-1, 0x1.279a74590327ap-1}};
    for (const Angle_Case& angle : cases) {
        const Circle_Figures figures = Exact_Circle(angle.degrees * degree);
        EXPECT_EQ(figures.sine, angle.sine) << angle.degrees;
        EXPECT_EQ(figures.cosine, angle.cosine) << angle.degrees;
        EXPECT_EQ(figures.tangent, angle.tangent) << angle.degrees;
    }
}

TEST(Exact_Functions, A_Power_Is_The_Nearest_Double) {
    EXPECT_EQ(Exact_Power(11.08, 0.44), 0x1.70d065f902f44p+1);
    EXPECT_EQ(Exact_Power(90.02, 0.44), 0x1.cf8ac3d61ffe0p+2);
    EXPECT_EQ(Exact_Power(2, 0.5), 0x1.6a09e667f3bcdp+0);
    EXPECT_EQ(Exact_Power(1.0000001, 1e9), 0x1.349445c228792p+144);
    EXPECT_EQ(Exact_Power(5e-324, 0.25), 0x1.6a09e667f3bcdp-269);
    EXPECT_EQ(Exact_Power(10, -3), 0.001);
    EXPECT_EQ(Exact_Power(7, 0), 1);
    EXPECT_EQ(Exact_Power(2, 1024), std::numeric_limits<double>::infinity());
    EXPECT_EQ(Exact_Power(2, -1e300), 0);
}

} // namespace
