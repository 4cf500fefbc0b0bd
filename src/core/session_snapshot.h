#pragma once

#include "core/session.h"

#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace kestrum {

/// A moment of a session: which screens are loaded and visible, all that they show, and the shared
/// variables with the state of the wings. Taking one is cheap, since what has not changed between
/// two of them, and what stands on the canvas, is shared.
class Session_Snapshot {
public:
    explicit Session_Snapshot(Session& session);

    /// Brings the session back to that moment. A screen that was unloaded since is created again,
    /// one that was created since is unloaded. Files stay as they are.
    void Put_Back(Session& session) const;

private:
    template <typename... Variable>
    static std::tuple<Variable...> Copied(const std::tuple<Variable&...>& variables);

    using Variables = decltype(Copied(std::declval<Session&>().Variables()));

    struct Kept_Screen {
        std::string name;
        Screen_State state;
    };

    [[nodiscard]] bool Holds(const Screen& screen) const;

    std::vector<Kept_Screen> screens_;
    Variables variables_;
};

} // namespace kestrum
