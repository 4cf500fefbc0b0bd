#include "cli/script_runner.h"

#include "application/events.h"
#include "application/start_up.h"
#include "application/variables.h"
#include "cli/drawing_events.h"
#include "cli/properties.h"
#include "cli/script_error.h"
#include "core/field_editor.h"
#include "core/text.h"
#include "platform/file_store.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

namespace kestrum::cli {

namespace {

/// `\n`, `\t` and `\\` in an argument. A line break of the system is CR LF.
std::string Unescaped(std::string_view text) {
    std::string plain;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char next = text[at] == '\\' && at + 1 < text.size() ? text[at + 1] : '\0';
        if (next == 'n') {
            plain += cr_lf;
        } else if (next == 't') {
            plain += '\t';
        } else if (next == '\\') {
            plain += '\\';
        } else {
            plain += text[at];
            continue;
        }
        ++at;
    }
    return plain;
}

/// Takes the word at the front, and the blank behind it, off a text.
std::string_view First_Word(std::string_view& rest) {
    const std::string_view word = rest.substr(0, rest.find(' '));
    rest.remove_prefix(std::min(word.size() + 1, rest.size()));
    return word;
}

double Coordinate(std::string_view text) {
    double value = 0;
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (failure != std::errc() || end != text.data() + text.size()) {
        throw Script_Error("not a number: '" + std::string(text) + "'");
    }
    return value;
}

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

Event Operation_Events(const std::vector<Draw_Operation>& operations) {
    Event events = Event::array();
    for (const Draw_Operation& operation : operations) {
        events.push_back(Operation_Event(operation));
    }
    return events;
}

} // namespace

/// A line taken apart: the command, the address behind it, and what follows that.
struct Script_Runner::Words {
    std::string_view command;
    std::string_view address;
    std::string_view argument; // as it stands in the line
    std::string_view all;      // address and argument
};

struct Script_Runner::Command {
    std::string_view name;
    void (Script_Runner::*run)(const Words& words);
};

Script_Runner::Script_Runner(Surroundings surroundings, std::ostream& out, bool keeps_rescue,
                             std::vector<std::string> printers)
    : surroundings_(std::move(surroundings)),
      printer_(out),
      dialogs_(printer_),
      windows_(printer_),
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
    session_->graph.canvas.Keep_Journal();
    Start_Up(*session_);
    if (keeps_rescue_) {
        rescue_ = std::make_unique<Rescue>(*session_);
        rescue_->Offer();
    }
}

int Script_Runner::Run(std::istream& script) {
    std::string line;
    int number = 0;
    try {
        Start(surroundings_.command_line);
        while (std::getline(script, line)) {
            ++number;
            Execute(line);
            Keep_Rescue();
        }
    } catch (const Run_Time_Error& failure) {
        Keep_Rescue();
        dialogs_.Drop_Queues();
        printer_.Print(
            {{"error", {{"number", failure.Number()}, {"description", failure.Description()}}}});
        return 1;
    } catch (const Script_Error& fault) {
        throw Script_Error("line " + Event(number).dump() + ": " + fault.what());
    }
    return 0;
}

void Script_Runner::Keep_Rescue() {
    if (rescue_) {
        rescue_->Keep();
    }
}

void Script_Runner::Remove_Rescue() {
    if (rescue_) {
        rescue_->Remove();
    }
}

