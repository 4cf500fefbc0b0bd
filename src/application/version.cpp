#include "application/version.h"

namespace kestrum {

std::string Program_Version() {
    return KESTRUM_VERSION;
}

} // namespace kestrum
