// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Solves any 9x9 Sudoku grid. Needs nothing of the game.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

namespace zolv {

/// The 81 cells row by row: 1..9 for a digit, 0 for an empty cell.
using Grid = std::array<std::uint8_t, 81>;

/// A full grid that keeps every digit of `givens`: the solution, or the first one in row order when
/// there are several, that is the one with the smallest digit in the first cell where they differ.
/// Nothing when there is none, clashing givens included. Every cell of `givens` must be 0..9.
std::optional<Grid> solve(const Grid& givens);

}  // namespace zolv
