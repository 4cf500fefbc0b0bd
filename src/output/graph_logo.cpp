#include "output/graph_logo.h"

#include "core/logo_picture.h"
#include "records/named_files.h"

namespace kestrum {

namespace {

constexpr std::string_view filter =
    "Bit Map Image Files (*.bmp)|*.bmp|GIF Files (*.gif)|*.gif|JPG Files (*.jpg)|*.jpg|All Files "
    "(*.*)|*.*";

/// No path takes it off.
void Put_Logo(Session& session, const std::string& path) {
    const Graph_Screen& screen = session.Form60();
    session.logo_on = path.empty() ? 0 : 1;
    session.logo_file = path;
    if (path.empty()) {
        session.logo_size.reset();
        screen.Hide_Logo();
    } else {
        screen.Show_Logo(session.logo_size.value_or(Extent{}));
    }
    screen.Picture1.Repaint();
}

} // namespace

void Toggle_Logo(Session& session) {
    if (session.logo_on == 1) {
        return Put_Logo(session, {});
    }
    try {
        const std::string path = Chosen_File(session, Chooser_Mode::Open, filter, 1);
        Take_Logo(session, path);
        Put_Logo(session, path);
    } catch (const Run_Time_Error&) {
        session.Message("No Logo File has been Seleted");
    }
}

} // namespace kestrum
