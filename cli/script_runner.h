#pragma once

#include "cli/canvas_journal.h"
#include "cli/event_printer.h"
#include "cli/graph_painter.h"
#include "cli/headless_camera.h"
#include "cli/headless_dialogs.h"
#include "cli/headless_printers.h"
#include "cli/headless_shell.h"
#include "cli/headless_windows.h"
#include "core/session.h"
#include "files/rescue.h"

#include <istream>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace kestrum::cli {

/// Runs a script against a session without a display. The commands and what they print are the
/// public automation interface; `docs/automation.md` describes them.
class Script_Runner {
public:
    /// `out` takes one JSON object a line.
    Script_Runner(Surroundings surroundings, std::ostream& out, bool keeps_rescue = false,
                  std::vector<std::string> printers = {"Headless Printer"});
    ~Script_Runner();

    /// Runs to the end of the script. Gives the exit status: 0, or 1 when a failure that no
    /// routine handles ended the session. Raises `Script_Error`, with the line's number, for an
    /// unknown command or address, and `Stream_Error` with `failure_text` when reading it fails.
    [[nodiscard]] int Run(std::istream& script, const std::string& failure_text);

    /// One line of a script. Raises `Script_Error`, and `Run_Time_Error` for an unhandled failure.
    void Execute(std::string_view line);

    [[nodiscard]] Session& Current_Session() { return *session_; }

private:
    struct Command;
    struct Words;
    enum class Takes;

    [[nodiscard]] static const Command& Command_Named(std::string_view name);
    void Start(const std::string& command_line);
    void Keep_Rescue();
    void Write_Noted_Rescue();
    [[nodiscard]] bool Will_Ask_For_Canvas() const;
    [[nodiscard]] Screen& Screen_At(std::string_view name);
    [[nodiscard]] Control& Control_At(std::string_view address);

    void Press(Control& control, std::string_view keys);

    void Get(const Words& words);
    void Prop(const Words& words);
    void Var(const Words& words);
    void Set(const Words& words);
    void Type(const Words& words);
    void Leave_Field(const Words& words);
    void Click_On(const Words& words);
    void Select_Item(const Words& words);
    void Hover_On(const Words& words);
    void Mouse(const Words& words);
    void Key(const Words& words);
    void Answer(const Words& words);
    void Choose(const Words& words);
    void Answer_Colour(const Words& words);
    void Answer_Font(const Words& words);
    void Close(const Words& words);
    void Dump(const Words& words);
    void Canvas(const Words& words);
    void Printer(const Words& words);
    void Exit(const Words& words);
    void Restart(const Words& words);

    Surroundings surroundings_;
    Event_Printer printer_;
    Headless_Dialogs dialogs_;
    Headless_Windows windows_;
    Headless_Camera camera_;
    Headless_Shell shell_;
    Headless_Printers printers_;
    Late_Painter painter_;
    std::unique_ptr<Session> session_;
    Canvas_Journal journal_;
    /// Of the script that runs, when it could be read ahead.
    std::optional<int> last_canvas_line_;
    int line_number_ = 0;
    bool keeps_rescue_;
    std::unique_ptr<Rescue> rescue_;
};

} // namespace kestrum::cli
