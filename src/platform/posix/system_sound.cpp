#include "platform/system_sound.h"

namespace kestrum {

bool Play_By_System(const std::string& /*path*/) {
    return false;
}

} // namespace kestrum
