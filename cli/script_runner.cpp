#include "cli/script_runner.h"

#include "application/events.h"
#include "application/start_up.h"
#include "application/variables.h"
#include "base/text.h"
#include "cli/drawing_events.h"
#include "cli/field_editor.h"
#include "cli/line_text.h"
#include "cli/properties.h"
#include "cli/script_error.h"
#include "cli/script_words.h"
#include "cli/standard_streams.h"
#include "graph/graph_state.h"
#include "platform/file_store.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <optional>

namespace kestrum::cli {

namespace {

bool Has_Caption(Control_Kind kind) {
    return kind != Control_Kind::Text_Box && kind != Control_Kind::Picture;
}

Event Value_Of(const Variable_Value& value) {
    if (const auto* const text = std::get_if<std::string>(&value)) {
        return *text;
    }
    const double number = std::get<double>(value);
    const auto whole = static_cast<long long>(number);
    return static_cast<double>(whole) == number ? Event(whole) : Event(number);
}

std::string Name_In_File(const Control& control) {
    const std::string address = control.Address();
    return address.substr(address.find('.') + 1);
}

} // namespace

/// A line taken apart: the command, the address behind it, and what follows that.
struct Script_Runner::Words {
    std::string_view command;
    std::string_view address;
    std::string_view argument; // as it stands in the line
    std::string_view all;      // address and argument
};

/// What stands behind a command.
enum class Script_Runner::Takes { Nothing, One_Word, Text };

struct Script_Runner::Command {
    std::string_view name;
    Takes takes;
    void (Script_Runner::*run)(const Words& words);
};

Script_Runner::Script_Runner(Surroundings surroundings, std::ostream& out, bool keeps_rescue,
                             std::vector<std::string> printers)
    : surroundings_(std::move(surroundings)),
      printer_(out),
      dialogs_(printer_),
      windows_(printer_),
      camera_(printer_),
      shell_(printer_),
      printers_(std::move(printers)),
      keeps_rescue_(keeps_rescue) {}

Script_Runner::~Script_Runner() = default;

void Script_Runner::Start(const std::string& command_line) {
    Surroundings facts = surroundings_;
    facts.command_line = command_line;
    rescue_.reset();
    session_ = std::make_unique<Session>(dialogs_, windows_, std::move(facts));
    session_->painter = &painter_;
    session_->printers = &printers_;
    session_->camera = &camera_;
    session_->shell = &shell_;
    journal_.Clear();
    Graph_Of(*session_).canvas.Keep_Journal(Will_Ask_For_Canvas());
    Start_Up(*session_);
    if (keeps_rescue_) {
        rescue_ = std::make_unique<Rescue>(*session_);
        rescue_->Offer();
    }
}

bool Script_Runner::Will_Ask_For_Canvas() const {
    return !last_canvas_line_ || line_number_ < *last_canvas_line_;
}

int Script_Runner::Run(std::istream& script, const std::string& failure_text) {
    std::string line;
    try {
        last_canvas_line_ = Last_Canvas_Line(script, failure_text);
        Line_Source lines(script, failure_text);
        Start(surroundings_.command_line);
        while (lines.Next(line)) {
            ++line_number_;
            Execute(line_number_ == 1 ? Without_Encoding_Mark(line) : line);
            Keep_Rescue();
            journal_.Collect(Graph_Of(*session_).canvas);
        }
    } catch (const Run_Time_Error& failure) {
        Write_Noted_Rescue();
        dialogs_.Drop_Queues();
        printer_.Print(
            {{"error", {{"number", failure.Number()}, {"description", failure.Description()}}}});
        return 1;
    } catch (const Script_Error& fault) {
        throw Script_Error("line " + Event(line_number_).dump() + ": " + fault.what());
    }
    return 0;
}

void Script_Runner::Keep_Rescue() {
    if (rescue_ && session_->exit_saved) {
        rescue_->Finish(*session_->exit_saved);
    } else if (rescue_) {
        rescue_->Keep();
    }
}

/// What the failing command has left is half done: the state before it counts.
void Script_Runner::Write_Noted_Rescue() {
    constexpr std::chrono::seconds long_enough{60};
    if (rescue_) {
        rescue_->Write();
        rescue_->Flush(long_enough);
    }
}

const Script_Runner::Command& Script_Runner::Command_Named(std::string_view name) {
    static constexpr std::array<Command, 21> commands{{
        {"get", Takes::One_Word, &Script_Runner::Get},
        {"prop", Takes::Text, &Script_Runner::Prop},
        {"var", Takes::One_Word, &Script_Runner::Var},
        {"set", Takes::Text, &Script_Runner::Set},
        {"type", Takes::Text, &Script_Runner::Type},
        {"leave", Takes::One_Word, &Script_Runner::Leave_Field},
        {"click", Takes::One_Word, &Script_Runner::Click_On},
        {"select", Takes::Text, &Script_Runner::Select_Item},
        {"hover", Takes::One_Word, &Script_Runner::Hover_On},
        {"mouse", Takes::Text, &Script_Runner::Mouse},
        {"key", Takes::Text, &Script_Runner::Key},
        {"answer", Takes::Text, &Script_Runner::Answer},
        {"choose", Takes::Text, &Script_Runner::Choose},
        {"colour", Takes::Text, &Script_Runner::Answer_Colour},
        {"font", Takes::Text, &Script_Runner::Answer_Font},
        {"close", Takes::One_Word, &Script_Runner::Close},
        {"dump", Takes::One_Word, &Script_Runner::Dump},
        {"canvas", Takes::Nothing, &Script_Runner::Canvas},
        {"printer", Takes::Nothing, &Script_Runner::Printer},
        {"exit", Takes::Nothing, &Script_Runner::Exit},
        {"restart", Takes::Text, &Script_Runner::Restart},
    }};
    const auto* const command = std::ranges::find(commands, name, &Command::name);
    if (command == commands.end()) {
        throw Script_Error("unknown command " + Quoted(name));
    }
    return *command;
}

void Script_Runner::Execute(std::string_view line) {
    if (!Holds_Words(line) || line.starts_with('#')) {
        return;
    }
    Words words{};
    words.argument = line;
    words.command = First_Word(words.argument);
    words.all = words.argument;
    words.address = First_Word(words.argument);
    const Command& command = Command_Named(words.command);
    const std::string_view too_much = command.takes == Takes::Nothing    ? words.all
                                      : command.takes == Takes::One_Word ? words.argument
                                                                         : std::string_view();
    if (Holds_Words(too_much)) {
        throw Script_Error(Quoted(too_much) + " is too much");
    }
    (this->*command.run)(words);
}

Screen& Script_Runner::Screen_At(std::string_view name) {
    Screen* const screen = session_->Screen_Named(name);
    if (screen == nullptr) {
        throw Script_Error("there is no screen " + Quoted(name));
    }
    return *screen;
}

/// "Screen.Control" or "Screen.Control(index)".
Control& Script_Runner::Control_At(std::string_view address) {
    const std::size_t dot = address.find('.');
    const auto unknown = [address] {
        return Script_Error("there is no control " + Quoted(address));
    };
    if (dot == std::string_view::npos) {
        throw unknown();
    }
    Screen& screen = Screen_At(address.substr(0, dot));
    std::string_view name = address.substr(dot + 1);
    std::optional<int> index;
    const std::size_t bracket = name.find('(');
    if (bracket != std::string_view::npos) {
        int value = 0;
        const char* const last = name.data() + name.size();
        const auto [end, failure] = std::from_chars(name.data() + bracket + 1, last, value);
        if (failure != std::errc() || end + 1 != last || *end != ')') {
            throw unknown();
        }
        index = value;
        name = name.substr(0, bracket);
    }
    Control* const control = screen.Find(name, index);
    if (control == nullptr) {
        throw unknown();
    }
    return *control;
}

void Script_Runner::Get(const Words& words) {
    printer_.Print({{"get", words.address}, {"text", Control_At(words.address).Text()}});
}

void Script_Runner::Prop(const Words& words) {
    const bool of_control = words.address.find('.') != std::string_view::npos;
    const auto value = of_control ? Property_Of(Control_At(words.address), words.argument)
                                  : Property_Of(Screen_At(words.address), words.argument);
    if (!value) {
        throw Script_Error("there is no property " + Quoted(words.argument));
    }
    printer_.Print({{"prop", words.address}, {"name", words.argument}, {"value", *value}});
}

void Script_Runner::Var(const Words& words) {
    const auto value = Variable_Named(*session_, words.address);
    if (!value) {
        throw Script_Error("there is no variable " + Quoted(words.address));
    }
    printer_.Print({{"var", words.address}, {"value", Value_Of(*value)}});
}

void Script_Runner::Set(const Words& words) {
    Control_At(words.address).Set_Text(Unescaped(words.argument));
}

void Script_Runner::Press(Control& control, std::string_view keys) {
    if (!Takes_Raw_Keys(control)) {
        Field_Editor(*session_, control).Type(keys);
        return;
    }
    for (const char32_t key : Characters_Of(keys)) {
        Press_Raw_Key(*session_, control, key);
    }
}

void Script_Runner::Type(const Words& words) {
    Press(Control_At(words.address), Unescaped(words.argument));
}

void Script_Runner::Leave_Field(const Words& words) {
    Leave(*session_, Control_At(words.address));
}

void Script_Runner::Click_On(const Words& words) {
    Click(*session_, Control_At(words.address));
}

void Script_Runner::Select_Item(const Words& words) {
    Select(*session_, Control_At(words.address), Unescaped(words.argument));
}

void Script_Runner::Hover_On(const Words& words) {
    if (words.address.find('.') == std::string_view::npos) {
        Hover_Over_Form(Screen_At(words.address));
    } else {
        Hover_Over(Control_At(words.address));
    }
}

/// "down|move|up X Y", in the picture's own units.
void Script_Runner::Mouse(const Words& words) {
    static constexpr std::array<std::pair<std::string_view, Mouse_Action>, 3> actions{
        {{"down", Mouse_Action::Down}, {"move", Mouse_Action::Move}, {"up", Mouse_Action::Up}}};
    std::string_view rest = words.argument;
    const std::string_view name = First_Word(rest);
    const auto* const action =
        std::ranges::find(actions, name, &std::pair<std::string_view, Mouse_Action>::first);
    if (action == actions.end()) {
        throw Script_Error("unknown mouse action " + Quoted(name));
    }
    const double x = Coordinate(First_Word(rest));
    const double y = Coordinate(First_Word(rest));
    if (Holds_Words(rest)) {
        throw Script_Error(Quoted(rest) + " is too much");
    }
    Mouse_On_Picture(*session_, Control_At(words.address), action->second, x, y);
}

void Script_Runner::Key(const Words& words) {
    std::string key = Unescaped(words.argument);
    if (key == cr_lf) {
        key.pop_back(); // Enter is one key
    }
    if (Length(key) != 1) {
        throw Script_Error("not one key: " + Quoted(words.argument));
    }
    Press(Control_At(words.address), key);
}

void Script_Runner::Answer(const Words& words) {
    static constexpr std::array<std::pair<std::string_view, Box_Answer>, 4> answers{
        {{"ok", Box_Answer::Ok},
         {"cancel", Box_Answer::Cancel},
         {"yes", Box_Answer::Yes},
         {"no", Box_Answer::No}}};
    const auto* const answer =
        std::ranges::find(answers, words.all, &std::pair<std::string_view, Box_Answer>::first);
    if (answer == answers.end()) {
        throw Script_Error("unknown answer " + Quoted(words.all));
    }
    dialogs_.Queue_Answer(answer->second);
}

void Script_Runner::Choose(const Words& words) {
    const std::string path = Unescaped(words.all);
    if (path.empty()) {
        dialogs_.Queue_File(std::nullopt);
    } else {
        dialogs_.Queue_File(Holds_Separator(path) ? path : Join_Path(surroundings_.folder, path));
    }
}

void Script_Runner::Answer_Colour(const Words& words) {
    if (words.all.empty()) {
        dialogs_.Queue_Colour(std::nullopt);
    } else {
        dialogs_.Queue_Colour(Colour_From(words.all));
    }
}

void Script_Runner::Answer_Font(const Words& words) {
    if (words.all.empty()) {
        dialogs_.Queue_Font(std::nullopt);
    } else {
        dialogs_.Queue_Font(Font_From(Unescaped(words.all)));
    }
}

void Script_Runner::Close(const Words& words) {
    Close_Window(*session_, Screen_At(words.address));
}

void Script_Runner::Dump(const Words& words) {
    Event fields = Event::object();
    for (const Control& control : Screen_At(words.address).Controls()) {
        if (control.Is_Text_Box() || Has_Caption(control.Entry().kind)) {
            fields[Name_In_File(control)] = control.Text();
        }
    }
    printer_.Print({{"dump", words.address}, {"fields", std::move(fields)}});
}

void Script_Runner::Canvas(const Words& /*words*/) {
    if (last_canvas_line_ && line_number_ > *last_canvas_line_) {
        throw Script_Error("the script has changed while it ran");
    }
    journal_.Print(printer_, Graph_Of(*session_).canvas);
    Graph_Of(*session_).canvas.Keep_Journal(Will_Ask_For_Canvas());
}

void Script_Runner::Printer(const Words& /*words*/) {
    Event documents = Event::array();
    for (const Printed_Document& document : printers_.Take_Documents()) {
        Event pages = Event::array();
        for (const Drawing& page : document.pages) {
            pages.push_back(Operation_Events(page.Operations()));
        }
        documents.push_back({{"device", document.device}, {"pages", std::move(pages)}});
    }
    printer_.Print({{"printer", std::move(documents)}});
}

void Script_Runner::Exit(const Words& /*words*/) {
    Exit_Program(*session_);
}

void Script_Runner::Restart(const Words& words) {
    Start(Unescaped(words.all));
}

} // namespace kestrum::cli
