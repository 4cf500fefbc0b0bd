#include "files/logo.h"

#include "platform/picture_file.h"

namespace kestrum {

void Show_Logo(Session& session) {
    if (session.logo_on == 0 || session.logo_file.empty()) {
        return;
    }
    if (!Is_Picture_File(session.logo_file)) {
        session.logo_on = 0;
        session.Message("No Logo File has been Seleted");
        return;
    }
    session.Form60().Show_Logo(true);
}

} // namespace kestrum
