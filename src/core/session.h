#pragma once

#include "base/numeric_text.h"
#include "core/settings.h"
#include "core/wing_states.h"
#include "platform/dialogs.h"
#include "platform/surroundings.h"
#include "screens/compare_screen.h"
#include "screens/engine_screen.h"
#include "screens/flow_sheet.h"
#include "screens/graph_screen.h"
#include "screens/report_screen.h"
#include "screens/windows.h"

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace kestrum {

struct Painter;
struct Printers;
struct Screen_Camera;
struct Shell;

/// What the routines that read and write files share.
struct File_Transfer {
    /// Empty: a routine asks the user. Otherwise the path that it takes.
    std::string path;
    int records_read = 0;
    int records_written = 0;
    /// What there is to tell the user beside the boxes, until a face has told it.
    std::string news;

    struct Used {
        std::string path;
        Screen_Kind kind;
    };

    /// Tests and main data files that the user has loaded or saved, until a face has noted them.
    std::vector<Used> used;
};

/// What the font dialog gave, or a file in its place, before it is looked at.
struct Font_Answer {
    std::string name;
    /// In points, in the session's decimal mode.
    std::string size;
    bool bold = false;
    bool italic = false;
    /// The dialog was cancelled; the rest is of the answer before.
    bool cancelled = false;
};

/// What the user answered last.
struct Dialog_Answers {
    /// Number of a box's answer: OK 1, Cancel 2, Yes 6, No 7.
    int box = 0;
    /// What the colour dialog gave, as decimal digits; empty after a cancel.
    std::string colour;
    Font_Answer font;
};

/// How the screens lie on the display.
struct Display_Scale {
    bool full_screen_mode = false;
    /// The graph may be stretched by two different factors.
    bool aspect_free = false;
    int dpi = 0;
    /// Pixels that an adapted screen fills; 0 while the screens stand as they were designed.
    double target_width = 0;
    double target_height = 0;
    // Factors of the graph, which its drawing goes by.
    double scale_x = 1;
    double scale_y = 1;
    double scale_font = 1;
    double canvas_x_size = 600;
    double canvas_y_size = 600;

    [[nodiscard]] bool Is_Adapted() const { return target_width > 0; }
};

/// One run of the program: the screens and the variables that its routines share.
class Session {
public:
    Session(Dialogs& its_dialogs, Windows& its_windows, Surroundings its_surroundings);
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
    ~Session();

    // The variables that the routines share, and the states of the wings.

    Numeric_Text numbers;
    Settings settings;
    Display_Scale display;
    File_Transfer file;
    Dialog_Answers answers;
    Wing_States wings;
    std::string title_text;
    bool mouse_down = false;
    /// Set by the exit: whether the session file was written.
    std::optional<bool> exit_saved;
    /// What boxes without a title of their own are about; empty: nothing that has to be named.
    std::string box_topic;

    /// All of them, to be kept and put back as a whole.
    [[nodiscard]] auto Variables() {
        return std::tie(numbers, settings, display, file, answers, wings, title_text, mouse_down,
                        exit_saved, box_topic);
    }

    Dialogs& dialogs;
    Windows& windows;
    const Surroundings surroundings;
    /// Null where the face cannot paint, print or take pictures.
    Painter* painter = nullptr;
    Printers* printers = nullptr;
    Screen_Camera* camera = nullptr;
    /// Null where nothing can be handed to the system.
    Shell* shell = nullptr;

    // Screens. Each is created when it is first asked for, and again after it was unloaded.

    [[nodiscard]] Engine_Screen& Main();
    /// Sheet 1 to 5. Raises 9 for another number.
    [[nodiscard]] Flow_Sheet& Sheet(int sheet_number);
    [[nodiscard]] Compare_Screen& Form50();
    [[nodiscard]] Graph_Screen& Form60();
    [[nodiscard]] Report_Screen& Form70();
    [[nodiscard]] Screen& The(Screen_Id id);
    /// A screen by its name, created at need; null for a name that no screen has.
    [[nodiscard]] Screen* Screen_Named(std::string_view name);

    /// Loaded screens: `Main`, the sheets, `Form50`, `Form60`, `Form70`.
    void For_Each_Loaded(const std::function<void(Screen&)>& act);
    [[nodiscard]] bool Is_Loaded(Screen_Id id) const;
    [[nodiscard]] bool Is_Loaded(std::string_view name) const;

    void Show(Screen& screen);
    void Hide(Screen& screen);
    /// Hides the screen if it shows and destroys it: its texts are gone.
    void Unload(Screen& screen);

    /// A box that waits for its answer. It also ends a press of the mouse, whose release the box
    /// swallows.
    Box_Answer Message(const Box& box);
    void Message(std::string_view text, Box_Icon icon = Box_Icon::None);

private:
    /// What every new screen gets besides its stored texts: its place, its scale and the pointer.
    void Place_On_Display(Screen& screen) const;
    void Dress(Screen& screen) const;
    void Copy_Look_From_Open_Sheet(Flow_Sheet& sheet) const;
    [[nodiscard]] std::array<Screen*, sheet_count + 4> Slots() const;

    std::unique_ptr<Engine_Screen> main_;
    std::array<std::unique_ptr<Flow_Sheet>, sheet_count> sheets_;
    std::unique_ptr<Compare_Screen> form50_;
    std::unique_ptr<Graph_Screen> form60_;
    std::unique_ptr<Report_Screen> form70_;
};

} // namespace kestrum
