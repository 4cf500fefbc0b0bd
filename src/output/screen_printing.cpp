#include "output/screen_printing.h"

#include "platform/printer.h"
#include "screens/geometry.h"

namespace kestrum {

void Print_Screen(Session& session, const Screen& screen) {
    try {
        if (session.printers == nullptr || session.printers->Devices().empty()) {
            Fail(error::printer_error);
        }
        const Twips size = Place_In_Twips(screen);
        session.printers->Print_Screen(
            session.printers->Devices().front(),
            {.screen = screen.Name(), .width = size.width, .height = size.height});
    } catch (const Run_Time_Error& failure) {
        // A printer without paper must not end the program.
        session.Message(failure.Description(), Box_Icon::Exclamation);
    }
}

} // namespace kestrum
