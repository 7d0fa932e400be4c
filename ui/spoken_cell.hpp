// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// What a screen reader says of the cells, so that a player who sees no colour misses nothing.
#pragma once

#include <string>
#include <string_view>

#include "explanations/step_picture.hpp"
#include "screen/display_grid.hpp"

namespace sdk {

/// Row and column, content, and what the cell's colours mean: "row 1, column 2: 8, given". The
/// candidates of a cell of `MSR` are told as digits with blanks between them. Row and column are
/// 0..8; UTF-8; French for exactly "Fr", English for anything else.
std::string spoken_cell(const DisplayGrid& grid, int row, int column, std::string_view language);

/// The same of a cell of `MSF`, where digits clash: what is underlined is told as wrong, and other
/// digits that clash as clashing.
std::string spoken_puzzle_cell(const DisplayGrid& puzzle, int row, int column,
                               std::string_view language);

/// The same of a cell of a step that is shown alone, with the digits that are struck out and, where
/// not all of its candidates are, those in bold: "row 1, column 2: 3 5 8, loses 3, supports the
/// hint, bold 5".
std::string spoken_cell(const PictureCell& cell, int row, int column, std::string_view language);

}  // namespace sdk
