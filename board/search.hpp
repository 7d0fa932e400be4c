// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The depth-first search for a solution: the 81 cells row by row, the digits upwards, one small
/// step at a time, so that whoever runs it can stop or interrupt it anywhere.
#pragma once

#include <cstdint>

#include "board/square.hpp"
#include "board/unit_counts.hpp"

namespace sdk {

/// The cell that a search has under test. It is kept where its owner wants it and may be moved
/// between two steps.
struct SearchCursor {
  std::int16_t& number;  ///< 1..81; 82 is past the last cell, anything below 1 before the first
  std::int16_t& row;
  std::int16_t& column;

  /// Sets row and column from the number. 82 is row 10, column 1; a number below 1 names no cell.
  void locate() const {
    row = static_cast<std::int16_t>((number - 1) / 9 + 1);
    column = number % 9;
    if (column == 0) column = 9;
  }
  void go_to(int cell) const {
    number = static_cast<std::int16_t>(cell);
    locate();
  }

  /// Whether row and column name no cell, so that there is nothing to test.
  bool is_off_the_grid() const { return row >= 10 || row < 1 || column < 1; }
  /// Whether the number says that the search is over: past the last cell with a solution found,
  /// before the first when there is none.
  bool is_over() const { return number == 82 || number < 1; }
};

/// One search over grids and a cursor that belong to somebody else. It starts at the cursor, going
/// forward. Whatever changes them between two steps, the search goes on from what it finds.
class Search {
 public:
  /// `grid` is filled and emptied as the search goes on; its cells that are not 0 in `fixed` stay
  /// as they are. Both, and what the cursor refers to, must outlive the search.
  Search(Square<std::int16_t>& grid, const Square<std::int16_t>& fixed, SearchCursor cursor)
      : grid_(grid), fixed_(fixed), cursor_(cursor) {
    recount();
  }

  /// To be called when something else wrote to the grid, before the next step.
  void recount() { counts_.count(grid_); }

  /// Tries one digit more, or goes one cell forward or back. The cursor must be on the grid.
  void step();

 private:
  enum class Direction { forward, backward };

  void put(int value);
  void pass_fixed_cell();
  void step_forward(int value);
  void step_backward(int value);
  void retreat();

  Square<std::int16_t>& grid_;
  const Square<std::int16_t>& fixed_;
  SearchCursor cursor_;
  UnitCounts counts_;
  Direction direction_ = Direction::forward;
};

// In the header, because the game makes a hundred million steps a second.

inline void Search::step() {
  if (grid_(cursor_.row, cursor_.column) == 0) put(1);
  if (fixed_(cursor_.row, cursor_.column) != 0)
    pass_fixed_cell();
  else if (direction_ == Direction::forward)
    step_forward(grid_(cursor_.row, cursor_.column));
  else
    step_backward(grid_(cursor_.row, cursor_.column));
}

inline void Search::put(int value) {
  std::int16_t& cell = grid_(cursor_.row, cursor_.column);
  counts_.replace(cursor_.row, cursor_.column, cell, value);
  cell = static_cast<std::int16_t>(value);
}

inline void Search::pass_fixed_cell() {
  cursor_.go_to(cursor_.number + (direction_ == Direction::forward ? 1 : -1));
}

inline void Search::step_forward(int value) {
  if (counts_.only_here(cursor_.row, cursor_.column, value))
    cursor_.go_to(cursor_.number + 1);
  else if (value < 9)
    put(value + 1);
  else
    retreat();
}

inline void Search::step_backward(int value) {
  if (value >= 9) return retreat();
  direction_ = Direction::forward;
  put(value + 1);
}

inline void Search::retreat() {
  direction_ = Direction::backward;
  put(0);
  cursor_.go_to(cursor_.number - 1);
}

}  // namespace sdk