void Script_Runner::Execute(std::string_view line) {
    static constexpr std::array<Command, 21> commands{{
        {"get", &Script_Runner::Get},          {"prop", &Script_Runner::Prop},
        {"var", &Script_Runner::Var},          {"set", &Script_Runner::Set},
        {"type", &Script_Runner::Type},        {"leave", &Script_Runner::Leave_Field},
        {"click", &Script_Runner::Click_On},   {"select", &Script_Runner::Select_Item},
        {"hover", &Script_Runner::Hover_On},   {"mouse", &Script_Runner::Mouse},
        {"key", &Script_Runner::Key},          {"answer", &Script_Runner::Answer},
        {"choose", &Script_Runner::Choose},    {"colour", &Script_Runner::Answer_Colour},
        {"font", &Script_Runner::Answer_Font}, {"close", &Script_Runner::Close},
        {"dump", &Script_Runner::Dump},        {"canvas", &Script_Runner::Canvas},
        {"printer", &Script_Runner::Printer},  {"exit", &Script_Runner::Exit},
        {"restart", &Script_Runner::Restart},
    }};
    if (line.ends_with('\r')) {
        line.remove_suffix(1);
    }
    if (line.find_first_not_of(' ') == std::string_view::npos || line.starts_with('#')) {
        return;
    }
    Words words{};
    words.argument = line;
    words.command = First_Word(words.argument);
    words.all = words.argument;
    words.address = First_Word(words.argument);
    const auto* const command = std::ranges::find(commands, words.command, &Command::name);
    if (command == commands.end()) {
        throw Script_Error("unknown command '" + std::string(words.command) + "'");
    }
    (this->*command->run)(words);
}

Screen& Script_Runner::Screen_At(std::string_view name) {
    Screen* const screen = session_->Screen_Named(name);
    if (screen == nullptr) {
        throw Script_Error("there is no screen '" + std::string(name) + "'");
    }
    return *screen;
}

/// "Screen.Control" or "Screen.Control(index)".
Control& Script_Runner::Control_At(std::string_view address) {
    const std::size_t dot = address.find('.');
    const auto unknown = [address] {
        return Script_Error("there is no control '" + std::string(address) + "'");
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
        throw Script_Error("there is no property '" + std::string(words.argument) + "'");
    }
    printer_.Print({{"prop", words.address}, {"name", words.argument}, {"value", *value}});
}

void Script_Runner::Var(const Words& words) {
    const auto value = Variable_Named(*session_, words.address);
    if (!value) {
        throw Script_Error("there is no variable '" + std::string(words.address) + "'");
    }
    printer_.Print({{"var", words.address}, {"value", Value_Of(*value)}});
}

void Script_Runner::Set(const Words& words) {
    Control_At(words.address).Set_Text(Unescaped(words.argument));
}

void Script_Runner::Type(const Words& words) {
    Field_Editor editor(*session_, Control_At(words.address));
    for (const char32_t key : Characters_Of(Unescaped(words.argument))) {
        editor.Press(key);
    }
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
        throw Script_Error("unknown mouse action '" + std::string(name) + "'");
    }
    const double x = Coordinate(First_Word(rest));
    const double y = Coordinate(First_Word(rest));
    Mouse_On_Picture(*session_, Control_At(words.address), action->second, x, y);
}

void Script_Runner::Key(const Words& words) {
    Field_Editor editor(*session_, Control_At(words.address));
    for (const char32_t key : Characters_Of(Unescaped(words.argument)).substr(0, 1)) {
        editor.Press(key);
    }
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
        throw Script_Error("unknown answer '" + std::string(words.all) + "'");
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
        dialogs_.Queue_Colour(static_cast<int>(Coordinate(words.all)));
    }
}

void Script_Runner::Answer_Font(const Words& /*words*/) {
    // As for colours.
}

void Script_Runner::Close(const Words& words) {
    Keep_Rescue(); // the texts of a window that closes are gone
    Screen& screen = Screen_At(words.address);
    const bool ends_program = screen.Name() == "Main";
    Close_Window(*session_, screen);
    if (ends_program) {
        Remove_Rescue();
    }
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
    printer_.Print({{"canvas", Operation_Events(session_->graph.canvas.Take_Journal())}});
}

void Script_Runner::Printer(const Words& /*words*/) {
    Event documents = Event::array();
    for (const Printed_Document& document : printers_.Take_Documents()) {
        Event pages = Event::array();
        for (const std::vector<Draw_Operation>& page : document.pages) {
            pages.push_back(Operation_Events(page));
        }
        documents.push_back({{"device", document.device}, {"pages", std::move(pages)}});
    }
    printer_.Print({{"printer", std::move(documents)}});
}

void Script_Runner::Exit(const Words& /*words*/) {
    Exit_Program(*session_);
    Remove_Rescue();
}

void Script_Runner::Restart(const Words& words) {
    Start(Unescaped(words.all));
}

} // namespace kestrum::cli
