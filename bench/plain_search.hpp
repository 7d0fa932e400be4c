// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The game's depth-first search written as plainly as it can be: a loop over the cells that
/// compares a digit with the 20 cells it may not equal, and knows no window. It is what the
/// game's own search is measured against, step for step.
#pragma once

#include <cstdint>

#include "board/square.hpp"
#include "tests/game/plain_check.hpp"

namespace sdk::bench {

class PlainSearch {
 public:
  /// 0 stands for an empty cell.
  explicit PlainSearch(const Square<std::int16_t>& givens) : grid_(givens), givens_(givens) {}

  /// Searches to the end and returns the number of steps made.
  std::int64_t run() {
    std::int64_t steps = 0;
    do {
      step();
      ++steps;
    } while (cell_ >= 1 && cell_ != 82);
    return steps;
  }

  /// The solution, when there was one.
  const Square<std::int16_t>& grid() const { return grid_; }

 private:
  void step() {
    std::int16_t& value = grid_(row_, column_);
    if (value == 0) value = 1;
    if (givens_(row_, column_) != 0) {
      go_to(cell_ + (forward_ ? 1 : -1));
    } else if (forward_ && test::passes(grid_, row_, column_)) {
      go_to(cell_ + 1);
    } else if (value < 9) {
      forward_ = true;
      ++value;
    } else {
      forward_ = false;
      value = 0;
      go_to(cell_ - 1);
    }
  }

  void go_to(int cell) {
    cell_ = cell;
    row_ = (cell - 1) / 9 + 1;
    column_ = cell % 9 == 0 ? 9 : cell % 9;
  }

  Square<std::int16_t> grid_, givens_;
  int cell_ = 1, row_ = 1, column_ = 1;
  bool forward_ = true;
};

}  // namespace sdk::bench
