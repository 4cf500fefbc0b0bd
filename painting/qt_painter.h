#pragma once

#include "drawing/painter.h"
#include "painting/replay.h"

namespace kestrum::painting {

/// The painter of every face that has Qt. It needs a QGuiApplication.
class Qt_Painter : public Painter {
public:
    void Take_Logo(const std::string& file) override;

    /// PNG comes at twice the size of the canvas, BMP at its size, SVG and PDF as lines and texts,
    /// PDF on paper.
    [[nodiscard]] std::string Picture_Of(const Drawing& drawing, Picture_Format format,
                                         const std::optional<Placed_Logo>& logo) override;

    [[nodiscard]] std::string Picture_Of(std::span<const Figure> pages,
                                         Picture_Format format) override;

    void Use(const Picture_Settings& settings) override { settings_ = settings; }

    [[nodiscard]] std::string Pdf_Of(const Document& document, Paper_Size paper) override;

    /// The picture of a logo file, empty where there is none to be had.
    [[nodiscard]] QImage Image_Of(const std::string& file) const;

private:
    [[nodiscard]] Logo_Picture Picture_Of_Logo(const Placed_Logo& logo) const;

    std::string logo_file_;
    QImage logo_;
    Picture_Settings settings_;
};

} // namespace kestrum::painting
