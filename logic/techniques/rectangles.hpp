// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The scan that the techniques on rectangles share.
#pragma once

#include <array>
#include <optional>

#include "board/cells.hpp"
#include "logic/deduction.hpp"

namespace sdk {

/// The corners of a rectangle: P and Q in its upper row, R and S below them.
using Corners = std::array<Cell, 4>;

/// Asks `find_on` about every rectangle of the grid until it has something. The upper row varies
/// slowest, then the lower row, the left and the right column.
template <class FindOn>
std::optional<Deduction> find_on_rectangles(FindOn find_on) {
  for (int row1 = 1; row1 <= 8; ++row1)
    for (int row2 = row1 + 1; row2 <= 9; ++row2)
      for (int column1 = 1; column1 <= 8; ++column1)
        for (int column2 = column1 + 1; column2 <= 9; ++column2) {
          const Corners corners{
              {{row1, column1}, {row1, column2}, {row2, column1}, {row2, column2}}};
          if (auto found = find_on(corners)) return found;
        }
  return std::nullopt;
}

}  // namespace sdk
