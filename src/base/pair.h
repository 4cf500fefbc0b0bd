#pragma once

namespace kestrum {

/// A number of twice the digits of a double: the sum of a double and what it lacks.
struct Pair {
    double high = 0;
    double low = 0;
};

/// The exact sum of two doubles of any size.
constexpr Pair Exact_Sum(double a, double b) {
    const double sum = a + b;
    const double part = sum - a;
    return {sum, (a - (sum - part)) + (b - part)};
}

/// The same when `a` is not the smaller one.
constexpr Pair Quick_Sum(double a, double b) {
    const double sum = a + b;
    return {sum, b - (sum - a)};
}

/// The two halves of the digits of a double.
constexpr Pair Halves(double a) {
    constexpr double splitter = 134217729; // 2^27 + 1
    const double wide = splitter * a;
    const double high = wide - (wide - a);
    return {high, a - high};
}

/// The exact product of two doubles; neither is above 2^990.
constexpr Pair Exact_Product(double a, double b) {
    const double product = a * b;
    const Pair x = Halves(a);
    const Pair y = Halves(b);
    return {product,
            ((x.high * y.high - product) + x.high * y.low + x.low * y.high) + x.low * y.low};
}

constexpr Pair operator+(Pair a, Pair b) {
    const Pair high = Exact_Sum(a.high, b.high);
    const Pair low = Exact_Sum(a.low, b.low);
    const Pair sum = Quick_Sum(high.high, high.low + low.high);
    return Quick_Sum(sum.high, sum.low + low.low);
}

constexpr Pair operator-(Pair a) {
    return {-a.high, -a.low};
}

constexpr Pair operator*(Pair a, Pair b) {
    const Pair product = Exact_Product(a.high, b.high);
    return Quick_Sum(product.high, product.low + (a.high * b.low + a.low * b.high));
}

constexpr Pair operator/(Pair a, Pair b) {
    const double first = a.high / b.high;
    const Pair rest = a + -(b * Pair{first});
    const double second = rest.high / b.high;
    const Pair last = rest + -(b * Pair{second});
    return Quick_Sum(first, second) + Pair{last.high / b.high};
}

} // namespace kestrum
