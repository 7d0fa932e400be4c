// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tests/support/puzzle_generator.hpp"

#include <algorithm>
#include <numeric>
#include <utility>

#include "board/cells.hpp"
#include "tests/support/solution_counter.hpp"

namespace sdk::test {

namespace {

NineSet free_digits(const Puzzle& grid, Cell cell) {
  NineSet digits = NineSet::all();
  for (int number = 1; number <= 81; ++number) {
    const char c = grid[static_cast<std::size_t>(number - 1)];
    if (c != '.' && se_voient_num(number, cell.number())) digits.erase(c - '0');
  }
  return digits;
}

/// The empty cell with the fewest free digits, 1..81; 0 in a full grid.
int narrowest(const Puzzle& grid) {
  int best = 0, fewest = 10;
  for (int number = 1; number <= 81; ++number) {
    if (grid[static_cast<std::size_t>(number - 1)] != '.') continue;
    const int left = free_digits(grid, cell_at(number)).count();
    if (left >= fewest) continue;
    fewest = left;
    best = number;
  }
  return best;
}

}  // namespace

bool PuzzleGenerator::completes(Puzzle& grid) {
  const int cell = narrowest(grid);
  if (cell == 0) return true;
  std::vector<int> digits;
  for (const int digit : free_digits(grid, cell_at(cell))) digits.push_back(digit);
  char& c = grid[static_cast<std::size_t>(cell - 1)];
  while (!digits.empty()) {
    const auto chosen = digits.begin() + below(static_cast<int>(digits.size()));
    c = static_cast<char>('0' + *chosen);
    if (completes(grid)) return true;
    digits.erase(chosen);
  }
  c = '.';
  return false;
}

Puzzle PuzzleGenerator::complete() {
  Puzzle grid(81, '.');
  completes(grid);
  return grid;
}

std::array<int, 81> PuzzleGenerator::shuffled_cells() {
  std::array<int, 81> cells{};
  std::iota(cells.begin(), cells.end(), 0);
  for (int i = 80; i > 0; --i)
    std::swap(cells[static_cast<std::size_t>(i)], cells[static_cast<std::size_t>(below(i + 1))]);
  return cells;
}

Puzzle PuzzleGenerator::thinned(Puzzle puzzle, int givens) {
  for (const int cell : shuffled_cells()) {
    if (81 - std::ranges::count(puzzle, '.') <= givens) break;
    char& c = puzzle[static_cast<std::size_t>(cell)];
    const char digit = std::exchange(c, '.');
    if (solution_count(puzzle, 2) > 1) c = digit;
  }
  return puzzle;
}

Puzzle PuzzleGenerator::with_fewer(Puzzle puzzle, int taken) {
  for (const int cell : shuffled_cells()) {
    if (taken == 0) break;
    taken -= std::exchange(puzzle[static_cast<std::size_t>(cell)], '.') != '.';
  }
  return puzzle;
}

Puzzle PuzzleGenerator::with_more(Puzzle puzzle, const Puzzle& solution, int added) {
  for (const int cell : shuffled_cells()) {
    const auto k = static_cast<std::size_t>(cell);
    if (added == 0) break;
    added -= std::exchange(puzzle[k], solution[k]) == '.';
  }
  return puzzle;
}

Puzzle PuzzleGenerator::with_wrong_digit(Puzzle puzzle, const Puzzle& solution) {
  for (const int cell : shuffled_cells()) {
    const auto k = static_cast<std::size_t>(cell);
    if (puzzle[k] != '.') continue;
    const NineSet wrong = free_digits(puzzle, cell_at(cell + 1)) - NineSet{solution[k] - '0'};
    if (wrong.empty()) continue;
    puzzle[k] = static_cast<char>('0' + wrong.first());
    break;
  }
  return puzzle;
}

std::vector<Puzzle> PuzzleGenerator::next() {
  const Puzzle solution = complete();
  const Puzzle unique = thinned(solution, 26 + below(10));
  const Puzzle minimal = thinned(unique, 0);
  const Puzzle part = with_more(minimal, solution, 5 + below(25));
  Puzzle impossible = with_wrong_digit(minimal, solution);
  return {unique,
          minimal,
          with_fewer(minimal, 1 + below(4)),
          part,
          with_wrong_digit(part, solution),
          with_wrong_digit(impossible, solution)};
}

}  // namespace sdk::test
