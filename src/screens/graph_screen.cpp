#include "screens/graph_screen.h"

#include <array>

namespace kestrum {

namespace {

using enum Control_Kind;

constexpr auto graph_table = std::to_array<Control_Entry>({
    Lone(Picture, "Picture1", "").Coloured(0xFFFFFF),
    Lone(Picture, "Picture2", "").Hidden(),
    Lone(Label, "Label2", "Mouse Position on Graph"),
    Lone(Label, "Label4", "<--- "),
    Lone(Label, "Label8", ""),
    Lone(Label, "Label18", ""),
    Lone(Label, "Label3", "<---"),
    Lone(Label, "Label9", ""),
    Lone(Label, "Label19", ""),
    Lone(Check_Box, "Check1", "Draw On Graph Using Mouse"),
    Lone(Label, "Label10", "Draw Line Width"),
    Lone(Combo_Box, "Combo1", "3"),
    Push_Button("Command4", "Select Draw Line Color"),
    Push_Button("Command3", "&Save Graph in BMP Format"),
    Push_Button("Command2", "Print Graph"),
    Push_Button("Command5", "PrtSc as &JPG"),
    Push_Button("Logo", "Logo -- Is OFF"),
    Push_Button("Command1", "&Quit"),
});

} // namespace

Graph_Screen::Graph_Screen() : Screen("Form60", graph_table) {}

} // namespace kestrum
