#include "base/real.h"

#include "base/exact_functions.h"

namespace kestrum {

Real Power(Real base, Real exponent) {
    const bool fractional = std::trunc(exponent.Value()) != exponent.Value();
    if (base < 0 && fractional) {
        Fail(error::invalid_call);
    }
    if (base == 0 && exponent < 0) {
        Fail(error::division_by_zero);
    }
    const double result = base > 0 ? Exact_Power(base.Value(), exponent.Value())
                                   : std::pow(base.Value(), exponent.Value());
    if (!std::isfinite(result)) {
        Fail(error::overflow);
    }
    return {result};
}

} // namespace kestrum
