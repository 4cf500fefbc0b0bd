#pragma once

#include "application/events.h"
#include "fuzz/fuzz_platform.h"
#include "graph/graph_state.h"

#include <cmath>
#include <cstdint>

namespace kestrum::fuzz {

/// Choices that the bytes of an input make, the same each time it is run.
class Choices {
public:
    explicit Choices(std::string_view bytes) {
        constexpr std::uint64_t prime = 1099511628211U;
        for (const char byte : bytes) {
            number_ = (number_ ^ static_cast<unsigned char>(byte)) * prime;
        }
        number_ ^= number_ >> 32U;
    }

    [[nodiscard]] int Next(unsigned count) {
        const auto chosen = static_cast<int>(number_ % count);
        number_ /= count;
        return chosen;
    }

private:
    std::uint64_t number_ = 14695981039346656037U;
};

inline void Require_Drawable(const Drawing& drawing) {
    constexpr std::size_t most_steps = 20000; // a graph of 2,000 lines and one overlay
    Require(drawing.Operations().size() <= most_steps);
    for (const Draw_Operation& step : drawing.Operations()) {
        for (const double number : {step.x1, step.y1, step.x2, step.y2, step.radius, step.width}) {
            Require(std::isfinite(number));
        }
        Require(step.style >= Line_Style::Solid && step.style <= Line_Style::Dot);
        Require(step.colour >= 0 && step.colour <= 0xFFFFFF);
        Require(Is_Utf8(step.text));
    }
}

inline void Click_On(Session& session, std::string_view button) {
    Click(session, *session.Form50().Find(button, std::nullopt));
}

/// Draws the graph of one input in 32, of a type and in a way that the input chooses.
inline void Draw_Some(Session& session, std::string_view bytes) {
    constexpr unsigned one_in = 32;
    Choices choices(bytes);
    if (choices.Next(one_in) != 0) {
        return;
    }
    const Compare_Screen& table = session.Form50();
    try {
        Click(session, table.Option3(choices.Next(18)));
        Click(session, table.Option4(choices.Next(3)));
        for (const std::string_view box : {"Check1", "Check2", "Check3", "Check4"}) {
            if (choices.Next(2) == 1) {
                Click_On(session, box);
            }
        }
        Click_On(session, "Command2");
        if (choices.Next(2) == 1) {
            Click_On(session, "Graph_Plus");
        }
    } catch (const Run_Time_Error& failure) {
        // A cell that is no number, or one that no axis can hold.
        Require(failure.Number() == error::type_mismatch || failure.Number() == error::overflow ||
                failure.Number() == error::division_by_zero);
    }
    Require_Drawable(Graph_Of(session).canvas);
    Graph_Of(session) = {};
}

} // namespace kestrum::fuzz
