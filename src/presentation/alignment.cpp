#include "presentation/alignment.h"

namespace kestrum {

namespace {

bool Keeps_Its_Alignment(const Control& control) {
    const std::string_view name = control.Entry().array;
    return !control.Is_Text_Box() || name == "Text71" || name == "Text72";
}

} // namespace

void Apply_Alignment(Session& session) {
    const Alignment alignment = session.numbers.align_mode;
    session.For_Each_Loaded([alignment](Screen& screen) {
        if (screen.Kind() == Screen_Kind::Graph || screen.Kind() == Screen_Kind::Report) {
            return;
        }
        for (Control& control : screen.Controls()) {
            if (!Keeps_Its_Alignment(control)) {
                Look look = control.Present_Look();
                look.alignment = alignment;
                control.Set_Look(look);
            }
        }
    });
}

} // namespace kestrum
