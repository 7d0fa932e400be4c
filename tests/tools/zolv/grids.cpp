// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "grids.hpp"

#include <algorithm>
#include <numeric>

namespace zolv {

namespace {

bool share_a_unit(int a, int b) {
  return a / 9 == b / 9 || a % 9 == b % 9 || (a / 27 == b / 27 && a % 9 / 3 == b % 9 / 3);
}

}  // namespace

Grid grid_of(std::string_view text) {
  Grid grid{};
  for (std::size_t k = 0; k < grid.size(); ++k)
    if (text.at(k) != '.') grid[k] = static_cast<std::uint8_t>(text[k] - '0');
  return grid;
}

std::string text_of(const Grid& grid) {
  std::string text;
  for (const std::uint8_t digit : grid) text += static_cast<char>('0' + digit);
  return text;
}

bool fits(const Grid& grid, int cell, int digit) {
  for (int other = 0; other < 81; ++other)
    if (other != cell && grid[other] == digit && share_a_unit(cell, other)) return false;
  return true;
}

bool solves(const Grid& solution, const Grid& givens) {
  for (int cell = 0; cell < 81; ++cell) {
    if (solution[cell] < 1 || solution[cell] > 9) return false;
    if (!fits(solution, cell, solution[cell])) return false;
    if (givens[cell] != 0 && givens[cell] != solution[cell]) return false;
  }
  return true;
}

int count_solutions(Grid& grid, int most, int from) {
  while (from < 81 && grid[from] != 0) ++from;
  if (from == 81) return 1;
  int found = 0;
  for (int digit = 1; digit <= 9; ++digit) {
    if (!fits(grid, from, digit)) continue;
    grid[from] = static_cast<std::uint8_t>(digit);
    found += count_solutions(grid, most - found, from + 1);
    if (found == most) return found;
  }
  grid[from] = 0;
  return found;
}

Grid random_full_grid(std::mt19937& random) {
  Grid grid{};
  std::array<std::uint8_t, 9> digits{1, 2, 3, 4, 5, 6, 7, 8, 9};
  // The three boxes of a diagonal do not touch each other: any filling of them has a solution.
  for (int box = 0; box < 3; ++box) {
    std::shuffle(digits.begin(), digits.end(), random);
    for (int k = 0; k < 9; ++k) grid[30 * box + k / 3 * 9 + k % 3] = digits[k];
  }
  count_solutions(grid, 1);
  return grid;
}

Grid random_puzzle(std::mt19937& random, int givens) {
  Grid grid = random_full_grid(random);
  std::array<int, 81> order;
  std::iota(order.begin(), order.end(), 0);
  std::shuffle(order.begin(), order.end(), random);
  for (std::size_t k = static_cast<std::size_t>(givens); k < order.size(); ++k) grid[order[k]] = 0;
  return grid;
}

}  // namespace zolv
