#include "core/session.h"

#include "base/run_time_error.h"
#include "core/decimal_switch.h"
#include "core/screen_scale.h"
#include "screens/geometry.h"

#include <algorithm>
#include <utility>

namespace kestrum {

namespace {

std::string Title_With_Version(std::string_view version) {
    return "Tarvex / Kestrum -- Orvald and Brone' -- Kestrum Suite -- Version: " +
           std::string(version);
}

std::vector<std::string> Line_Widths() {
    return {"1",  "2",  "3",  "4",  "5",  "6",  "7",  "8",  "9", "10",
            "12", "14", "16", "18", "20", "25", "30", "35", "40"};
}

/// Where a screen of a size stands in the middle of a display. A large one reaches over its edges.
Position Middle_Of(const Display& display, const Twips& size) {
    return {.left = (display.width * twips_per_pixel - size.width) / 2,
            .top = (display.height * twips_per_pixel - size.height) / 2};
}

/// The graph stands in the middle of a display that is wide enough and larger than itself.
bool Centres_Graph(const Display& display, const Twips& size) {
    constexpr int least_width = 701;
    return display.width >= least_width && size.width < display.width * twips_per_pixel &&
           size.height < display.height * twips_per_pixel;
}

int Answer_Number(Box_Answer answer) {
    switch (answer) {
    case Box_Answer::Ok:
        return 1;
    case Box_Answer::Cancel:
        return 2;
    case Box_Answer::Yes:
        return 6;
    case Box_Answer::No:
        return 7;
    }
    return 0;
}

} // namespace

Session::Session(Dialogs& its_dialogs, Windows& its_windows, Surroundings its_surroundings)
    : dialogs(its_dialogs), windows(its_windows), surroundings(std::move(its_surroundings)) {
    title_text = Title_With_Version(surroundings.version);
}

Session::~Session() = default;

Engine_Screen& Session::Main() {
    if (!main_) {
        main_ = std::make_unique<Engine_Screen>();
        main_->caption = title_text;
        Dress(*main_);
    }
    return *main_;
}

Flow_Sheet& Session::Sheet(int sheet_number) {
    if (sheet_number < 1 || sheet_number > sheet_count) {
        Fail(error::subscript_out_of_range);
    }
    auto& slot = sheets_[static_cast<std::size_t>(sheet_number - 1)];
    if (!slot) {
        slot = std::make_unique<Flow_Sheet>(sheet_number);
        Dress(*slot);
        Copy_Look_From_Open_Sheet(*slot);
    }
    return *slot;
}

Compare_Screen& Session::Form50() {
    if (!form50_) {
        form50_ = std::make_unique<Compare_Screen>();
        form50_->caption = title_text + " -- Compare 2 Flow Tests";
        Dress(*form50_);
    }
    return *form50_;
}

Graph_Screen& Session::Form60() {
    if (!form60_) {
        form60_ = std::make_unique<Graph_Screen>();
        form60_->caption = title_text + " -- Graph and Annotate";
        form60_->Combo1.Set_Items(Line_Widths());
        form60_->Combo1.Set_Text(numbers.Plain(settings.draw_line_width));
        Place_On_Display(*form60_);
        form60_->Picture1.Set_Extent(
            {.width = display.canvas_x_size, .height = display.canvas_y_size});
        if (settings.logo.on && !settings.logo.file.empty()) {
            form60_->Show_Logo(settings.logo.size.value_or(Extent{}));
        }
    }
    return *form60_;
}

Report_Screen& Session::Form70() {
    if (!form70_) {
        form70_ = std::make_unique<Report_Screen>();
        form70_->caption = title_text + " -- Select Items for Text Report";
        Dress(*form70_);
    }
    return *form70_;
}

Screen& Session::The(Screen_Id id) {
    switch (id.kind) {
    case Screen_Kind::Engine:
        return Main();
    case Screen_Kind::Sheet:
        return Sheet(id.number);
    case Screen_Kind::Compare:
        return Form50();
    case Screen_Kind::Graph:
        return Form60();
    case Screen_Kind::Report:
        return Form70();
    }
    return Main();
}

Screen* Session::Screen_Named(std::string_view name) {
    const auto id = Screen_Id_Of(name);
    return id ? &The(*id) : nullptr;
}

std::array<Screen*, sheet_count + 4> Session::Slots() const {
    return {main_.get(),      sheets_[0].get(), sheets_[1].get(),
            sheets_[2].get(), sheets_[3].get(), sheets_[4].get(),
            form50_.get(),    form60_.get(),    form70_.get()};
}

void Session::For_Each_Loaded(const std::function<void(Screen&)>& act) {
    for (Screen* const screen : Slots()) {
        if (screen != nullptr) {
            act(*screen);
        }
    }
}

bool Session::Is_Loaded(Screen_Id id) const {
    return std::ranges::any_of(
        Slots(), [id](const Screen* screen) { return screen != nullptr && screen->Id() == id; });
}

bool Session::Is_Loaded(std::string_view name) const {
    const auto id = Screen_Id_Of(name);
    return id && Is_Loaded(*id);
}

void Session::Show(Screen& screen) {
    if (screen.visible) {
        windows.Raise(screen);
    } else {
        screen.visible = true;
        windows.Show(screen);
    }
}

void Session::Hide(Screen& screen) {
    if (screen.visible) {
        screen.visible = false;
        windows.Hide(screen);
    }
}

void Session::Unload(Screen& screen) {
    Hide(screen);
    windows.Unload(screen);
    const Screen* const gone = &screen;
    const auto destroy = [gone](auto& slot) {
        if (slot.get() == gone) {
            slot.reset();
        }
    };
    destroy(main_);
    for (auto& sheet : sheets_) {
        destroy(sheet);
    }
    destroy(form50_);
    destroy(form60_);
    destroy(form70_);
}

Box_Answer Session::Message(const Box& box) {
    mouse_down = false;
    windows.Show_Changes();
    Box titled = box;
    titled.title = box.title.empty() ? box_topic : box.title;
    const Box_Answer answer = dialogs.Show_Box(titled);
    answers.box = Answer_Number(answer);
    return answer;
}

void Session::Message(std::string_view text, Box_Icon icon) {
    Message(Box{.text = std::string(text), .title = {}, .icon = icon});
}

void Session::Place_On_Display(Screen& screen) const {
    const Twips size = Place_In_Twips(screen);
    if (&screen != form60_.get() || Centres_Graph(surroundings.display, size)) {
        screen.place = Middle_Of(surroundings.display, size);
    }
    if (display.Is_Adapted()) {
        // The factors that the session holds stay those of the graph.
        Apply_Screen_Scale(screen, Factors_For(screen, display), surroundings.display);
    }
    screen.plain_pointer = settings.plain_pointer;
}

void Session::Dress(Screen& screen) const {
    Place_On_Display(screen);
    if (numbers.comma_mode != 0) {
        All_Dots_To_Commas(screen);
    }
}

/// Closing a sheet's window must not cost the user the fonts and the alignment chosen for all
/// sheets. The fonts are kept nowhere but in the sheets.
void Session::Copy_Look_From_Open_Sheet(Flow_Sheet& sheet) const {
    const Flow_Sheet* model = &sheet;
    for (const auto& other : sheets_) {
        if (other && other.get() != &sheet) {
            model = other.get();
        }
    }
    const auto controls = sheet.Controls();
    for (std::size_t index = 0; index < controls.size(); ++index) {
        Look look = controls[index].Present_Look();
        look.font = model->Controls()[index].Present_Look().font;
        if (controls[index].Is_Text_Box()) {
            look.alignment = numbers.align_mode;
        }
        controls[index].Set_Look(look);
    }
}

} // namespace kestrum
