// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Where the window and its grids stand. All values are in twips, from the window's top left
/// corner.
#pragma once

namespace sdk {

struct Rectangle {
  float left, top, width, height;
  bool operator==(const Rectangle&) const = default;
};

struct Layout {
  Rectangle window;  ///< at (0, 0): the window's inside
  Rectangle MSF, MSR;
  Rectangle rect, rect2;  ///< the frames around the grids
};

inline constexpr float twips_per_pixel = 15;
inline constexpr float cell_size = 780;

/// The layout with the candidates shown beside the puzzle, or with the puzzle alone. A hidden `MSR`
/// stands behind `MSF`.
Layout layout(bool candidates_shown);

}  // namespace sdk
