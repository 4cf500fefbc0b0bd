#include "screens/graph_screen.h"

#include <array>

namespace kestrum {

namespace {

using enum Control_Kind;

constexpr std::string_view logo_is_off = "Logo -- Is OFF";

constexpr auto graph_table = std::to_array<Control_Entry>({
    Lone(Picture, "Picture1", "").Coloured(0xFFFFFF).At(0, 0, 10, 28),
    Lone(Picture, "Picture2", "").Hidden(), // lies over the canvas
    Lone(Label, "Label2", "Mouse Position on Graph").At(10, 0, 4),
    Lone(Label, "Label18", "").At(10, 1),
    Lone(Label, "Label4", "<--- ").At(11, 1, 3, 2),
    Lone(Label, "Label19", "").At(10, 3),
    Lone(Label, "Label3", "<---").At(11, 3, 3, 2),
    // The axis texts stand on the canvas itself.
    Lone(Label, "Label8", ""),
    Lone(Label, "Label9", ""),
    Lone(Check_Box, "Check1", "Draw On Graph Using Mouse").At(10, 6, 4),
    Lone(Label, "Label10", "Draw Line Width").At(10, 7, 2),
    Lone(Combo_Box, "Combo1", "3").At(12, 7, 2),
    Push_Button("Command4", "Select Draw Line Color").At(10, 9, 4, 2),
    Push_Button("Command3", "&Save Graph in BMP Format").At(10, 11, 4, 2),
    Push_Button("Command2", "Print Graph").At(10, 13, 4, 2),
    Push_Button("Command5", "PrtSc as &JPG").At(10, 15, 4, 2),
    Push_Button("Logo", logo_is_off).At(10, 17, 4, 2),
    Push_Button("Command1", "&Quit").At(10, 19, 4, 2),
});

} // namespace

Graph_Screen::Graph_Screen() : Screen({Screen_Kind::Graph}, graph_table) {}

void Graph_Screen::Show_Logo(const Extent& size) const {
    Picture2.Set_Extent(size);
    Picture2.Set_Visible(true);
    Logo.Set_Text("Logo -- Is ON");
}

void Graph_Screen::Hide_Logo() const {
    Picture2.Set_Extent({});
    Picture2.Set_Visible(false);
    Logo.Set_Text(logo_is_off);
}

} // namespace kestrum
