// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Grids as text: row by row, one character a cell.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "board/cells.hpp"
#include "board/square.hpp"

namespace sdk {

/// Character `k` (1-based) of `text` as a text of one byte, empty when the text is shorter.
std::string_view character(std::string_view text, int k);

/// The integer at the start of a cell's text, leading spaces skipped; 0 when there is none.
std::int16_t numeric_prefix(std::string_view text);

/// Empty when the line is a puzzle: 81 characters, 1-9 a digit, '.' or '0' an empty cell. Else what
/// is wrong with it.
std::string puzzle_fault(std::string_view line);

/// The grid of a line that has no puzzle_fault; 0 is empty.
Square<std::int16_t> puzzle_of(std::string_view line);

/// The values of a grid one after the other; 81 characters when all of them are 0..9.
template <class Number>
std::string digits_of(const Square<Number>& grid) {
  std::string digits;
  for (int cell = 1; cell <= 81; ++cell) digits += std::to_string(grid[cell]);
  return digits;
}

/// "r1c1".
std::string name_of(Cell cell);

/// "row 2", "column 2" or "box 2".
std::string name_of(Unit unit);

}  // namespace sdk
