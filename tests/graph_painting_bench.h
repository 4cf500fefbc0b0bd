#pragma once

#include "painting/picture_area.h"
#include "painting/qt_painter.h"
#include "painting/text_layout.h"
#include "tests/graph_test_bench.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace kestrum::painting {

/// A drawing that is made into pictures. Starts the part of Qt that sets texts, once for all tests.
class Painting : public ::testing::Test {
protected:
    Painting();

    [[nodiscard]] std::string Bytes(Picture_Format format) {
        return painter_.Picture_Of(drawing_, format, logo_);
    }

    [[nodiscard]] QImage Picture(Picture_Format format) { return Image_Of(Bytes(format)); }

    [[nodiscard]] static QImage Image_Of(const std::string& bytes);

    /// Colour at a place of the canvas.
    [[nodiscard]] static QRgb At(const QImage& picture, double x, double y);

    /// What is not white, in units of the canvas.
    [[nodiscard]] static QRectF Inked(const QImage& picture);

    [[nodiscard]] Text_Layout Laid_Out() const;

    Qt_Painter painter_;
    Drawing drawing_;
    std::optional<Placed_Logo> logo_;
    Temp_Folder folder_;
};

} // namespace kestrum::painting
