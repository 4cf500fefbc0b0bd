#include "desktop/program.h"

#include "application/start_up.h"

#include <QCoreApplication>

namespace kestrum::desktop {

Program::Program(Dialogs& dialogs, const Surroundings& surroundings)
    : gate_(dialogs), session_(dialogs, windows_, surroundings), windows_(gate_) {
    windows_.Take_Session(session_);
    windows_.on_end = [] { QCoreApplication::exit(0); };
    gate_.Set_Follow_Up([this] { windows_.Refresh(); });
}

bool Program::Start() {
    return gate_.Enter([this] { Start_Up(session_); });
}

} // namespace kestrum::desktop
