#pragma once

namespace kestrum::painting {

/// Makes the letters known that came with the program. Where the system's packages bring them,
/// there are none.
void Know_Own_Fonts();

} // namespace kestrum::painting
