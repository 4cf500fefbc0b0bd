#pragma once

#include "base/numeric_text.h"
#include "core/flow_work.h"
#include "core/graph_state.h"
#include "core/print_state.h"
#include "drawing/picture_file.h"
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

namespace kestrum {

struct Painter;
struct Printers;
struct Screen_Camera;

/// Dimensions of one side's valve seats, in inches and square inches, as the last calculation in
/// US units left them. One set serves all sheets.
struct Seat_Geometry {
    Real valve_diameter;
    Real angle; // degrees
    Real width;
    Real sine;
    Real cosine;
    Real tangent; // read by nothing
    Real radial;
    Real throat_limit;
};

/// The variables that the routines share, the state of the wings included. They can be copied as a
/// whole, so that a face can keep them and put them back.
struct Shared_State {
    Numeric_Text numbers;
    std::string title_text;
    /// Empty: a file routine asks the user. Otherwise the path that it takes.
    std::string file_path;
    int records_read = 0;
    int records_written = 0;
    /// The text report while its viewer shows it, else empty.
    std::string work_text;
    /// Number of the last box's answer: OK 1, Cancel 2, Yes 6, No 7.
    int box_answer = 0;
    int intake_valves = 1;
    int exhaust_valves = 1;
    bool mouse_down = false;
    /// Set by the exit: whether the session file was written.
    std::optional<bool> exit_saved;
    int full_screen_mode = 0;
    int aspect_free = 0;
    int screen_dpi = 0;
    double scale_x = 1;
    double scale_y = 1;
    double scale_font = 1;
    int show_quarter_diameter_line = 0;
    int auto_x_lines = 0;
    int show_data_points = 0;
    int show_big = 0;
    double canvas_x_size = 600;
    double canvas_y_size = 600;
    int grid_on = 1;
    int grid_colour = 0x909090;
    int font_red = 255;
    int font_green = 255;
    int font_blue = 255;
    int y_line_count = 10;
    int x_line_count = 10;
    int draw_line_color = 99999;
    /// What the colour dialog gave, as decimal digits; empty after a cancel.
    std::string picked_color;
    int draw_line_width = 3;
    int flow_filter_index = 1;
    /// Labels of the two compared tests: number and part number.
    std::string compare_from_label;
    std::string compare_to_label;
    Graph_State graph;
    int logo_on = 0;
    /// Path of the logo picture, empty when there is none.
    std::string logo_file;
    /// Of the logo's picture in pixels, nothing when there is none.
    std::optional<Extent> logo_size;
    Print_State print;
    /// "Main" while the engine screen takes the picture of itself.
    std::string capture_source;
    /// The mouse shows as the plain arrow, on screens to come as well.
    bool plain_pointer = false;

    Seat_Geometry intake_seat;
    Seat_Geometry exhaust_seat;
    Flow_Totals flow_totals;
    Curtain_Areas curtain_areas;
};

/// One run of the program: the screens and the variables that its routines share.
class Session : public Shared_State {
public:
    Session(Dialogs& its_dialogs, Windows& its_windows, Surroundings its_surroundings);
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
    ~Session();

    Dialogs& dialogs;
    Windows& windows;
    const Surroundings surroundings;
    /// Null where the face cannot paint, print or take pictures.
    Painter* painter = nullptr;
    Printers* printers = nullptr;
    Screen_Camera* camera = nullptr;

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
    /// What every new screen gets besides its stored texts: its place and the pointer.
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
