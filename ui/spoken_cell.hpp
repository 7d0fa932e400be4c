// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// What a screen reader says of the cells, so that a player who sees no colour misses nothing.
#pragma once

#include <string>
#include <string_view>

#include "screen/display_grid.hpp"

namespace sdk {

/// Row and column, content, and what the cell's colours mean: "row 1, column 2: 8, given". The
/// candidates of a cell of `MSR` are told as digits with blanks between them. Row and column are
/// 0..8; UTF-8; French for exactly "Fr", English for anything else.
std::string spoken_cell(const DisplayGrid& grid, int row, int column, std::string_view language);

}  // namespace sdk
