#include "cli/script_runner.h"
#include "graph/graph_state.h"
#include "tests/script_run.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <streambuf>

namespace kestrum {

namespace {

using nlohmann::json;

struct Script_Case {
    const char* name;
    std::string_view script;
    /// One JSON object a line.
    std::string_view events;
};

std::string Lines(const Script_Result& result) {
    std::string lines;
    for (const json& event : result.events) {
        lines += event.dump() + "\n";
    }
    return lines;
}

constexpr Script_Case script_cases[] = {
    {"blank lines and remarks", "\n# get Main.Text105(3)\n   \n\r\n", ""},
    {"text", "get Main.Text105(3)", R"j({"get":"Main.Text105(3)","text":"4"})j"},
    {"line end of another system", "get Main.Text105(3)\r\n",
     R"j({"get":"Main.Text105(3)","text":"4"})j"},
    {"caption", "get Main.Command51", R"j({"get":"Main.Command51","text":"Calculate"})j"},
    {"a lone field by index", "get Main.Text94(0)", R"j({"get":"Main.Text94(0)","text":""})j"},
    {"escapes", "set Form1.Text38 a\\nb\\\\n\\tc\\d \nget Form1.Text38",
     R"j({"get":"Form1.Text38","text":"a\r\nb\\n\tc\\d "})j"},
    {"an empty text", "set Form1.Text102(0)\nget Form1.Text102(0)",
     R"j({"get":"Form1.Text102(0)","text":""})j"},
    {"inner blanks", "set Form1.Text102(0)  a  b\nget Form1.Text102(0)",
     R"j({"get":"Form1.Text102(0)","text":" a  b"})j"},
    {"set starts no handler", "set Form1.Text101(20) x\nget Form1.Text108(20)",
     R"j({"get":"Form1.Text108(20)","text":"200"})j"},
    {"check box", "click Main.Check1\nprop Main.Check1 Value",
     R"j({"name":"Value","prop":"Main.Check1","value":1})j"},
    {"option", "click Main.Option4(2)\nprop Main.Option4(0) Value",
     R"j({"name":"Value","prop":"Main.Option4(0)","value":false})j"},
    {"colours are numbers", "prop Main.Text101(3) BackColor",
     R"j({"name":"BackColor","prop":"Main.Text101(3)","value":131071})j"}, // 0x01FFFF
    {"truth values", "prop Main.Text101(3) Locked\nprop Main.Text101(8) TabStop",
     R"j({"name":"Locked","prop":"Main.Text101(3)","value":true}
{"name":"TabStop","prop":"Main.Text101(8)","value":true})j"},
    {"alignment", "click Main.AligCenter\nprop Form1.Text102(1) Alignment",
     R"j({"name":"Alignment","prop":"Form1.Text102(1)","value":2})j"},
    {"a screen's own", "prop Form2 Visible\nclick Main.Command2\nprop Form2 Visible",
     R"j({"name":"Visible","prop":"Form2","value":false}
{"show":"Form2"}
{"focus":"Form2.Text108(7)"}
{"name":"Visible","prop":"Form2","value":true})j"},
    {"variable", "click Main.AligRight\nvar Align_Mode\nvar Locale_Point",
     R"j({"value":1,"var":"Align_Mode"}
{"value":".","var":"Locale_Point"})j"},
    {"typing beeps for each refused key", "type Form1.Text102(1) 1.2.3x\nget Form1.Text102(1)",
     R"j({"beep":true}
{"beep":true}
{"get":"Form1.Text102(1)","text":"1.23"})j"},
    {"trailing blanks", "get Main.Text105(3)  ", R"j({"get":"Main.Text105(3)","text":"4"})j"},
    {"Enter is one key", "key Form1.Text38 \\n\nget Form1.Text38",
     R"j({"get":"Form1.Text38","text":"\r\n"})j"},
    {"one raw key", "key Form1.Text102(0) Ö\nget Form1.Text102(0)",
     R"j({"get":"Form1.Text102(0)","text":"Ö"})j"},
    {"leaving", "set Form1.Text106(6) 5\nleave Form1.Text106(6)",
     R"j({"box":{"answer":"ok","buttons":"ok","icon":"none","text":"Number of Intake Valves Must be 1 to 4","title":""}}
{"focus":"Form1.Text106(6)"})j"},
    {"a click leaves no field", "set Main.Text104(3) 0\nclick Main.Preload\nget Main.Text104(3)",
     R"j({"get":"Main.Text104(3)","text":"0"})j"},
    {"hover", "hover Main.Command51\nget Main.Label7\nhover Main\nprop Main.Label7 Visible",
     R"j({"get":"Main.Label7","text":"Lets you Calculate the above Data."}
{"name":"Visible","prop":"Main.Label7","value":false})j"},
    {"nothing drawn, nothing printed", "canvas\nprinter",
     R"j({"canvas":[]}
{"printer":[]})j"},
    {"answers of other dialogs", "colour 255\ncolour\nfont Arial;9;1;0\nfont\nanswer no", ""},
    {"selecting", "select Form60.Combo1 12\nget Form60.Combo1",
     R"j({"get":"Form60.Combo1","text":"12"})j"},
    {"closing a screen", "click Main.Command5\nclose Form5",
     R"j({"show":"Form5"}
{"focus":"Form5.Text108(7)"}
{"hide":"Form5"}
{"unload":"Form5"})j"},
    {"a cancelled chooser", "click Form1.Load_Data",
     R"j({"chooser":{"filter":"Text Files (*.txt)|*.txt|All Files (*.*)|*.*|Flow Data Files (*.dat)|*.dat","filter_index":3,"mode":"open","overwrite_prompt":false,"path":null}}
{"box":{"answer":"ok","buttons":"ok","icon":"exclamation","text":"Flow Data File has Not been Loaded","title":""}}
{"focus":"Form1.Text101(16)"})j"},
    {"an answer that the box lacks",
     "answer no\nset Form1.Text102(3) x\nclick Form1.Command1\n"
     "var Box_Answer",
     R"j({"box":{"answer":"ok","buttons":"ok","icon":"stop","text":"Error Number 13 -- Type mismatch\r\n\r\nPlease Save your Data.\r\n\r\nIf you can NOT Find the Reason for this Error. Please the Sent the Saved Data file and a Print Screen of this Error to Software Support.","title":""}}
{"value":1,"var":"Box_Answer"})j"},
};

TEST(Script_Commands, Print_What_Happens) {
    for (const Script_Case& c : script_cases) {
        const Script_Result result = Run_Script(c.script);
        EXPECT_EQ(result.status, 0) << c.name << result.fault;
        EXPECT_EQ(Lines(result), std::string(c.events) + (c.events.empty() ? "" : "\n")) << c.name;
    }
}

TEST(Script_Commands, Dump_Lists_Every_Field_And_Caption) {
    const Script_Result result = Run_Script("dump Form1");
    const json& fields = result.Last().at("fields");
    EXPECT_EQ(result.Last().at("dump"), "Form1");
    EXPECT_EQ(fields.at("Text101(0)"), "Part #");
    EXPECT_EQ(fields.at("text205(17)"), "1.277");
    EXPECT_EQ(fields.at("Text38"), "");
    EXPECT_EQ(fields.at("NextPage"),
              "For Valve Seat Dimensions, Swirl, and Floating Depression Entry Next Page (2)");
    EXPECT_EQ(fields.at("Load_Data"), "&Load Previous Save Data");
    EXPECT_FALSE(fields.contains("Text103(31)"));
}

TEST(Script_Commands, Unusable_Lines_End_With_Status_2_And_Their_Number) {
    struct Case {
        std::string_view line;
        std::string_view fault;
    };

    constexpr Case cases[] = {
        {"got Main.Text33", "line 3: unknown command 'got'"},
        {"Get Main.Text33", "line 3: unknown command 'Get'"},
        {"get Main.text33", "line 3: there is no control 'Main.text33'"},
        {"get main.Text33", "line 3: there is no screen 'main'"},
        {"get Text33", "line 3: there is no control 'Text33'"},
        {"get Form1.Text101", "line 3: there is no control 'Form1.Text101'"},
        {"get Form1.Text101(31)", "line 3: there is no control 'Form1.Text101(31)'"},
        {"get Form1.Text101(3", "line 3: there is no control 'Form1.Text101(3'"},
        {"get Form1.Text101(3)x", "line 3: there is no control 'Form1.Text101(3)x'"},
        {"get Form1.Text101(x)", "line 3: there is no control 'Form1.Text101(x)'"},
        {"get", "line 3: there is no control ''"},
        {"click Form6.Command1", "line 3: there is no screen 'Form6'"},
        {"prop Main.Text33 Colour", "line 3: there is no property 'Colour'"},
        {"prop Main Text", "line 3: there is no property 'Text'"},
        {"var Nobody", "line 3: there is no variable 'Nobody'"},
        {"answer maybe", "line 3: unknown answer 'maybe'"},
        {"mouse Main.Picture1 down 1 1", "line 3: there is no control 'Main.Picture1'"},
        {"close Form9", "line 3: there is no screen 'Form9'"},
        {"mouse Form60.Picture1 move nan 1", "line 3: not a coordinate: 'nan'"},
        {"mouse Form60.Picture1 move 1 -inf", "line 3: not a coordinate: '-inf'"},
        {"mouse Form60.Picture2 down 1e300 1", "line 3: not a coordinate: '1e300'"},
        {"mouse Form60.Picture1 move 1 2x", "line 3: not a number: '2x'"},
        {"mouse Form60.Picture1 move 1", "line 3: not a number: ''"},
        {"mouse Form60.Picture1 move 1 2 3", "line 3: '3' is too much"},
        {"colour nan", "line 3: not a number: 'nan'"},
        {"colour 16777216", "line 3: not a colour: '16777216'"},
        {"colour -1", "line 3: not a colour: '-1'"},
        {"colour 255 0", "line 3: not a number: '255 0'"},
        {"get Main.Text105(3) x", "line 3: 'x' is too much"},
        {"var Align_Mode now", "line 3: 'now' is too much"},
        {"click Main.Command51  twice", "line 3: ' twice' is too much"},
        {"dump Form1 x", "line 3: 'x' is too much"},
        {"canvas all", "line 3: 'all' is too much"},
        {"exit now", "line 3: 'now' is too much"},
        {"key Form1.Text102(0) ab", "line 3: not one key: 'ab'"},
        {"get Main.\x1b[31m\xc2\x9b", "line 3: there is no control 'Main.\\u001b[31m\\u009b'"},
    };
    for (const Case& c : cases) {
        const Script_Result result =
            Run_Script("get Main.Text105(3)\n\n" + std::string(c.line) + "\nget Main.Text105(3)\n");
        EXPECT_EQ(result.status, 2) << c.line;
        EXPECT_EQ(result.fault, c.fault);
        EXPECT_EQ(result.events.size(), 1U) << "what ran before stays done: " << c.line;
    }
}

/// A script as it comes through a pipe: what has been read cannot be read again.
class Pipe_Buffer : public std::streambuf {
public:
    explicit Pipe_Buffer(std::string text) : text_(std::move(text)) {
        setg(text_.data(), text_.data(), text_.data() + text_.size());
    }

private:
    std::string text_;
};

constexpr std::string_view four_graphs = // over 24,000 operations
    "set Form2.Text106(26) 300\nclick Form50.Command2\n"
    "click Form50.Command2\nclick Form50.Command2\nclick Form50.Command2\n";

std::string Printed_By(std::istream& script) {
    const Temp_Folder folder;
    Surroundings around;
    around.folder = folder.Path();
    std::ostringstream out;
    cli::Script_Runner runner(around, out);
    EXPECT_EQ(runner.Run(script, "cannot read"), 0);
    EXPECT_LT(Graph_Of(runner.Current_Session()).canvas.Journal_Size(), 20000U) << "stays small";
    return out.str();
}

TEST(Script_Canvas, Is_Told_Whole_However_Late_It_Is_Asked_For) {
    const std::string script = std::string(four_graphs) + "canvas\nclick Form50.Command2\ncanvas\n";
    std::istringstream file(script);
    const std::string from_file = Printed_By(file);
    Pipe_Buffer buffer(script);
    std::istream pipe(&buffer);
    EXPECT_TRUE(Printed_By(pipe) == from_file);

    const std::string::size_type list = from_file.find("{\"canvas\":");
    const std::string::size_type line_end = from_file.find('\n', list);
    const json told = json::parse(from_file.substr(list, line_end - list)).at("canvas");
    const json one = Run_Script("set Form2.Text106(26) 300\nclick Form50.Command2\ncanvas").Last();
    const json& graph = one.at("canvas");
    EXPECT_GT(graph.size(), 5000U);
    ASSERT_EQ(told.size(), 4 * graph.size());
    EXPECT_TRUE(std::equal(graph.begin(), graph.end(), told.begin()));
    EXPECT_TRUE(std::equal(graph.rbegin(), graph.rend(), told.rbegin()));
    EXPECT_TRUE(json::parse(from_file.substr(line_end + 1)) == one) << "forgotten when told";
}

TEST(Script_Canvas, Is_Not_Noted_For_A_Script_That_Will_Not_Ask) {
    const Temp_Folder folder;
    Surroundings around;
    around.folder = folder.Path();
    for (const char* const before : {"", "canvas\n"}) {
        std::ostringstream out;
        std::istringstream script(before + std::string("click Form50.Command2\n# canvas\n"));
        cli::Script_Runner runner(around, out);
        EXPECT_EQ(runner.Run(script, "cannot read"), 0);
        EXPECT_FALSE(Graph_Of(runner.Current_Session()).canvas.Operations().empty());
        EXPECT_EQ(Graph_Of(runner.Current_Session()).canvas.Journal_Size(), 0U);
    }
}

TEST(Script_Commands, A_Fatal_Failure_Is_The_Last_Line) {
    const Script_Result result =
        Run_Script("set Form1.Text106(6) \nanswer cancel\nchoose x.dat\nclick Main.Command1\n"
                   "click Form1.Command1\nget Main.Text33\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(Lines(result), R"j({"show":"Form1"}
{"focus":"Form1.Text108(7)"}
{"error":{"description":"Type mismatch","number":13}}
)j");
}

TEST(Script_Commands, A_Restart_Is_A_New_Run_In_The_Same_Folder) {
    const Script_Result result = Run_Script("set Form1.Text102(0) Lost\nset Main.Text104(3) 4.2\n"
                                            "exit\nset Main.Text104(3) 9\nrestart /FN\n"
                                            "get Form1.Text102(0)\nget Main.Text104(3)\n"
                                            "var Full_Screen_Mode\nvar Aspect_Free");
    ASSERT_GE(result.events.size(), 4U);
    const std::vector<json> last(result.events.end() - 4, result.events.end());
    EXPECT_EQ(last[0].at("text"), "E7TE");
    EXPECT_EQ(last[1].at("text"), "4.2");
    EXPECT_EQ(last[2].at("value"), 1);
    EXPECT_EQ(last[3].at("value"), 1);
}

} // namespace

} // namespace kestrum
