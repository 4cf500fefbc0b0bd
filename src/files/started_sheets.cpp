#include "files/started_sheets.h"

#include "engine/unit_conversion.h"
#include "sheet/flow_calculation.h"

namespace kestrum {

Flow_Sheet& Started_Sheets(Session& session, int count, bool metric) {
    for (int number = 1; number <= count; ++number) {
        Calc_Flow_Test(session, session.Sheet(number));
    }
    Set_Metric(session, metric);
    return session.Sheet(1);
}

} // namespace kestrum
