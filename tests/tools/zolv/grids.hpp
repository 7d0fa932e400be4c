// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Grids for the tests of the companion solver, and a search simple enough to be trusted.
#pragma once

#include <optional>
#include <random>
#include <string>
#include <string_view>

#include "solver.hpp"

namespace zolv {

/// `text` has 81 characters, "." or "0" for an empty cell.
Grid grid_of(std::string_view text);
/// 81 digits, 0 for an empty cell.
std::string text_of(const Grid& grid);

/// Whether `digit` stands in no other cell of the units of `cell` (0..80).
bool fits(const Grid& grid, int cell, int digit);
/// Whether `solution` is full, breaks no rule and keeps all of `givens`.
bool solves(const Grid& solution, const Grid& givens);

/// Fills `grid` in place, cell by cell in order, smallest digit first, and counts the solutions up
/// to `most`; stops at the last one counted and leaves it in `grid`.
int count_solutions(Grid& grid, int most, int from = 0);

/// A full grid that breaks no rule.
Grid random_full_grid(std::mt19937& random);
/// `givens` cells of such a grid, kept at random places.
Grid random_puzzle(std::mt19937& random, int givens);

}  // namespace zolv
