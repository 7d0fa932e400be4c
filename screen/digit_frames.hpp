// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// What the digits of the puzzle show beside their colours: which of them clash, and which are
/// equal. It is read off the grid at every moment and kept nowhere. Rows and columns are 1..9.
#pragma once

#include <vector>

#include "board/cells.hpp"
#include "screen/display_grid.hpp"

namespace sdk {

enum class DigitFrame {
  none,
  equal,  ///< the digit of the current cell, which has a border of its own
  clash,  ///< a digit that stands again in its row, column or box
};

/// Whether the digit of a cell stands again in its row, column or box; an empty cell's does not.
bool clashes(const DisplayGrid& puzzle, Cell cell);

/// The frame of a cell; a clash has precedence. Digits are equal to none while the current cell is
/// not marked.
DigitFrame digit_frame(const DisplayGrid& puzzle, Cell cell);

/// A cell as it is to be painted and told: wrong also while it is red and its digit clashes.
DisplayCell as_seen(const DisplayGrid& puzzle, Cell cell);
/// All cells so, row by row.
std::vector<DisplayCell> as_seen(const DisplayGrid& puzzle);

}  // namespace sdk
