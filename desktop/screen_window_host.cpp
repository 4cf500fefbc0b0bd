// What the views of a window tell it, and what it hands on to the session.

#include "application/events.h"
#include "application/undo_history.h"
#include "core/field_handlers.h"
#include "core/pasted_text.h"
#include "desktop/body.h"
#include "desktop/cell_words.h"
#include "desktop/help_line.h"
#include "desktop/screen_window.h"
#include "desktop/text_bridge.h"
#include "graph/graph_state.h"
#include "output/graph_saving.h"

namespace kestrum::desktop {

namespace {

/// What is to be known of a cell besides its help text.
QString Words_Of_Age(const Control& control) {
    if (theme::Is_Old(control)) {
        return QStringLiteral("This result is from before the last change. Calculate brings it up "
                              "to date.");
    }
    return control.Is_Left() ? QStringLiteral("The file that was loaded does not name this input: "
                                              "it stands from before.")
                             : QString();
}

/// The sheet that a button of `Main` opens, or that an option of the comparison stands for; 0 for
/// none.
int Sheet_Meant_By(const Control& control) {
    const std::string_view array = control.Entry().array;
    const Screen_Kind kind = control.Owner().Kind();
    if (kind == Screen_Kind::Compare && (array == "Option1" || array == "Option2")) {
        return control.Index() + 1;
    }
    const std::string_view buttons = "Command";
    const bool opens = kind == Screen_Kind::Engine && array.starts_with(buttons) &&
                       array.size() == buttons.size() + 1 && array.back() <= '0' + sheet_count;
    return opens ? array.back() - '0' : 0;
}

/// Where the focus comes from when the user has not moved it.
bool Is_Return_Of_Focus(Qt::FocusReason reason) {
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
           reason == Qt::MenuBarFocusReason;
}

} // namespace

QString Screen_Window::Words_Of(const Control& field) const {
    const Page* const page = Page_Of(field);
    return page == nullptr ? QString() : page->Words_Of(field);
}

QChar Screen_Window::Decimal_Mark() const {
    return QLatin1Char(session_.numbers.Point());
}

void Screen_Window::Clicked(Control& control) {
    const bool let_in =
        gate_.Enter_Command([&] { Click(session_, control); }, Words_Of_Command(control));
    if (!let_in && screen_ != nullptr) {
        Control_View* const view = View_Of(control);
        view->Refresh(); // a box that the toolkit has ticked goes back
    }
}

void Screen_Window::Picked(Control& combo, const std::string& text) {
    gate_.Enter_Command([&] { Select(session_, combo, text); }, "Choice of " + text);
}

void Screen_Window::Typed(Control& field, const std::string& text) {
    help_->Forget_All();
    keeper_.Edited(field);
    const Control_State before = field.Present_State();
    gate_.Enter([&] { field.Set_Text(text); });
    if (Undo_History* const history = gate_.History()) {
        history->Typed(field, before,
                       [&] { return "Typing in " + Words_Of_Field(session_, field.Address()); });
    }
}

bool Screen_Window::Passes(const Control& field, char32_t character) {
    if (Passes_Filter(session_.numbers, field, character)) {
        return true;
    }
    Refuse(Words_For_Refused_Key(session_.numbers, field, character));
    return false;
}

std::optional<std::u32string> Screen_Window::Piece_Of(const Control& field, const std::string& rest,
                                                      const std::string& pasted) {
    Pasted_Text text = Piece_For(session_.numbers, field, rest, pasted);
    if (!text.refusal.empty()) {
        Refuse(text.refusal);
        return std::nullopt;
    }
    return std::move(text.piece);
}

void Screen_Window::Refuse(const std::string& words) {
    session_.dialogs.Beep();
    help_->Tell(To_Qt(words));
}

void Screen_Window::Raw_Key(const Control& control, char32_t character) {
    gate_.Enter([&] { Press_Raw_Key(session_, control, character); });
}

void Screen_Window::Focus_Came(Control_View& view, Qt::FocusReason reason) {
    if (screen_ == nullptr) {
        return;
    }
    if (reason == Qt::MouseFocusReason && view.control.Is_Text_Box()) {
        session_.mouse_down = true;
    }
    body_->Reveal(*view.Widget());
    // A window that shows for the first time gets the focus without a move of the user's, too.
    const bool returns = Is_Return_Of_Focus(reason) && keeper_.Is_At(view.control);
    if (!keeper_.Is_At(view.control)) {
        help_->Forget_All();
        // While a routine runs the move is its own.
        gate_.Enter_Command([&] { static_cast<void>(keeper_.Goes_To(view.control)); });
    }
    const bool stayed = screen_ != nullptr && focusWidget() == view.Widget();
    if (stayed && !returns) {
        view.Show_Selection(Select_Field_Text(session_, view.control));
    }
}

void Screen_Window::Focus_Went() {
    session_.mouse_down = false;
}

void Screen_Window::Mouse_Down(bool down) {
    session_.mouse_down = down;
}

void Screen_Window::Mouse_On(Control& picture, bool on_logo, Mouse_Action action, double x,
                             double y) {
    if (screen_ == nullptr) {
        return;
    }
    const auto act = [&] {
        Mouse_On_Picture(session_, on_logo ? session_.Form60().Picture2 : picture, action, x, y);
    };
    action == Mouse_Action::Down ? gate_.Enter_Command(act, "Mouse") : gate_.Enter(act);
    if (action == Mouse_Action::Up && gate_.History() != nullptr) {
        gate_.History()->End_Stroke();
    }
}

const Drawing& Screen_Window::Canvas() {
    return Graph_Of(session_).canvas;
}

std::optional<Placed_Logo> Screen_Window::Logo() {
    return Shown_Logo(session_);
}

/// Which test a control stands for shows under the mouse.
void Screen_Window::Name_Test(const Control& control) {
    const int number = Sheet_Meant_By(control);
    Control_View* const view = View_Of(control);
    if (number > 0 && view != nullptr) {
        const Screen_Id id{Screen_Kind::Sheet, number};
        const bool is_there = session_.Is_Loaded(id);
        view->Widget()->setToolTip(is_there ? To_Qt(session_.Sheet(number).Text102(0).Text())
                                            : QString());
    }
}

void Screen_Window::Hovered(Control& control) {
    if (screen_ == nullptr) {
        return;
    }
    Name_Test(control);
    help_->Forget();
    pointed_ = &control;
    gate_.Enter([&] { Hover_Over(control); });
    Show_Words_Of_Pointed();
}

void Screen_Window::Hovered_Form() {
    if (screen_ == nullptr) {
        return;
    }
    help_->Forget();
    pointed_ = nullptr;
    gate_.Enter([this] { Hover_Over_Form(*screen_); });
    Show_Words_Of_Pointed();
}

/// A result is brought up to date, and an input edited, while the mouse rests on it, too.
void Screen_Window::Show_Words_Of_Pointed() {
    if (screen_ == nullptr) {
        return;
    }
    const QString age = pointed_ == nullptr ? QString() : Words_Of_Age(*pointed_);
    const Control* const label = screen_->Find("Label7", std::nullopt);
    Control_View* const words = label == nullptr ? nullptr : View_Of(*label);
    if (!age.isEmpty()) {
        help_->Show_Words(age);
    } else if (words != nullptr) {
        words->Refresh();
    } else {
        help_->Show_Words(pointed_ == nullptr ? QString() : Lines_To_Qt(pointed_->Entry().tip));
    }
}

void Screen_Window::Move_Focus(const Control_View& from, Direction direction) {
    const Page* const page = Page_Of(from.control);
    if (QWidget* const next = page == nullptr ? nullptr : page->Neighbour_Of(from, direction)) {
        next->setFocus(Qt::OtherFocusReason);
    }
}

} // namespace kestrum::desktop
