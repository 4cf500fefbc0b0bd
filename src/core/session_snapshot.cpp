#include "core/session_snapshot.h"

#include <algorithm>

namespace kestrum {

Session_Snapshot::Session_Snapshot(Session& session) : variables_(session.Variables()) {
    session.For_Each_Loaded([this](Screen& screen) {
        screens_.push_back({screen.Name(), screen.Present_State()});
    });
}

bool Session_Snapshot::Holds(const Screen& screen) const {
    return std::ranges::find(screens_, screen.Name(), &Kept_Screen::name) != screens_.end();
}

void Session_Snapshot::Put_Back(Session& session) const {
    // A screen that is created here is dressed by the present variables, so its state comes behind.
    for (const Kept_Screen& kept : screens_) {
        session.Screen_Named(kept.name)->Set_State(kept.state);
    }
    session.Variables() = variables_;
    std::vector<Screen*> made_since;
    session.For_Each_Loaded([&](Screen& screen) {
        if (!Holds(screen)) {
            made_since.push_back(&screen);
        }
    });
    for (Screen* const screen : made_since) {
        session.Unload(*screen);
    }
    for (const Kept_Screen& kept : screens_) {
        Screen& screen = *session.Screen_Named(kept.name);
        if (screen.visible && !kept.state.visible) {
            session.Hide(screen);
        } else if (!screen.visible && kept.state.visible) {
            session.Show(screen);
        }
    }
}

} // namespace kestrum
