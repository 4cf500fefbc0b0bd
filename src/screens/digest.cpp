#include "screens/digest.h"

#include "base/byte_digest.h"
#include "screens/screen.h"

namespace kestrum {

namespace {

bool Is_Entered(const Control& control) {
    return control.Is_Text_Box() && !control.Present_Look().locked;
}

/// The port on `Main` has calculators of its own, and the comparison follows from its options.
bool Feeds_Results(const Control& control) {
    constexpr int port_row = 9;
    switch (control.Owner().Kind()) {
    case Screen_Kind::Engine:
        return Is_Entered(control) && control.Entry().filter != Key_Filter::Every_Key &&
               control.Index() != port_row;
    case Screen_Kind::Sheet:
        return Is_Entered(control) && control.Entry().filter != Key_Filter::Every_Key;
    case Screen_Kind::Compare:
        return control.Entry().kind == Control_Kind::Option_Button;
    case Screen_Kind::Graph:
    case Screen_Kind::Report:
        return false;
    }
    return false;
}

/// Of a text and where it stands; the last steps spread it over all bits, as sums need.
std::uint64_t Digest_In_Place(const Control& control) {
    constexpr int byte = 8;
    const auto place = &control - control.Owner().Controls().data();
    Byte_Digest digest;
    digest.Add(static_cast<char>(place));
    digest.Add(static_cast<char>(place >> byte));
    for (const char character : control.Text()) {
        digest.Add(character == ',' ? '.' : character);
    }
    digest.Add(control.Value() == 0 ? '\0' : '\1');
    constexpr std::uint64_t odd = 0x9E3779B97F4A7C15; // of the golden section
    constexpr unsigned half = 32;
    const std::uint64_t mixed = (digest.Value() ^ digest.Value() >> half) * odd;
    return mixed ^ mixed >> half;
}

} // namespace

Input_Digests Share_Of(const Control& control) {
    const bool entered = Is_Entered(control);
    const bool feeds = Feeds_Results(control);
    if (!entered && !feeds) {
        return {};
    }
    const std::uint64_t digest = Digest_In_Place(control);
    return {.figures = feeds ? digest : 0, .inputs = entered ? digest : 0};
}

} // namespace kestrum
