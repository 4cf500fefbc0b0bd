#include "base/exact_functions.h"

#include "base/pair.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <limits>

namespace kestrum {

namespace {

constexpr std::size_t most_terms = 29;

constexpr std::array<Pair, most_terms> One_Over_Factorials() {
    std::array<Pair, most_terms> all{};
    Pair value{1};
    for (std::size_t index = 0; index < most_terms; ++index) {
        value = index == 0 ? value : value / Pair{static_cast<double>(index)};
        all.at(index) = value;
    }
    return all;
}

constexpr std::array<Pair, most_terms> one_over_factorial = One_Over_Factorials();

/// 1/first! + x/(first + step)! + x^2/(first + 2 step)! + ... The terms behind the eighth are so
/// small that single digits do for them.
Pair Series(Pair x, std::size_t first, std::size_t step) {
    constexpr std::size_t pairs = 8;
    const std::size_t last = (most_terms - 1 - first) / step;
    double tail = 0;
    for (std::size_t term = last; term >= pairs; --term) {
        tail = tail * x.high + one_over_factorial.at(first + term * step).high;
    }
    Pair sum{tail};
    for (std::size_t term = pairs; term-- > 0;) {
        sum = sum * x + one_over_factorial.at(first + term * step);
    }
    return sum;
}

struct Quarter_Turns {
    int whole;
    Pair rest; // at most an eighth of a turn
};

/// A quarter turn is subtracted in parts so short that their multiples are exact.
Quarter_Turns Turns_In(double radians) {
    constexpr std::array parts{0x1.921fb544p+0,   0x1.0b4611a6p-34,  0x1.3198a2ep-69,
                               0x1.b839a252p-104, 0x1.27044533p-142, 0x1.cc74020bp-175};
    constexpr double quarters_in_radian = 0x1.45f306dc9c883p-1;
    const double whole = std::floor(radians * quarters_in_radian + 0.5);
    Pair rest{radians};
    for (const double part : parts) {
        rest = rest + Pair{-whole * part};
    }
    return {static_cast<int>(whole), rest};
}

/// A number as a pair times a power of two.
struct Scaled {
    Pair value;
    int power = 0;
};

constexpr Pair ln_2{0x1.62e42fefa39efp-1, 0x1.abc9e3b39803fp-56};

Scaled Exponential(Pair exponent) {
    const double whole = std::floor(exponent.high / ln_2.high + 0.5);
    const Pair rest = exponent + -(Pair{whole} * ln_2);
    constexpr double sixteenth = 0.0625;
    constexpr int doublings = 4; // which the value follows as squares
    Pair value = Series({rest.high * sixteenth, rest.low * sixteenth}, 0, 1);
    for (int doubling = 0; doubling < doublings; ++doubling) {
        value = value * value;
    }
    return {value, static_cast<int>(whole)};
}

Pair Logarithm(double number) {
    int power = 0;
    const double fraction = std::frexp(number, &power);
    // The library's is right to some digits, which are doubled here.
    const double first = std::log(fraction);
    const Scaled back = Exponential({-first});
    const Pair scaled{std::ldexp(back.value.high, back.power),
                      std::ldexp(back.value.low, back.power)};
    const Pair correction = Pair{fraction} * scaled + Pair{-1};
    return Pair{static_cast<double>(power)} * ln_2 + (Pair{first} + correction);
}

double Exponential_Of(Pair exponent) {
    constexpr double beyond = 800; // above and below all doubles
    if (!(std::abs(exponent.high) < beyond)) {
        return exponent.high > 0 ? std::numeric_limits<double>::infinity() : 0;
    }
    const Scaled result = Exponential(exponent);
    return std::ldexp(result.value.high, result.power);
}

} // namespace

Circle_Figures Exact_Circle(double radians) {
    constexpr double most = 1'000'000; // the parts of a quarter turn reach that far
    if (!(std::abs(radians) < most)) {
        return {std::sin(radians), std::cos(radians), std::tan(radians)};
    }
    const auto [whole, rest] = Turns_In(radians);
    const Pair square = -(rest * rest);
    Pair sine = rest * Series(square, 1, 2);
    Pair cosine = Series(square, 0, 2);
    const auto quarter = static_cast<unsigned>(whole) % 4;
    if (quarter % 2 == 1) {
        const Pair old_sine = sine;
        sine = cosine;
        cosine = -old_sine;
    }
    if (quarter >= 2) {
        sine = -sine;
        cosine = -cosine;
    }
    return {sine.high, cosine.high, (sine / cosine).high};
}

double Exact_Power(double base, double exponent) {
    constexpr double square_root = 0.5;
    if (exponent == square_root) {
        return std::sqrt(base);
    }
    const Pair logarithm = Logarithm(base);
    constexpr double beyond = 800;
    const double rough = logarithm.high * exponent;
    return std::abs(rough) < beyond ? Exponential_Of(logarithm * Pair{exponent})
                                    : Exponential_Of({rough});
}

} // namespace kestrum
