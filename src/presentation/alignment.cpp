#include "presentation/alignment.h"

#include "presentation/styled_boxes.h"

namespace kestrum {

void Apply_Alignment(Session& session) {
    const Alignment alignment = session.numbers.align_mode;
    session.For_Each_Loaded([alignment](Screen& screen) {
        if (screen.Kind() == Screen_Kind::Graph || screen.Kind() == Screen_Kind::Report) {
            return;
        }
        for (Control& control : screen.Controls()) {
            if (Is_Styled_Box(control)) {
                Look look = control.Present_Look();
                look.alignment = alignment;
                control.Set_Look(look);
            }
        }
    });
}

} // namespace kestrum
