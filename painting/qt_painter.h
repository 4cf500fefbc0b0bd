#pragma once

#include "painting/replay.h"
#include "platform/painter.h"

namespace kestrum::painting {

/// The painter of every face that has Qt. It needs a QGuiApplication.
class Qt_Painter : public Painter {
public:
    void Take_Logo(const std::string& file) override;

    /// PNG comes at twice the size of the canvas, BMP at its size, SVG and PDF as lines and texts.
    [[nodiscard]] std::string Picture_Of(const Drawing& drawing, Picture_Format format,
                                         const std::optional<Placed_Logo>& logo) override;

private:
    [[nodiscard]] Logo_Picture Picture_Of_Logo(const Placed_Logo& logo) const;

    std::string logo_file_;
    QImage logo_;
};

} // namespace kestrum::painting
