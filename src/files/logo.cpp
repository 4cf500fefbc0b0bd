#include "files/logo.h"

#include "core/logo_picture.h"

namespace kestrum {

void Show_Logo(Session& session) {
    if (session.logo_on == 0 || session.logo_file.empty()) {
        return;
    }
    try {
        Take_Logo(session, session.logo_file);
        session.Form60().Show_Logo(true);
    } catch (const Run_Time_Error&) {
        session.logo_on = 0;
        session.Message("No Logo File has been Seleted");
    }
}

} // namespace kestrum
