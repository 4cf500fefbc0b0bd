#pragma once

#include "base/run_time_error.h"
#include "drawing/drawing.h"
#include "drawing/figure.h"
#include "drawing/paper.h"

#include <optional>
#include <string>

namespace kestrum {

enum class Picture_Format { Bmp, Png, Svg, Pdf };

/// A picture file that lies over a drawing, with its left and top in the drawing's units.
struct Placed_Logo {
    std::string file;
    double left = 0;
    double top = 0;
};

/// How a picture file is made; nothing stands for the usual.
struct Picture_Settings {
    /// Dots in an inch of a PNG file.
    std::optional<int> dots_per_inch{};
    /// The paper of a PDF file, usually A4.
    std::optional<Paper_Size> paper{};
};

/// Turns drawings into picture files. A face brings it along where it can paint.
struct Painter {
    Painter() = default;
    Painter(const Painter&) = delete;
    Painter& operator=(const Painter&) = delete;
    virtual ~Painter() = default;

    /// Keeps the picture of a logo that is to be shown, so that it outlives its file. Raises 481
    /// when it cannot be painted. A painter that is not there yet looks at it later.
    virtual void Take_Logo(const std::string& /*file*/) {}

    /// The bytes of a picture file of a drawing of the graph's canvas. Raises 481 for a logo that
    /// cannot be shown and 75 for a picture that cannot be made.
    [[nodiscard]] virtual std::string Picture_Of(const Drawing& drawing, Picture_Format format,
                                                 const std::optional<Placed_Logo>& logo) = 0;

    /// The bytes of a picture file of pages, which only PDF keeps apart; SVG needs no painter.
    /// Raises 481 without anything to paint with, 75 for a picture that cannot be made.
    [[nodiscard]] virtual std::string Picture_Of(std::span<const Figure> /*pages*/,
                                                 Picture_Format /*format*/) {
        Fail(error::invalid_picture);
    }

    /// How the pictures to come are made.
    virtual void Use(const Picture_Settings& /*settings*/) {}

    /// The bytes of a PDF file of a document on paper with ordinary margins. A logo that cannot be
    /// shown is left out. Raises 481 without pages to paint on, 75 for a file that cannot be made,
    /// and what the layout raises.
    [[nodiscard]] virtual std::string Pdf_Of(const Document& /*document*/, Paper_Size /*paper*/) {
        Fail(error::invalid_picture);
    }
};

} // namespace kestrum
