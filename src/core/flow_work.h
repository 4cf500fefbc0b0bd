#pragma once

#include "base/real.h"

namespace kestrum {

/// What the rows of the last calculation of a sheet added up to. One set serves all sheets.
struct Flow_Totals {
    struct Sum {
        Real total = 0;
        int count = 0;

        void Add(Real value) {
            total += value;
            ++count;
        }
    };

    Sum intake_flow; // every flow is added, those that are not 0 are counted
    Sum exhaust_flow;
    Sum ratio_to_max; // exhaust over intake flow, lifts up to Max Lift
    Sum ratio_all;    // and over all lifts
};

/// The areas of the last valve lift that was looked at, of either side, in square inches.
struct Curtain_Areas {
    Real low;
    Real slant_length; // in inches
    Real high;
    Real effective;
};

} // namespace kestrum
