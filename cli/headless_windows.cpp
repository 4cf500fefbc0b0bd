#include "cli/headless_windows.h"

#include "screens/screen.h"

#include <nlohmann/json.hpp>

namespace kestrum::cli {

void Headless_Windows::Show(Screen& screen) {
    printer_.Print({{"show", screen.Name()}});
}

void Headless_Windows::Hide(Screen& screen) {
    printer_.Print({{"hide", screen.Name()}});
}

void Headless_Windows::Unload(Screen& screen) {
    printer_.Print({{"unload", screen.Name()}});
}

void Headless_Windows::Focus(Control& control) {
    printer_.Print({{"focus", control.Address()}});
}

} // namespace kestrum::cli
