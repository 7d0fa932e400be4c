// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The check of a digit written as plainly as it is described, for searches that the game's own is
/// compared with.
#pragma once

#include <cstdint>

#include "board/square.hpp"

namespace sdk::test {

/// Whether the value of a cell (rows and columns 1..9) differs from the eight others of its row,
/// the eight of its column and the four of its box that share neither. Makes all twenty
/// comparisons.
inline bool passes(const Square<std::int16_t>& grid, int row, int column) {
  const int v = grid(row, column);
  bool result = true;
  for (int k = 1; k <= 9; ++k) {
    if (k != column && grid(row, k) == v) result = false;
    if (k != row && grid(k, column) == v) result = false;
  }
  const int r0 = (row - 1) / 3 * 3 + 1, c0 = (column - 1) / 3 * 3 + 1;
  for (int r = r0; r <= r0 + 2; ++r)
    for (int c = c0; c <= c0 + 2; ++c)
      if (r != row && c != column && grid(r, c) == v) result = false;
  return result;
}

}  // namespace sdk::test
