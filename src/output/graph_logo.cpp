#include "output/graph_logo.h"

#include "core/chosen_file.h"
#include "platform/picture_file.h"

namespace kestrum {

namespace {

constexpr std::string_view filter =
    "Bit Map Image Files (*.bmp)|*.bmp|GIF Files (*.gif)|*.gif|JPG Files (*.jpg)|*.jpg|All Files "
    "(*.*)|*.*";

void Take_Logo_Off(Session& session) {
    const Graph_Screen& screen = session.Form60();
    screen.Picture2.Set_Visible(false);
    screen.Logo.Set_Text("Logo -- Is OFF");
    session.logo_on = 0;
    session.logo_file.clear();
    screen.Picture1.Repaint();
}

void Put_Logo_On(Session& session, const std::string& path) {
    const Graph_Screen& screen = session.Form60();
    screen.Picture2.Set_Visible(true);
    screen.Logo.Set_Text("Logo -- Is ON");
    session.logo_on = 1;
    session.logo_file = path;
    screen.Picture1.Repaint();
}

} // namespace

void Toggle_Logo(Session& session) {
    if (session.logo_on == 1) {
        return Take_Logo_Off(session);
    }
    try {
        const std::string path = Chosen_File(session, Chooser_Mode::Open, filter, 1);
        if (!Is_Picture_File(path)) {
            Fail(error::invalid_picture);
        }
        Put_Logo_On(session, path);
    } catch (const Run_Time_Error&) {
        session.Message("No Logo File has been Seleted");
    }
}

} // namespace kestrum
