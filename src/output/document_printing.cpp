#include "output/document_printing.h"

#include "drawing/printer.h"
#include "output/print_state.h"
#include "screens/geometry.h"

#include <algorithm>

namespace kestrum {

namespace {

void Print_Or_Tell(Session& session, const std::function<void(const std::string& device)>& print) {
    try {
        print(Printer_In_Force(session));
    } catch (const Run_Time_Error& failure) {
        session.Message(failure.Description(), Box_Icon::Exclamation);
    }
}

} // namespace

std::string Printer_In_Force(const Session& session) {
    const auto devices =
        session.printers == nullptr ? std::vector<std::string>() : session.printers->Devices();
    const std::string& chosen = Print_Of(session).printer;
    if (devices.empty() ||
        (!chosen.empty() && std::ranges::find(devices, chosen) == devices.end())) {
        Fail(error::printer_error);
    }
    return chosen.empty() ? devices.front() : chosen;
}

void Print_Document(Session& session, const Document& document) {
    Print_Or_Tell(session,
                  [&](const std::string& device) { session.printers->Print(device, document); });
}

void Print_Screen(Session& session, const Screen& screen) {
    const Twips size = Place_In_Twips(screen);
    Print_Or_Tell(session, [&](const std::string& device) {
        session.printers->Print_Screen(
            device, {.screen = screen.Name(), .width = size.width, .height = size.height});
    });
}

} // namespace kestrum
