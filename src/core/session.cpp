#include "core/session.h"

#include "platform/run_time_error.h"

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
    : dialogs(its_dialogs),
      windows(its_windows),
      surroundings(std::move(its_surroundings)),
      title_text(Title_With_Version(surroundings.version)) {}

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
        Dress_Like_The_Others(*slot);
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
        form60_->Show_Logo(logo_on == 1 && !logo_file.empty());
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

Screen* Session::Screen_Named(std::string_view name) {
    if (name == "Main") {
        return &Main();
    }
    if (name == "Form50") {
        return &Form50();
    }
    if (name == "Form60") {
        return &Form60();
    }
    if (name == "Form70") {
        return &Form70();
    }
    constexpr std::string_view form = "Form";
    if (name.size() == form.size() + 1 && name.starts_with(form) && name.back() >= '1' &&
        name.back() <= '5') {
        return &Sheet(name.back() - '0');
    }
    return nullptr;
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

bool Session::Is_Loaded(std::string_view name) const {
    for (const Screen* const screen : Slots()) {
        if (screen != nullptr && screen->Name() == name) {
            return true;
        }
    }
    return false;
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
    const Box_Answer answer = dialogs.Show_Box(box);
    box_answer = Answer_Number(answer);
    return answer;
}

void Session::Message(std::string_view text, Box_Icon icon) {
    Message(Box{.text = std::string(text), .title = {}, .icon = icon});
}

void Session::Dress(Screen& screen) const {
    if (number.comma_mode != 0) {
        All_Dots_To_Commas(screen);
    }
}

/// Closing a sheet's window must not cost the user the fonts chosen for all sheets.
void Session::Dress_Like_The_Others(Flow_Sheet& sheet) const {
    const Flow_Sheet* model = nullptr;
    for (const auto& other : sheets_) {
        if (other && other.get() != &sheet) {
            model = other.get();
        }
    }
    if (model == nullptr) {
        return;
    }
    const auto controls = sheet.Controls();
    for (std::size_t at = 0; at < controls.size(); ++at) {
        Look look = controls[at].Present_Look();
        look.font = model->Controls()[at].Present_Look().font;
        look.alignment = model->Controls()[at].Present_Look().alignment;
        controls[at].Set_Look(look);
    }
    sheet.plain_pointer = model->plain_pointer;
}

} // namespace kestrum
