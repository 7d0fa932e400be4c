// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// From the core's twips to the toolkit's pixels.
#pragma once

#include <QRect>
#include <cmath>

#include "ui/layout.hpp"

namespace sdk {

/// Logical pixels, rounded down, so that what stands at the same twips stands at the same pixel.
inline int pixels(float twips) { return static_cast<int>(std::floor(twips / twips_per_pixel)); }

inline QRect pixels(const Rectangle& r) {
  const auto size = [](float twips) {
    return static_cast<int>(std::lround(twips / twips_per_pixel));
  };
  return {pixels(r.left), pixels(r.top), size(r.width), size(r.height)};
}

}  // namespace sdk
