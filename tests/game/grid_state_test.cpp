// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The cell numbering, and who is the window.

#include <gtest/gtest.h>

#include "tests/support/game.hpp"

namespace sdk::test {
namespace {

struct CellNumber {
  std::int16_t number, row, column;
};

class CellNumbers : public testing::TestWithParam<CellNumber> {};

TEST_P(CellNumbers, GiveTheirRowAndColumn) {
  Game game;
  game.window.NumCase = GetParam().number;
  game.window.Extraire_Ligne_Colonne();
  EXPECT_EQ(game.window.Ligne, GetParam().row);
  EXPECT_EQ(game.window.Colonne, GetParam().column);
  EXPECT_EQ(game.window.NumCase, GetParam().number);
}

INSTANTIATE_TEST_SUITE_P(InTheGridAndOnePastIt, CellNumbers,
                         testing::Values(CellNumber{1, 1, 1}, CellNumber{9, 1, 9},
                                         CellNumber{10, 2, 1}, CellNumber{41, 5, 5},
                                         CellNumber{80, 9, 8}, CellNumber{81, 9, 9},
                                         CellNumber{82, 10, 1}, CellNumber{0, 1, 9}));

TEST(CellNumbers, RunRowByRow) {
  Game game;
  for (int r = 1; r <= 9; ++r)
    for (int c = 1; c <= 9; ++c) {
      game.window.NumCase = static_cast<std::int16_t>((r - 1) * 9 + c);
      game.window.Extraire_Ligne_Colonne();
      EXPECT_EQ(game.window.Ligne, r);
      EXPECT_EQ(game.window.Colonne, c);
    }
}

TEST(Window, IsTheOneThatSudokuNames) {
  Game game;
  EXPECT_EQ(&sudoku(), &game.window);
}

}  // namespace
}  // namespace sdk::test
