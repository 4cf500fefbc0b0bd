#include "screens/digest.h"

#include "screens/screen.h"

#include <string_view>

namespace kestrum {

namespace {

/// Fowler, Noll and Vo's, of 64 bits.
class Digest {
public:
    void Add(std::string_view text) {
        for (const char character : text) {
            Add(character == ',' ? '.' : character);
        }
        Add('\0');
    }

    [[nodiscard]] std::uint64_t Value() const { return value_; }

private:
    void Add(char character) {
        constexpr std::uint64_t prime = 0x100000001B3;
        value_ = (value_ ^ static_cast<unsigned char>(character)) * prime;
    }

    std::uint64_t value_ = 0xCBF29CE484222325;
};

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

} // namespace

std::uint64_t Digest_Of_Figures(const Screen& screen) {
    Digest digest;
    for (const Control& control : screen.Controls()) {
        if (Feeds_Results(control)) {
            digest.Add(control.Text());
            digest.Add(control.Value() == 0 ? "" : "on");
        }
    }
    return digest.Value();
}

std::uint64_t Digest_Of_Inputs(const Screen& screen) {
    Digest digest;
    for (const Control& control : screen.Controls()) {
        if (Is_Entered(control)) {
            digest.Add(control.Text());
        }
    }
    return digest.Value();
}

} // namespace kestrum
