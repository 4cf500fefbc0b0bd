#pragma once

#include <any>
#include <deque>

namespace kestrum {

/// The states that the wings keep in a session, one of each type, as that type begins. The session
/// knows none of the types; a copy holds copies of all.
class Wing_States {
public:
    /// The reference holds until another set of states is assigned.
    template <typename State>
    [[nodiscard]] State& Of() {
        for (std::any& state : states_) {
            if (State* const found = std::any_cast<State>(&state)) {
                return *found;
            }
        }
        return std::any_cast<State&>(states_.emplace_back(State{}));
    }

    template <typename State>
    [[nodiscard]] const State& Of() const {
        for (const std::any& state : states_) {
            if (const State* const found = std::any_cast<State>(&state)) {
                return *found;
            }
        }
        static const State as_it_begins{};
        return as_it_begins;
    }

private:
    std::deque<std::any> states_;
};

} // namespace kestrum
