#include "desktop/make_view.h"

#include "application/events.h"
#include "desktop/button_views.h"
#include "desktop/entry_field.h"
#include "desktop/notes_field.h"
#include "desktop/picture_view.h"
#include "desktop/report_viewer.h"
#include "desktop/text_views.h"

namespace kestrum::desktop {

namespace {

Control_View& Make_Field(Control& control, const View_Facts& facts, QWidget* parent) {
    const Control_Entry& entry = control.Entry();
    if (Takes_Raw_Keys(control)) {
        return *new Report_Viewer(control, facts, parent);
    }
    if (entry.many_lines) {
        return *new Notes_Field(control, facts, parent);
    }
    // A cell with handlers is a field even while it is locked: its filter beeps.
    const bool has_handlers = entry.filter != Key_Filter::Every_Key || entry.selects_on_focus;
    if (entry.use == Cell_Use::Input || has_handlers) {
        return *new Entry_Field(control, facts, parent);
    }
    return *new Cell_View(control, facts, parent);
}

Control_View& Make_Label(Control& control, const View_Facts& facts, QWidget* parent,
                         bool over_a_cell) {
    if (control.Text().empty() && control.Entry().back_colour >= 0) {
        return *new Marker_View(control, facts, parent, over_a_cell);
    }
    return *new Label_View(control, facts, parent);
}

} // namespace

Control_View& Make_View(Control& control, const View_Facts& facts, QWidget* parent,
                        bool over_a_cell) {
    switch (control.Entry().kind) {
    case Control_Kind::Text_Box:
        return Make_Field(control, facts, parent);
    case Control_Kind::Button:
        return *new Button_View(control, facts, parent);
    case Control_Kind::Check_Box:
        return *new Check_View(control, facts, parent);
    case Control_Kind::Option_Button:
        return *new Option_View(control, facts, parent);
    case Control_Kind::Combo_Box:
        return *new Combo_View(control, facts, parent);
    case Control_Kind::Picture:
        return *new Picture_View(control, facts, parent);
    case Control_Kind::Label:
    case Control_Kind::Frame:      // has pages of its own
    case Control_Kind::Menu_Entry: // stands in no page
        break;
    }
    return Make_Label(control, facts, parent, over_a_cell);
}

} // namespace kestrum::desktop
