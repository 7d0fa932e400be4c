// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The search over two squares, without a window.

#include "board/search.hpp"

#include <gtest/gtest.h>

#include "board/grid_text.hpp"

namespace sdk::test {
namespace {

const std::string empty_puzzle(81, '.');

/// Takes the search 34361 steps.
const std::string long_puzzle =
    ".2.4..1.3.74....823.1.2..45....91...4.......1...84....15..8.7.469....51.7.8..2.6.";

/// Row 1 asks for a 9 in its last cell, which column 9 holds already.
const std::string impossible_puzzle = "12345678.........9" + std::string(63, '.');

const std::string solution_of_the_empty_one =
    "123456789456789123789123456214365897365897214897214365531642978642978531978531642";

class SearchOnSquares : public testing::Test {
 protected:
  void fill(const std::string& puzzle) { grid = fixed = puzzle_of(puzzle); }

  void make_steps(Search& search, long count) {
    for (; count > 0 && !cursor.is_over(); --count) {
      search.step();
      ++steps;
    }
  }
  void run(Search& search) { make_steps(search, 1000000); }

  Square<std::int16_t> grid, fixed;
  std::int16_t number = 1, row = 1, column = 1;
  SearchCursor cursor{number, row, column};
  long steps = 0;
};

TEST_F(SearchOnSquares, FillsAnEmptyGridWithTheSmallestDigitsFirst) {
  fill(empty_puzzle);
  Search search(grid, fixed, cursor);
  run(search);
  EXPECT_EQ(digits_of(grid), solution_of_the_empty_one);
  EXPECT_EQ(number, 82);
  EXPECT_EQ(fixed, puzzle_of(empty_puzzle));
}

TEST_F(SearchOnSquares, MakesOneSmallStepAtATime) {
  fill(long_puzzle);
  Search search(grid, fixed, cursor);
  make_steps(search, 1);
  EXPECT_EQ(grid(1, 1), 2) << "1 clashes with the 1 of the row";
  EXPECT_EQ(number, 1);
  run(search);
  EXPECT_EQ(steps, 34361);
  EXPECT_EQ(number, 82);
}

TEST_F(SearchOnSquares, LeavesFixedCellsAlone) {
  fill(long_puzzle);
  Search search(grid, fixed, cursor);
  run(search);
  for (std::size_t k = 0; k < 81; ++k) {
    if (long_puzzle[k] == '.') continue;
    EXPECT_EQ(digits_of(grid)[k], long_puzzle[k]) << k;
  }
}

TEST_F(SearchOnSquares, EndsBeforeTheFirstCellWhenThereIsNoSolution) {
  fill(impossible_puzzle);
  Search search(grid, fixed, cursor);
  run(search);
  EXPECT_TRUE(cursor.is_over());
  EXPECT_LT(number, 1);
  EXPECT_EQ(grid, fixed);
}

TEST_F(SearchOnSquares, GoesOnFromWhatItFindsAfterTheGridWasChanged) {
  fill(impossible_puzzle);
  Search search(grid, fixed, cursor);
  make_steps(search, 12);
  fill(empty_puzzle);
  search.recount();
  cursor.go_to(1);
  run(search);
  EXPECT_EQ(digits_of(grid), solution_of_the_empty_one);
}

TEST_F(SearchOnSquares, StartsWhereTheCursorIs) {
  fill(empty_puzzle);
  cursor.go_to(80);
  Search search(grid, fixed, cursor);
  run(search);
  EXPECT_EQ(digits_of(grid), std::string(79, '0') + "12");
}

struct Place {
  std::int16_t number, row, column;
  bool off_the_grid, over;
};

TEST_F(SearchOnSquares, LocatesItsCursorWithinTheGridAndOneCellAround) {
  for (const Place& p :
       {Place{1, 1, 1, false, false}, Place{9, 1, 9, false, false}, Place{10, 2, 1, false, false},
        Place{81, 9, 9, false, false}, Place{82, 10, 1, true, true}, Place{0, 1, 9, false, true},
        Place{-1, 1, -1, true, true}}) {
    cursor.go_to(p.number);
    EXPECT_EQ(row, p.row) << p.number;
    EXPECT_EQ(column, p.column) << p.number;
    EXPECT_EQ(cursor.is_off_the_grid(), p.off_the_grid) << p.number;
    EXPECT_EQ(cursor.is_over(), p.over) << p.number;
  }
}

}  // namespace
}  // namespace sdk::test
