#include "application/variables.h"

#include "base/text.h"
#include "core/field_handlers.h"
#include "screens/tips.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace kestrum {

namespace {

struct Variable {
    std::string_view name;
    Variable_Value (*read)(const Session& session);
};

/// A number that is a member of the session.
template <auto member>
Variable_Value Number(const Session& session) {
    return static_cast<double>(session.*member);
}

template <auto member>
Variable_Value Text(const Session& session) {
    return session.*member;
}

template <const std::string_view& constant>
Variable_Value Fixed(const Session& /*session*/) {
    return std::string(constant);
}

/// The same of the graph's state.
template <auto member>
Variable_Value Graph(const Session& session) {
    return static_cast<double>(session.graph.*member);
}

template <Flow_Totals::Sum Flow_Totals::*sum>
Variable_Value Total(const Session& session) {
    return (session.flow_totals.*sum).total.Value();
}

template <Flow_Totals::Sum Flow_Totals::*sum>
Variable_Value Count(const Session& session) {
    return double((session.flow_totals.*sum).count);
}

template <Real Curtain_Areas::*area>
Variable_Value Curtain(const Session& session) {
    return (session.curtain_areas.*area).Value();
}

/// Samples of a curve of one test.
template <int Graph_State::*point_count>
Variable_Value Samples(const Session& session) {
    return double(session.graph.*point_count * samples_per_point);
}

/// One byte of the colour of the curve that was drawn last.
template <unsigned shift>
Variable_Value Curve_Colour(const Session& session) {
    constexpr unsigned byte = 0xFF;
    return double(static_cast<unsigned>(session.graph.curve_colour) >> shift & byte);
}

/// The same of what the prints share.
template <auto member>
Variable_Value Print_Number(const Session& session) {
    return static_cast<double>(session.print.*member);
}

/// Scratch of other days: counters are locals now, and work texts are empty between operations.
Variable_Value Zero(const Session& /*session*/) {
    return 0.0;
}

Variable_Value Empty(const Session& /*session*/) {
    return std::string();
}

template <Seat_Geometry Shared_State::*seat, Real Seat_Geometry::*member>
Variable_Value Seat(const Session& session) {
    return (session.*seat.*member).Value();
}

using S = Session;
using G = Seat_Geometry;

const auto variables = std::to_array<Variable>({
    {"File_Path", Text<&S::file_path>},
    {"File_Number", Zero},
    {"Records_Read", Number<&S::records_read>},
    {"Records_Written", Number<&S::records_written>},
    {"Work_Text", Text<&S::work_text>},
    {"Report_Line", Empty},
    {"Find_Pos", Zero},
    {"Box_Answer", Number<&S::box_answer>},
    {"Row_Counter", Zero},
    {"Cr_Lf", Fixed<cr_lf>},
    {"Msg_Blank", Fixed<msg_blank>},
    {"Msg_Zero", Fixed<msg_zero>},
    {"Title_Text", Text<&S::title_text>},
    {"Intake_Valves", Number<&S::intake_valves>},
    {"Exhaust_Valves", Number<&S::exhaust_valves>},
    {"Comma_Mode",
     [](const S& session) -> Variable_Value { return double(session.numbers.comma_mode); }},
    {"Locale_Point",
     [](const S& session) -> Variable_Value { return session.numbers.locale_point; }},
    {"Mouse_Down", Number<&S::mouse_down>},
    {"Align_Mode",
     [](const S& session) -> Variable_Value { return double(session.numbers.align_mode); }},
    {"Full_Screen_Mode", Number<&S::full_screen_mode>},
    {"Aspect_Free", Number<&S::aspect_free>},
    {"Screen_Dpi", Number<&S::screen_dpi>},
    {"Scale_X", Number<&S::scale_x>},
    {"Scale_Y", Number<&S::scale_y>},
    {"Scale_Font", Number<&S::scale_font>},
    {"Show_Quarter_Diameter_Line", Number<&S::show_quarter_diameter_line>},
    {"Auto_X_Lines", Number<&S::auto_x_lines>},
    {"Show_Data_Points", Number<&S::show_data_points>},
    {"Show_Big", Number<&S::show_big>},
    {"Canvas_X_Size", Number<&S::canvas_x_size>},
    {"Canvas_Y_Size", Number<&S::canvas_y_size>},
    {"Grid_On", Number<&S::grid_on>},
    {"Grid_Colour", Number<&S::grid_colour>},
    {"Font_Red", Number<&S::font_red>},
    {"Font_Green", Number<&S::font_green>},
    {"Font_Blue", Number<&S::font_blue>},
    {"Y_Line_Count", Number<&S::y_line_count>},
    {"X_Line_Count", Number<&S::x_line_count>},
    {"Draw_Line_Color", Number<&S::draw_line_color>},
    {"Draw_Line_Width", Number<&S::draw_line_width>},
    {"Saved_Draw_Width", Graph<&Graph_State::saved_draw_width>},
    {"Picked_Color", Text<&S::picked_color>},
    {"Compare_From_Label", Text<&S::compare_from_label>},
    {"Compare_To_Label", Text<&S::compare_to_label>},
    {"Graph_Plus_Count", Graph<&Graph_State::plus_count>},
    {"From_Point_Count", Graph<&Graph_State::from_point_count>},
    {"To_Point_Count", Graph<&Graph_State::to_point_count>},
    {"Graph_Tension", Graph<&Graph_State::tension>},
    {"Curve_Tension", Graph<&Graph_State::tension>}, // every curve is drawn with it
    {"Curve_Sample_Count_From", Samples<&Graph_State::from_point_count>},
    {"Curve_Sample_Count_To", Samples<&Graph_State::to_point_count>},
    {"Curve_Point_Count", Graph<&Graph_State::curve_point_count>},
    {"Curve_Red", Curve_Colour<16>},
    {"Curve_Green", Curve_Colour<8>},
    {"Curve_Blue", Curve_Colour<0>},
    {"X_Low", Graph<&Graph_State::x_low>},
    {"X_High", Graph<&Graph_State::x_high>},
    {"Y_Low", Graph<&Graph_State::y_low>},
    {"Y_High", Graph<&Graph_State::y_high>},
    {"X_Per_Unit", Graph<&Graph_State::x_per_unit>},
    {"Y_Per_Unit", Graph<&Graph_State::y_per_unit>},
    {"Legend_Offset", Graph<&Graph_State::legend_offset>},
    {"Plot_Left", Graph<&Graph_State::plot_left>},
    {"Plot_Right", Graph<&Graph_State::plot_right>},
    {"Plot_Bottom", Graph<&Graph_State::plot_bottom>},
    {"Drawing_Now", Graph<&Graph_State::drawing_now>},
    {"Logo_Moving", Graph<&Graph_State::logo_moving>},
    {"Thick_Lines", Zero},
    {"Logo_On", Number<&S::logo_on>},
    {"Logo_File", Text<&S::logo_file>},
    {"Capture_Source", Text<&S::capture_source>},
    {"Printer_Name",
     [](const S& session) -> Variable_Value { return session.print.chosen_printer; }},
    {"Printer_Item", Empty},
    {"Print_Row_Y", Print_Number<&Print_State::row_y>},
    {"Text_Width", Print_Number<&Print_State::text_width>},
    {"Flow_Filter_Index", Number<&S::flow_filter_index>},
    {"Tip_Calculate", Fixed<tips::calculate>},
    {"Tip_Exit_Sheet", Fixed<tips::exit_sheet>},
    {"Tip_Load", Fixed<tips::load>},
    {"Tip_Save", Fixed<tips::save>},
    {"Tip_Area_Ratio_In", Fixed<tips::area_ratio_in>},
    {"Tip_Area_Ratio_Ex", Fixed<tips::area_ratio_ex>},
    {"Tip_Port_In", Fixed<tips::port_in>},
    {"Tip_Port_Ex", Fixed<tips::port_ex>},
    {"Tip_Corner_In_Top", Fixed<tips::corner_in_top>},
    {"Tip_Corner_In_Bottom", Fixed<tips::corner_in_bottom>},
    {"Tip_Corner_Ex_Top", Fixed<tips::corner_ex_top>},
    {"Tip_Corner_Ex_Bottom", Fixed<tips::corner_ex_bottom>},
    {"Tip_Sort", Fixed<tips::sort>},
    {"Tip_Prt_Sc", Fixed<tips::print_screen>},
    {"Seat_Valve_Dia_In", Seat<&S::intake_seat, &G::valve_diameter>},
    {"Seat_Angle_In", Seat<&S::intake_seat, &G::angle>},
    {"Seat_Width_In", Seat<&S::intake_seat, &G::width>},
    {"Seat_Sin_In", Seat<&S::intake_seat, &G::sine>},
    {"Seat_Cos_In", Seat<&S::intake_seat, &G::cosine>},
    {"Seat_Tan_In", Seat<&S::intake_seat, &G::tangent>},
    {"Seat_Radial_In", Seat<&S::intake_seat, &G::radial>},
    {"Throat_Limit_In", Seat<&S::intake_seat, &G::throat_limit>},
    {"Seat_Valve_Dia_Ex", Seat<&S::exhaust_seat, &G::valve_diameter>},
    {"Seat_Angle_Ex", Seat<&S::exhaust_seat, &G::angle>},
    {"Seat_Width_Ex", Seat<&S::exhaust_seat, &G::width>},
    {"Seat_Sin_Ex", Seat<&S::exhaust_seat, &G::sine>},
    {"Seat_Cos_Ex", Seat<&S::exhaust_seat, &G::cosine>},
    {"Seat_Tan_Ex", Seat<&S::exhaust_seat, &G::tangent>},
    {"Seat_Radial_Ex", Seat<&S::exhaust_seat, &G::radial>},
    {"Throat_Limit_Ex", Seat<&S::exhaust_seat, &G::throat_limit>},
    {"Sum_Ratio_To_Max", Total<&Flow_Totals::ratio_to_max>},
    {"Count_Ratio_To_Max", Count<&Flow_Totals::ratio_to_max>},
    {"Sum_Ratio_All", Total<&Flow_Totals::ratio_all>},
    {"Count_Ratio_All", Count<&Flow_Totals::ratio_all>},
    {"Total_Flow_In", Total<&Flow_Totals::intake_flow>},
    {"Count_Flow_In", Count<&Flow_Totals::intake_flow>},
    {"Total_Flow_Ex", Total<&Flow_Totals::exhaust_flow>},
    {"Count_Flow_Ex", Count<&Flow_Totals::exhaust_flow>},
    {"Curtain_Low", Curtain<&Curtain_Areas::low>},
    {"Slant_Length", Curtain<&Curtain_Areas::slant_length>},
    {"Curtain_High", Curtain<&Curtain_Areas::high>},
    {"Effective_Area", Curtain<&Curtain_Areas::effective>},
});

/// A member of an array. Raises 9 for an index outside of it.
template <typename Members>
const auto& Member_Of(const Members& members, std::size_t index) {
    if (index >= members.size()) {
        Fail(error::subscript_out_of_range);
    }
    return members[index];
}

template <auto array>
Variable_Value Member(const Session& session, std::size_t index) {
    return Member_Of(session.graph.*array, index);
}

Variable_Value Print_Tab(const Session& session, std::size_t index) {
    return double(Member_Of(session.print.tab, index));
}

/// The arrays, as "From_X(3)".
struct Array_Variable {
    std::string_view name;
    Variable_Value (*read)(const Session& session, std::size_t index);
};

constexpr std::array<Array_Variable, 9> array_variables{{
    {"From_X", Member<&Graph_State::from_x>},
    {"To_X", Member<&Graph_State::to_x>},
    {"From_Intake", Member<&Graph_State::from_intake>},
    {"From_Exhaust", Member<&Graph_State::from_exhaust>},
    {"To_Intake", Member<&Graph_State::to_intake>},
    {"To_Exhaust", Member<&Graph_State::to_exhaust>},
    {"X_Label_Text", Member<&Graph_State::x_label_text>},
    {"Y_Label_Text", Member<&Graph_State::y_label_text>},
    {"Print_Tab", Print_Tab},
}};

std::optional<Variable_Value> Array_Member(const Session& session, std::string_view name) {
    const std::size_t bracket = name.find('(');
    const auto* const found =
        std::ranges::find(array_variables, name.substr(0, bracket), &Array_Variable::name);
    if (found == array_variables.end() || bracket == std::string_view::npos) {
        return std::nullopt;
    }
    std::size_t index = 0;
    const auto [end, failure] =
        std::from_chars(name.data() + bracket + 1, name.data() + name.size(), index);
    if (failure != std::errc() || std::string_view(end, name.data() + name.size()) != ")") {
        return std::nullopt;
    }
    return found->read(session, index);
}

} // namespace

std::optional<Variable_Value> Variable_Named(const Session& session, std::string_view name) {
    const auto* const found = std::ranges::find(variables, name, &Variable::name);
    if (found == variables.end()) {
        return Array_Member(session, name);
    }
    return found->read(session);
}

} // namespace kestrum
