#include "output/printer_choice.h"

#include "drawing/printer.h"
#include "output/print_state.h"

#include <algorithm>

namespace kestrum {

namespace {

std::vector<std::string> Devices_Of(const Session& session) {
    return session.printers == nullptr ? std::vector<std::string>() : session.printers->Devices();
}

} // namespace

void Offer_Printers(Session& session) {
    const Engine_Screen& main = session.Main();
    const std::vector<std::string> devices = Devices_Of(session);
    main.Combo1.Set_Items(devices);
    Print_Of(session).chosen_printer = devices.empty() ? std::string() : devices.front();
    main.Combo1.Set_Text(Print_Of(session).chosen_printer);
    main.Frame99.Set_Visible(true);
}

void Put_Printer_In_Force(Session& session) {
    const std::vector<std::string> devices = Devices_Of(session);
    if (std::ranges::find(devices, Print_Of(session).chosen_printer) != devices.end()) {
        Print_Of(session).printer = Print_Of(session).chosen_printer;
    }
    session.Main().Frame99.Set_Visible(false);
}

} // namespace kestrum
