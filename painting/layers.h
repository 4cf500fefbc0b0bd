#pragma once

#include "painting/fitted_text.h"

#include <span>

namespace kestrum::painting {

/// What writes one kind of picture.
class Step_Painter {
public:
    Step_Painter() = default;
    Step_Painter(const Step_Painter&) = delete;
    Step_Painter& operator=(const Step_Painter&) = delete;
    virtual ~Step_Painter() = default;

    /// Lines of one pen, each of which begins where the last one ends.
    virtual void Lines(std::span<const Draw_Operation> lines) = 0;
    virtual void Circle(const Draw_Operation& circle) = 0;
    virtual void Text(const Fitted_Text& text) = 0;
};

/// Hands out the steps of a drawing in the order in which they are painted: figures first, the
/// texts over them so that no curve makes one unreadable, and over all what the user drew.
void Paint_In_Layers(const Drawing& drawing, Step_Painter& painter);

} // namespace kestrum::painting
