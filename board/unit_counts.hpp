// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// How often each digit stands in each unit of a grid, kept up to date beside the grid so that one
/// cell is judged in constant time.
#pragma once

#include <array>
#include <cstdint>

#include "board/cells.hpp"
#include "board/square.hpp"

namespace sdk {

/// Rows, columns and digits are 1..9. Values outside 1..9 are not counted.
class UnitCounts {
 public:
  /// Counts the whole grid afresh.
  void count(const Square<std::int16_t>& grid) {
    *this = {};
    for (int r = 1; r <= 9; ++r)
      for (int c = 1; c <= 9; ++c) add(r, c, grid(r, c), +1);
  }

  /// The cell's value changed from `before` to `after`.
  void replace(int row, int column, int before, int after) {
    add(row, column, before, -1);
    add(row, column, after, +1);
  }

  /// Whether `digit`, which stands at (row, column), stands nowhere else in the cell's units.
  bool only_here(int row, int column, int digit) const {
    return rows_[at(row, digit)] == 1 && columns_[at(column, digit)] == 1 &&
           boxes_[at(no_boite(row, column), digit)] == 1;
  }

 private:
  static std::size_t at(int unit, int digit) { return static_cast<std::size_t>(unit * 10 + digit); }

  void add(int row, int column, int digit, int step) {
    if (digit < 1 || digit > 9) return;
    rows_[at(row, digit)] += step;
    columns_[at(column, digit)] += step;
    boxes_[at(no_boite(row, column), digit)] += step;
  }

  std::array<int, 100> rows_{}, columns_{}, boxes_{};
};

}  // namespace sdk
