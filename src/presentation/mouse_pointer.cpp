#include "presentation/mouse_pointer.h"

namespace kestrum {

void Set_Plain_Pointer(Session& session) {
    for (const std::string_view name :
         {"Main", "Form1", "Form2", "Form3", "Form4", "Form5", "Form50", "Form60", "Form70"}) {
        session.Screen_Named(name)->plain_pointer = true;
    }
}

} // namespace kestrum
