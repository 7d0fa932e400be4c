// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// A page of the core on paper.
#pragma once

#include "screen/drawing.hpp"

class QPagedPaintDevice;
class QPainter;

namespace sdk {

/// Paints `page` in order. The painter's unit must be the twip.
void paint_drawings(QPainter& painter, const Page& page);

/// Paints `page` on the printable area of the device's current page. False when the device refuses
/// to be painted on.
bool paint_page(QPagedPaintDevice& device, const Page& page);

}  // namespace sdk
