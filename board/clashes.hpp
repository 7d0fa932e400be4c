// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The three rules of the game in one question.
#pragma once

#include <cstdint>

#include "board/cell_set.hpp"
#include "board/square.hpp"

namespace sdk {

/// Whether the value of a cell stands in a cell that it sees too. An empty cell's 0 is a value like
/// any other. `grid` gives the value at a row and a column, both 1..9, as a Square does.
template <class Grid = Square<std::int16_t>>
constexpr bool has_clash(const Grid& grid, Cell cell) {
  for (const int number : peers_of(cell)) {
    const Cell peer = cell_at(number);
    if (grid(peer.row, peer.column) == grid(cell.row, cell.column)) return true;
  }
  return false;
}

}  // namespace sdk
