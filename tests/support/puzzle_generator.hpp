// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Puzzles of every kind, made up from a seed; the same on every machine.
#pragma once

#include <array>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace sdk::test {

/// 81 characters, "." an empty cell.
using Puzzle = std::string;

class PuzzleGenerator {
 public:
  explicit PuzzleGenerator(std::uint32_t seed) : engine_(seed) {}

  /// One grid, as a puzzle of each kind: unique, minimal, with several solutions, partly filled,
  /// partly filled with a wrong digit, impossible.
  std::vector<Puzzle> next();

 private:
  int below(int n) { return static_cast<int>(engine_() % static_cast<unsigned>(n)); }
  std::array<int, 81> shuffled_cells();
  Puzzle complete();
  bool completes(Puzzle& grid);
  /// Takes digits away, in random order, while one solution is left; stops at `givens`.
  Puzzle thinned(Puzzle puzzle, int givens);
  Puzzle with_fewer(Puzzle puzzle, int taken);
  Puzzle with_more(Puzzle puzzle, const Puzzle& solution, int added);
  Puzzle with_wrong_digit(Puzzle puzzle, const Puzzle& solution);

  std::mt19937 engine_;
};

}  // namespace sdk::test
