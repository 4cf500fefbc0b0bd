#include "output/graph_logo.h"

#include "core/logo_picture.h"
#include "records/named_files.h"

namespace kestrum {

namespace {

constexpr std::string_view logo_filter =
    "Bit Map Image Files (*.bmp)|*.bmp|GIF Files (*.gif)|*.gif|JPG Files (*.jpg)|*.jpg|All Files "
    "(*.*)|*.*";

/// No path takes it off.
void Put_Logo(Session& session, const std::string& path) {
    const Graph_Screen& screen = session.Form60();
    session.settings.logo.on = !path.empty();
    session.settings.logo.file = path;
    if (path.empty()) {
        session.settings.logo.size.reset();
        screen.Hide_Logo();
    } else {
        screen.Show_Logo(session.settings.logo.size.value_or(Extent{}));
    }
    screen.Picture1.Repaint();
}

} // namespace

void Toggle_Logo(Session& session) {
    if (session.settings.logo.on) {
        return Put_Logo(session, {});
    }
    try {
        const std::string path = Chosen_File(session, Chooser_Mode::Open, logo_filter, 1);
        Take_Logo(session, path);
        Put_Logo(session, path);
    } catch (const Run_Time_Error&) {
        session.Message("No Logo File has been Seleted");
    }
}

} // namespace kestrum
