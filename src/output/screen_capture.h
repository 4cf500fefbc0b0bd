#pragma once

#include "core/session.h"

#include <string>

namespace kestrum {

/// "Main" while the engine screen takes the picture of itself.
struct Capture_State {
    std::string source;
};

[[nodiscard]] inline Capture_State& Capture_Of(Session& session) {
    return session.wings.Of<Capture_State>();
}

/// The file of a picture taken now, in the program's folder:
/// "Flow_Monday_November_16_2026_9_5_3.jpg".
[[nodiscard]] std::string Capture_Path(const Session& session);

/// Keeps a picture of a screen as a JPEG file, with `Main` out of the way. Raises 5 when it cannot
/// be kept.
void Save_Form_Jpg(Session& session, Screen& screen);

/// The same of `Main`, which stays where it is.
void Capture_Engine_Screen(Session& session);

} // namespace kestrum
