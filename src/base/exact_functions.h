#pragma once

namespace kestrum {

// Functions whose figures fields hang on. Each gives the double that is nearest to the true value,
// so that every system, library and processor shows the same digits; the libraries of C are a last
// bit off now and then, each at places of its own.

struct Circle_Figures {
    double sine;
    double cosine;
    double tangent;
};

/// Of an angle in radians; above a million of them as the library of C has it.
[[nodiscard]] Circle_Figures Exact_Circle(double radians);

/// A base above zero to any power; infinite above the range of a double.
[[nodiscard]] double Exact_Power(double base, double exponent);

} // namespace kestrum
