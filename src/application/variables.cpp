#include "application/variables.h"

#include "base/text.h"
#include "core/field_handlers.h"
#include "graph/graph_state.h"
#include "output/print_state.h"
#include "output/screen_capture.h"
#include "output/text_report.h"
#include "screens/tips.h"
#include "sheet/sheet_state.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <type_traits>

namespace kestrum {

namespace {

struct Variable {
    std::string_view name;
    Variable_Value (*read)(const Session& session);
};

template <typename Value>
Variable_Value As_Variable(const Value& value) {
    if constexpr (std::is_arithmetic_v<Value> || std::is_enum_v<Value>) {
        return static_cast<double>(value);
    } else if constexpr (std::is_same_v<Value, Real>) {
        return value.Value();
    } else {
        return value;
    }
}

/// What stands at the end of a path of members.
template <typename Value>
const Value& Followed(const Value& value) {
    return value;
}

template <typename Value, typename Member, typename... Members>
const auto& Followed(const Value& value, Member member, Members... members) {
    return Followed(value.*member, members...);
}

/// A variable of the session.
template <auto... path>
Variable_Value Own(const Session& session) {
    return As_Variable(Followed(session, path...));
}

/// One of the state of a wing.
template <typename State, auto... path>
Variable_Value Of(const Session& session) {
    return As_Variable(Followed(session.wings.Of<State>(), path...));
}

template <const std::string_view& constant>
Variable_Value Fixed(const Session& /*session*/) {
    return std::string(constant);
}

/// Samples of a curve of one test.
template <int Graph_State::*point_count>
Variable_Value Samples(const Session& session) {
    return double(Graph_Of(session).*point_count * samples_per_point);
}

/// One byte of the colour of the curve that was drawn last.
template <unsigned shift>
Variable_Value Curve_Colour(const Session& session) {
    constexpr unsigned byte = 0xFF;
    return double(static_cast<unsigned>(Graph_Of(session).curve_colour) >> shift & byte);
}

/// The canvas begins with white letters.
Variable_Value Full_Byte(const Session& /*session*/) {
    return 255.0;
}

/// Scratch of other days: counters are locals now, and work texts are empty between operations.
Variable_Value Zero(const Session& /*session*/) {
    return 0.0;
}

Variable_Value Empty(const Session& /*session*/) {
    return std::string();
}

using S = Session;
using G = Graph_State;
using T = Sheet_State;

const auto variables = std::to_array<Variable>({
    {"File_Path", Own<&S::file, &File_Transfer::path>},
    {"File_Number", Zero},
    {"Records_Read", Own<&S::file, &File_Transfer::records_read>},
    {"Records_Written", Own<&S::file, &File_Transfer::records_written>},
    {"Work_Text", Of<Report_State, &Report_State::text>},
    {"Report_Line", Empty},
    {"Find_Pos", Zero},
    {"Box_Answer", Own<&S::answers, &Dialog_Answers::box>},
    {"Row_Counter", Zero},
    {"Cr_Lf", Fixed<cr_lf>},
    {"Msg_Blank", Fixed<msg_blank>},
    {"Msg_Zero", Fixed<msg_zero>},
    {"Title_Text", Own<&S::title_text>},
    {"Intake_Valves", Of<T, &T::intake_valves>},
    {"Exhaust_Valves", Of<T, &T::exhaust_valves>},
    {"Comma_Mode", Own<&S::numbers, &Numeric_Text::comma_mode>},
    {"Locale_Point", Own<&S::numbers, &Numeric_Text::locale_point>},
    {"Mouse_Down", Own<&S::mouse_down>},
    {"Align_Mode", Own<&S::numbers, &Numeric_Text::align_mode>},
    {"Full_Screen_Mode", Own<&S::display, &Display_Scale::full_screen_mode>},
    {"Aspect_Free", Own<&S::display, &Display_Scale::aspect_free>},
    {"Screen_Dpi", Own<&S::display, &Display_Scale::dpi>},
    {"Target_Width", Own<&S::display, &Display_Scale::target_width>},
    {"Target_Height", Own<&S::display, &Display_Scale::target_height>},
    {"Scale_X", Own<&S::display, &Display_Scale::scale_x>},
    {"Scale_Y", Own<&S::display, &Display_Scale::scale_y>},
    {"Scale_Font", Own<&S::display, &Display_Scale::scale_font>},
    {"Show_Quarter_Diameter_Line", Own<&S::settings, &Settings::show_quarter_diameter_line>},
    {"Auto_X_Lines", Own<&S::settings, &Settings::auto_x_lines>},
    {"Show_Data_Points", Own<&S::settings, &Settings::show_data_points>},
    {"Show_Big", Own<&S::settings, &Settings::show_big>},
    {"Canvas_X_Size", Own<&S::display, &Display_Scale::canvas_x_size>},
    {"Canvas_Y_Size", Own<&S::display, &Display_Scale::canvas_y_size>},
    {"Grid_On", Own<&S::settings, &Settings::grid, &Grid_Setting::on>},
    {"Grid_Colour", Own<&S::settings, &Settings::grid, &Grid_Setting::colour>},
    {"Font_Red", Full_Byte},
    {"Font_Green", Full_Byte},
    {"Font_Blue", Full_Byte},
    {"Y_Line_Count", Of<G, &G::y_line_count>},
    {"X_Line_Count", Of<G, &G::x_line_count>},
    {"Draw_Line_Color", Own<&S::settings, &Settings::draw_line_color>},
    {"Draw_Line_Width", Own<&S::settings, &Settings::draw_line_width>},
    {"Saved_Draw_Width", Of<G, &G::saved_draw_width>},
    {"Picked_Color", Own<&S::answers, &Dialog_Answers::colour>},
    {"Font_Name", Own<&S::answers, &Dialog_Answers::font, &Font_Answer::name>},
    {"Font_Size", Own<&S::answers, &Dialog_Answers::font, &Font_Answer::size>},
    {"Font_Bold", Own<&S::answers, &Dialog_Answers::font, &Font_Answer::bold>},
    {"Font_Italic", Own<&S::answers, &Dialog_Answers::font, &Font_Answer::italic>},
    {"Font_Cancelled", Own<&S::answers, &Dialog_Answers::font, &Font_Answer::cancelled>},
    {"Compare_From_Label", Of<G, &G::from_label>},
    {"Compare_To_Label", Of<G, &G::to_label>},
    {"Graph_Plus_Count", Of<G, &G::plus_count>},
    {"From_Point_Count", Of<G, &G::from_point_count>},
    {"To_Point_Count", Of<G, &G::to_point_count>},
    {"Graph_Tension", Of<G, &G::tension>},
    {"Curve_Tension", Of<G, &G::tension>}, // every curve is drawn with it
    {"Curve_Sample_Count_From", Samples<&Graph_State::from_point_count>},
    {"Curve_Sample_Count_To", Samples<&Graph_State::to_point_count>},
    {"Curve_Point_Count", Of<G, &G::curve_point_count>},
    {"Curve_Red", Curve_Colour<16>},
    {"Curve_Green", Curve_Colour<8>},
    {"Curve_Blue", Curve_Colour<0>},
    {"X_Low", Of<G, &G::x_low>},
    {"X_High", Of<G, &G::x_high>},
    {"Y_Low", Of<G, &G::y_low>},
    {"Y_High", Of<G, &G::y_high>},
    {"X_Per_Unit", Of<G, &G::x_per_unit>},
    {"Y_Per_Unit", Of<G, &G::y_per_unit>},
    {"Legend_Offset", Of<G, &G::legend_offset>},
    {"Plot_Left", Of<G, &G::plot_left>},
    {"Plot_Right", Of<G, &G::plot_right>},
    {"Plot_Bottom", Of<G, &G::plot_bottom>},
    {"Drawing_Now", Of<G, &G::drawing_now>},
    {"Logo_Moving", Of<G, &G::logo_moving>},
    {"Thick_Lines", Zero},
    {"Logo_On", Own<&S::settings, &Settings::logo, &Logo_Setting::on>},
    {"Logo_File", Own<&S::settings, &Settings::logo, &Logo_Setting::file>},
    {"Capture_Source", Of<Capture_State, &Capture_State::source>},
    {"Printer_Name", Of<Print_State, &Print_State::chosen_printer>},
    {"Printer_Item", Empty},
    {"Print_Row_Y", Of<Print_State, &Print_State::row_y>},
    {"Text_Width", Of<Print_State, &Print_State::text_width>},
    {"Flow_Filter_Index", Own<&S::settings, &Settings::flow_filter_index>},
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
    {"Seat_Valve_Dia_In", Of<T, &T::intake_seat, &Seat_Geometry::valve_diameter>},
    {"Seat_Angle_In", Of<T, &T::intake_seat, &Seat_Geometry::angle>},
    {"Seat_Width_In", Of<T, &T::intake_seat, &Seat_Geometry::width>},
    {"Seat_Sin_In", Of<T, &T::intake_seat, &Seat_Geometry::sine>},
    {"Seat_Cos_In", Of<T, &T::intake_seat, &Seat_Geometry::cosine>},
    {"Seat_Tan_In", Of<T, &T::intake_seat, &Seat_Geometry::tangent>},
    {"Seat_Radial_In", Of<T, &T::intake_seat, &Seat_Geometry::radial>},
    {"Throat_Limit_In", Of<T, &T::intake_seat, &Seat_Geometry::throat_limit>},
    {"Seat_Valve_Dia_Ex", Of<T, &T::exhaust_seat, &Seat_Geometry::valve_diameter>},
    {"Seat_Angle_Ex", Of<T, &T::exhaust_seat, &Seat_Geometry::angle>},
    {"Seat_Width_Ex", Of<T, &T::exhaust_seat, &Seat_Geometry::width>},
    {"Seat_Sin_Ex", Of<T, &T::exhaust_seat, &Seat_Geometry::sine>},
    {"Seat_Cos_Ex", Of<T, &T::exhaust_seat, &Seat_Geometry::cosine>},
    {"Seat_Tan_Ex", Of<T, &T::exhaust_seat, &Seat_Geometry::tangent>},
    {"Seat_Radial_Ex", Of<T, &T::exhaust_seat, &Seat_Geometry::radial>},
    {"Throat_Limit_Ex", Of<T, &T::exhaust_seat, &Seat_Geometry::throat_limit>},
    {"Sum_Ratio_To_Max",
     Of<T, &T::flow_totals, &Flow_Totals::ratio_to_max, &Flow_Totals::Sum::total>},
    {"Count_Ratio_To_Max",
     Of<T, &T::flow_totals, &Flow_Totals::ratio_to_max, &Flow_Totals::Sum::count>},
    {"Sum_Ratio_All", Of<T, &T::flow_totals, &Flow_Totals::ratio_all, &Flow_Totals::Sum::total>},
    {"Count_Ratio_All", Of<T, &T::flow_totals, &Flow_Totals::ratio_all, &Flow_Totals::Sum::count>},
    {"Total_Flow_In", Of<T, &T::flow_totals, &Flow_Totals::intake_flow, &Flow_Totals::Sum::total>},
    {"Count_Flow_In", Of<T, &T::flow_totals, &Flow_Totals::intake_flow, &Flow_Totals::Sum::count>},
    {"Total_Flow_Ex", Of<T, &T::flow_totals, &Flow_Totals::exhaust_flow, &Flow_Totals::Sum::total>},
    {"Count_Flow_Ex", Of<T, &T::flow_totals, &Flow_Totals::exhaust_flow, &Flow_Totals::Sum::count>},
    {"Curtain_Low", Of<T, &T::curtain_areas, &Curtain_Areas::low>},
    {"Slant_Length", Of<T, &T::curtain_areas, &Curtain_Areas::slant_length>},
    {"Curtain_High", Of<T, &T::curtain_areas, &Curtain_Areas::high>},
    {"Effective_Area", Of<T, &T::curtain_areas, &Curtain_Areas::effective>},
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
    return Member_Of(Graph_Of(session).*array, index);
}

Variable_Value Print_Tab(const Session& session, std::size_t index) {
    return double(Member_Of(Print_Of(session).tab, index));
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
