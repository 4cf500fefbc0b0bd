#include "platform/end_signals.h"

namespace kestrum {

// The system tells the windows of its end, and of no other.

End_Signals::End_Signals() = default;

End_Signals::~End_Signals() = default;

std::optional<int> End_Signals::Heard() const {
    return std::nullopt;
}

void End_Signals::Obey(int /*signal*/) {}

} // namespace kestrum
