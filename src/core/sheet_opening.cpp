#include "core/sheet_opening.h"

namespace kestrum {

void Show_With_Caption(Session& session, Flow_Sheet& sheet) {
    sheet.caption = session.title_text + " -- " + Title_Of(sheet.Id());
    session.Show(sheet);
}

} // namespace kestrum
