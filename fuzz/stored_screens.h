#pragma once

#include "fuzz/fuzz_platform.h"
#include "sheet/flow_calculation.h"

#include <string>
#include <vector>

namespace kestrum::fuzz {

/// The screens of a session as they stand at its start. After each input what has changed goes
/// back to that, which is much faster than a new session.
class Stored_Screens {
public:
    explicit Stored_Screens(Session& session) : session_(session) {
        for (int number = 1; number <= sheet_count; ++number) {
            Calc_Flow_Test(session, session.Sheet(number));
        }
        static_cast<void>(session.Form50());
        static_cast<void>(session.Form60());
        session.For_Each_Loaded([this](Screen& screen) {
            static_cast<void>(screen.Take_Changes());
            for (const Control& control : screen.Controls()) {
                stored_.push_back({control.Text(), control.Value(), control.Present_Look()});
            }
        });
    }

    /// Checks that every changed text is one, and puts all back.
    void Put_Back() {
        std::size_t first = 0;
        session_.For_Each_Loaded([&](Screen& screen) {
            for (Control* const control : screen.Take_Changes()) {
                Require(Is_Utf8(control->Text()));
                const auto at = static_cast<std::size_t>(control - screen.Controls().data());
                const State& state = stored_[first + at];
                control->Set_Text(state.text);
                control->Set_Value(state.value);
                control->Set_Look(state.look);
            }
            static_cast<void>(screen.Take_Changes());
            first += screen.Controls().size();
        });
    }

private:
    struct State {
        std::string text;
        int value;
        Look look;
    };

    Session& session_;
    std::vector<State> stored_;
};

} // namespace kestrum::fuzz
