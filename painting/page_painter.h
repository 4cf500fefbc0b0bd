#pragma once

#include "drawing/paper.h"

#include <QPagedPaintDevice>
#include <QPainter>

namespace kestrum::painting {

class Qt_Painter;

/// Gives a device a paper with ordinary margins.
void Set_Paper(QPagedPaintDevice& device, Paper_Size size);

/// Paints a page of a document; the painter's units are twips. Each text is set in letters of its
/// natural width at its anchor, smaller where it would run into its neighbour.
void Paint_Page(const Drawing& page, QPainter& painter, const Qt_Painter& logos);

/// Lays a document out for what the margins of a device leave and paints its pages, made smaller
/// where that is needed to fit them. False when the device cannot be painted on.
[[nodiscard]] bool Print_On(const Document& document, QPagedPaintDevice& device,
                            const Qt_Painter& logos);

} // namespace kestrum::painting
