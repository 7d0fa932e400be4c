// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Box arithmetic and who sees whom.

#include "board/cells.hpp"

#include <gtest/gtest.h>

namespace sdk::test {
namespace {

TEST(Boxes, TheNumberOfACellsBoxIsTheFloatingPointFormula) {
  for (int r = 1; r <= 9; ++r)
    for (int c = 1; c <= 9; ++c)
      EXPECT_EQ(no_boite(r, c),
                3 * static_cast<int>((r - 0.1) / 3) + 1 + static_cast<int>((c - 0.1) / 3))
          << r << c;
  EXPECT_EQ(no_boite(4, 7), 6);
  EXPECT_EQ(no_boite(9, 9), 9);
  EXPECT_EQ(no_boite(3, 3), 1);
}

TEST(Boxes, BoundsOfACellsBox) {
  for (int r = 1; r <= 9; ++r)
    for (int c = 1; c <= 9; ++c) {
      EXPECT_EQ(first_row(r, c), r <= 3 ? 1 : r <= 6 ? 4 : 7);
      EXPECT_EQ(last_row(r, c), r <= 3 ? 3 : r <= 6 ? 6 : 9);
      EXPECT_EQ(first_column(r, c), c <= 3 ? 1 : c <= 6 ? 4 : 7);
      EXPECT_EQ(last_column(r, c), c <= 3 ? 3 : c <= 6 ? 6 : 9);
    }
}

TEST(Boxes, LinesOfABox) {
  for (int b = 1; b <= 9; ++b) {
    const int top = b <= 3 ? 1 : b <= 6 ? 4 : 7;
    const int left = b % 3 == 1 ? 1 : b % 3 == 2 ? 4 : 7;
    EXPECT_EQ(first_row(b), top);
    EXPECT_EQ(middle_row(b), top + 1);
    EXPECT_EQ(last_row(b), top + 2);
    EXPECT_EQ(first_column(b), left);
    EXPECT_EQ(middle_column(b), left + 1);
    EXPECT_EQ(last_column(b), left + 2);
  }
}

TEST(Boxes, ABoxThatDoesNotExistHasTheLines0) {
  for (const int b : {-1, 0, 10})
    for (const int line : {first_row(b), middle_row(b), last_row(b), first_column(b),
                           middle_column(b), last_column(b)})
      EXPECT_EQ(line, 0);
}

TEST(Cells, SeeEachOtherInARowAColumnOrABoxAndThemselves) {
  EXPECT_TRUE(se_voient(1, 1, 1, 9));
  EXPECT_TRUE(se_voient(1, 1, 9, 1));
  EXPECT_TRUE(se_voient(1, 1, 3, 3));
  EXPECT_TRUE(se_voient(5, 5, 5, 5));
  EXPECT_FALSE(se_voient(1, 1, 4, 4));
  EXPECT_FALSE(se_voient(3, 3, 4, 2));
}

TEST(Cells, AreNumberedRowByRow) {
  for (int n = 1; n <= 81; ++n) {
    EXPECT_EQ(cell_at(n).row, (n - 1) / 9 + 1);
    EXPECT_EQ(cell_at(n).column, n - 9 * ((n - 1) / 9));
    EXPECT_EQ(cell_at(n).number(), n);
  }
  EXPECT_TRUE(se_voient_num(1, 81 - 72));
  EXPECT_FALSE(se_voient_num(1, 81));
}

}  // namespace
}  // namespace sdk::test
