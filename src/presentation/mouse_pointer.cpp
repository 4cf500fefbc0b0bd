#include "presentation/mouse_pointer.h"

namespace kestrum {

void Set_Plain_Pointer(Session& session) {
    session.settings.plain_pointer =
        true; // a screen that is not there yet takes it when it is made
    session.For_Each_Loaded([](Screen& screen) { screen.plain_pointer = true; });
}

} // namespace kestrum
