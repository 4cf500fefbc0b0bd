#include "records/unnamed_inputs.h"

namespace kestrum {

namespace {

bool Belongs_To_File(const Control& control) {
    const bool on_panel =
        control.Owner().Kind() == Screen_Kind::Engine && !control.Entry().parent.empty();
    return control.Is_Text_Box() && !control.Present_Look().locked && !on_panel;
}

} // namespace

Unnamed_Inputs::Unnamed_Inputs(Screen& screen) : screen_(screen) {
    for (Control& control : screen.Controls()) {
        control.Set_Left(Belongs_To_File(control));
    }
}

void Unnamed_Inputs::Note(bool is_whole) {
    for (Control& control : screen_.Controls()) {
        if (is_whole && control.Is_Left() && Belongs_To_File(control)) {
            unnamed_.push_back(&control);
        }
        any_known_ = any_known_ || (control.Entry().many_lines && !control.Is_Left());
        control.Set_Left(false);
    }
}

void Unnamed_Inputs::Tell(Session& session) const {
    const std::string title = Title_Of(screen_.Id()) + ": ";
    if (!any_known_) {
        return Tell_News(session, title + "no line of this file belongs here.");
    }
    for (Control* const control : unnamed_) {
        control->Set_Left(true);
    }
    const std::string count = session.numbers.Fmt_Whole(static_cast<int>(unnamed_.size()));
    if (unnamed_.size() == 1) {
        Tell_News(session, title + "1 input is not in this file and keeps what stood there; it is "
                                   "marked.");
    } else if (!unnamed_.empty()) {
        Tell_News(session, title + count +
                               " inputs are not in this file and keep what stood there; they are "
                               "marked.");
    }
}

void Tell_News(Session& session, std::string_view words) {
    std::string& news = session.file.news;
    news += (news.empty() ? "" : "  ") + std::string(words);
}

} // namespace kestrum
