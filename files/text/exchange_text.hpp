// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// What the game and an external solver write to each other.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace sdk {

/// The grid that a solver gets of the cells' texts, joined: the same with zeros for blanks.
std::string grid_to_solve(std::string cell_texts);

/// The solver's input: every character of the grid and a blank after it, on one line without an
/// end. 162 bytes for 81 cells.
std::string solver_input(std::string_view grid);

/// The first line of a solver's output, without its end: CR, LF, both or none. Nothing when the
/// output is empty.
std::optional<std::string_view> first_line(std::string_view output);

/// A complete answer: 81 digits 1 to 9, row-major.
struct Solution {
  std::string digits;
};

/// The solver found none.
struct NoSolution {};

/// An answer that has something else, or nothing, where the digit of a cell should be.
struct MissingDigit {
  std::string digits_before;

  /// The cell without a digit, 1..81.
  int cell() const { return static_cast<int>(digits_before.size()) + 1; }
};

using SolverAnswer = std::variant<Solution, NoSolution, MissingDigit>;

/// What the first line of a solver's output says. Blanks do not count, nor does what follows the
/// 81st digit; but a "0" anywhere means that there is no solution.
SolverAnswer solver_answer(std::string line);

}  // namespace sdk
