#include "base/real.h"

namespace kestrum {

Real Power(Real base, Real exponent) {
    const bool fractional = std::trunc(exponent.Value()) != exponent.Value();
    if (base < 0 && fractional) {
        Fail(error::invalid_call);
    }
    if (base == 0 && exponent < 0) {
        Fail(error::division_by_zero);
    }
    const double result = std::pow(base.Value(), exponent.Value());
    if (!std::isfinite(result)) {
        Fail(error::overflow);
    }
    return {result};
}

} // namespace kestrum
