// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The three rules.

#include "board/clashes.hpp"

#include <gtest/gtest.h>

namespace sdk::test {
namespace {

/// An empty grid but for a 5 in both cells.
Square<std::int16_t> with_two_fives(Cell a, Cell b) {
  Square<std::int16_t> grid;
  grid(a.row, a.column) = grid(b.row, b.column) = 5;
  return grid;
}

TEST(Clashes, AreThoseOfTwoEqualValuesThatSeeEachOther) {
  for (const int a : all_cells)
    for (const int b : all_cells) {
      if (a == b) continue;
      const auto grid = with_two_fives(cell_at(a), cell_at(b));
      EXPECT_EQ(has_clash(grid, cell_at(a)), se_voient_num(a, b)) << a << ' ' << b;
      EXPECT_EQ(has_clash(grid, cell_at(b)), se_voient_num(a, b)) << a << ' ' << b;
    }
}

TEST(Clashes, AreNotThoseOfDifferentValues) {
  auto grid = with_two_fives({1, 1}, {1, 9});
  grid(1, 9) = 6;
  EXPECT_FALSE(has_clash(grid, {1, 1}));
  EXPECT_FALSE(has_clash(grid, {1, 9}));
}

TEST(Clashes, AreThoseOfEmptyCellsToo) { EXPECT_TRUE(has_clash({}, {5, 5})); }

}  // namespace
}  // namespace sdk::test
