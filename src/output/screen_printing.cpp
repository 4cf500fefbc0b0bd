#include "output/screen_printing.h"

#include "platform/printer.h"
#include "screens/geometry.h"

namespace kestrum {

void Print_Screen(Session& session, const Screen& screen) {
    if (session.printers == nullptr || session.printers->Devices().empty()) {
        Fail(error::printer_error);
    }
    const Twips size = Place_In_Twips(screen);
    session.printers->Print_Screen(
        session.printers->Devices().front(),
        {.screen = screen.Name(), .width = size.width, .height = size.height});
}

} // namespace kestrum
