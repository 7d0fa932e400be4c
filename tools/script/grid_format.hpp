// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// How the two grids are written in the output of a script. Rows and columns are 0..8, written
/// 1-based.
#pragma once

#include <string>

#include "screen/display_grid.hpp"

namespace sdk {

/// Nine lines, cells separated by `separator`; `cell` gives the text of (row, column), 0-based.
template <class CellText>
std::string square_text(const char* separator, CellText cell) {
  std::string text;
  for (int r = 0; r < DisplayGrid::size; ++r) {
    for (int c = 0; c < DisplayGrid::size; ++c) text += (c ? separator : "") + cell(r, c);
    text += '\n';
  }
  return text;
}

/// "r1c1" for row 0, column 0.
std::string cell_name(int row, int column);

/// One line: text, text colour, back colour, font size and mark.
std::string cell_text(const DisplayCell& cell);

/// The first character of every cell: . for a single space, ? for an empty text.
std::string first_characters(const DisplayGrid& grid);

/// The colours of every cell, of its text or its background.
std::string colours(const DisplayGrid& grid, Colour DisplayCell::*which);

/// "3=r1c3,r4c5": the cells that carry a mark.
std::string marked_cells(const DisplayGrid& grid, int mark);

/// "clash=r1c3,r1c9 equal= underlined=r1c9": the cells of the puzzle whose digits are framed or
/// underlined.
std::string framed_cells(const DisplayGrid& puzzle);

}  // namespace sdk
