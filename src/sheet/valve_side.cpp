#include "sheet/valve_side.h"

#include "sheet/sheet_state.h"

namespace kestrum {

namespace {

Valve_Cells Cells_Of(const Flow_Sheet& sheet, Side side) {
    using enum Cell_Role;
    const auto cell = [&](Cell_Role role) -> Control& { return sheet.Cell(side, role); };
    return {.port_volume = cell(Port_Volume),
            .port_length = cell(Port_Length),
            .mean_area = cell(Mean_Area),
            .valve_diameter = cell(Valve_Diameter),
            .stem_diameter = cell(Stem_Diameter),
            .valve_area = cell(Valve_Area),
            .throat_diameter = cell(Throat_Diameter),
            .throat_area = cell(Throat_Area),
            .throat_ratio = cell(Throat_Ratio),
            .bore_ratio = cell(Bore_Ratio),
            .quarter_diameter = cell(Quarter_Diameter),
            .seat_angle = cell(Seat_Angle),
            .seat_width = cell(Seat_Width),
            .width = cell(Port_Width),
            .height = cell(Port_Height),
            .top_corner = cell(Top_Corner),
            .bottom_corner = cell(Bottom_Corner),
            .top_loss = cell(Top_Loss),
            .bottom_loss = cell(Bottom_Loss),
            .port_area = cell(Port_Area),
            .area_ratio = cell(Area_Ratio),
            // The exhaust looks at its corner, not at its valve area: files and figures of years
            // rest on it.
            .area_ratio_guard = cell(side == Side::Intake ? Valve_Area : Bottom_Corner),
            .total_flow = cell(Total_Flow),
            .mean_flow = cell(Mean_Flow)};
}

Valve_Columns Columns_Of(const Flow_Sheet& sheet, Side side) {
    using enum Cell_Role;
    const auto column = [&](Cell_Role role) -> const Control_Array& {
        return sheet.Column(side, role);
    };
    return {.observed = column(Observed_Flow),
            .depression = column(Depression),
            .corrected = column(Corrected_Flow),
            .effective_lift = column(Effective_Lift),
            .flow_per_area = column(Flow_Per_Area),
            .discharge = column(Discharge),
            .port_velocity = column(Port_Velocity),
            .effective_area = column(Effective_Area),
            .effective_velocity = column(Effective_Velocity),
            .effective_discharge = column(Effective_Discharge),
            .lift_ratio = column(Lift_Ratio)};
}

} // namespace

Valve_Side Valve_Side_Of(Session& session, const Flow_Sheet& sheet, Side side) {
    const bool intake = side == Side::Intake;
    Sheet_State& state = Sheets_Of(session);
    return {Cells_Of(sheet, side), Columns_Of(sheet, side),
            intake ? state.intake_valves : state.exhaust_valves,
            intake ? state.intake_seat : state.exhaust_seat};
}

} // namespace kestrum
