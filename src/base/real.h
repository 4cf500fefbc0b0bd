#pragma once

#include "base/run_time_error.h"

#include <cmath>
#include <compare>

namespace kestrum {

/// A double whose operations fail the way the system fails, so that a formula reads as on paper
/// and no step can forget its check. Raises 6 (overflow, and 0 / 0), 11 (division by zero) and 5
/// (no real result). No infinity and no NaN comes out of it.
class Real {
public:
    constexpr Real() = default;

    constexpr Real(double value) : value_(value) {} // NOLINT(*-explicit-*): constants stand bare

    [[nodiscard]] constexpr double Value() const { return value_; }

    friend Real operator+(Real a, Real b) { return Checked(a.value_ + b.value_); }

    friend Real operator-(Real a, Real b) { return Checked(a.value_ - b.value_); }

    friend Real operator*(Real a, Real b) { return Checked(a.value_ * b.value_); }

    friend Real operator-(Real a) { return {-a.value_}; }

    friend Real operator/(Real a, Real b) {
        if (b.value_ == 0) {
            Fail(a.value_ == 0 ? error::overflow : error::division_by_zero);
        }
        return Checked(a.value_ / b.value_);
    }

    Real& operator+=(Real b) { return *this = *this + b; }

    friend constexpr bool operator==(Real a, Real b) { return a.value_ == b.value_; }

    friend constexpr std::partial_ordering operator<=>(Real a, Real b) {
        return a.value_ <=> b.value_;
    }

private:
    static Real Checked(double result) {
        if (!std::isfinite(result)) {
            Fail(error::overflow);
        }
        return {result};
    }

    double value_ = 0;
};

[[nodiscard]] inline Real Squared(Real a) {
    return a * a;
}

/// A power. Raises 5 for a negative base under a fractional exponent, 11 for 0 under a negative
/// exponent, 6 beyond double.
[[nodiscard]] Real Power(Real base, Real exponent);

} // namespace kestrum
