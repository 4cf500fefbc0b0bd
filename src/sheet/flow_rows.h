#pragma once

#include "sheet/flow_units.h"

namespace kestrum {

/// What the rows of one calculation add up to.
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

/// The derived figures of one lift row, in their order. Raises the error of the first that fails.
void Calc_Lift_Row(const Flow_Context& context, int row, Flow_Totals& totals);

/// The ratios and averages behind the rows. Raises 6 when no row has flow.
void Calc_Averages(const Flow_Context& context, const Flow_Totals& totals);

} // namespace kestrum
