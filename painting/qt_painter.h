#pragma once

#include "platform/painter.h"

namespace kestrum::painting {

/// The painter of every face that has Qt. It needs a QGuiApplication.
class Qt_Painter : public Painter {
public:
    /// PNG comes at twice the size of the canvas, BMP at its size, SVG and PDF as lines and texts.
    [[nodiscard]] std::string Picture_Of(const Drawing& drawing, Picture_Format format,
                                         const std::optional<Placed_Logo>& logo) override;
};

} // namespace kestrum::painting
