#include "files/logo.h"

#include "core/logo_picture.h"
#include "records/named_files.h"

namespace kestrum {

void Show_Logo(Session& session) {
    if (!session.settings.logo.on || session.settings.logo.file.empty()) {
        return session.Form60().Hide_Logo();
    }
    try {
        Take_Logo(session, Path_Of_Named_File(session, session.settings.logo.file));
        session.Form60().Show_Logo(session.settings.logo.size.value_or(Extent{}));
    } catch (const Run_Time_Error&) {
        session.settings.logo.on = false;
        session.Form60().Hide_Logo();
        session.Message("No Logo File has been Seleted");
    }
}

} // namespace kestrum
