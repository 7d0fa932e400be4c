// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The value types, the cell numbering and the model of the grid control.

#include <gtest/gtest.h>

#include "tests/support/game.hpp"

namespace sdk::test {
namespace {

TEST(Bool16, IsSixteenBitsWithTrueAsMinusOne) {
  EXPECT_EQ(sizeof(Bool16), 2u);
  EXPECT_EQ(Bool16(true).bits(), -1);
  EXPECT_EQ(Bool16(false).bits(), 0);
  EXPECT_EQ(Bool16().bits(), 0);
  EXPECT_TRUE(Bool16(true));
  EXPECT_FALSE(Bool16(false));
}

TEST(Square, KeepsAValueOfItsOwnForEveryRowAndColumn) {
  Square<std::int16_t> square;
  for (int r = 1; r <= 9; ++r)
    for (int c = 1; c <= 9; ++c) square(r, c) = static_cast<std::int16_t>(10 * r + c);
  for (int r = 1; r <= 9; ++r)
    for (int c = 1; c <= 9; ++c) EXPECT_EQ(square(r, c), 10 * r + c);
}

TEST(Colours, AreStoredBlueGreenRed) {
  EXPECT_EQ(colour::red, 0x0000FFu);
  EXPECT_EQ(colour::green, 0x008000u);
  EXPECT_EQ(colour::white, 0xFFFFFFu);
  EXPECT_EQ(colour::black, 0u);
  EXPECT_EQ(colour::from_file, 0xE0E0E0u);
  EXPECT_EQ(colour::level,
            (std::array<Colour, 5>{0xC0FFC0, 0xC0FFFF, 0xC0E0FF, 0xC0C0FF, 0xFFC0FF}));
  EXPECT_EQ(colour::red_of(0x123456), 0x56);
  EXPECT_EQ(colour::green_of(0x123456), 0x34);
  EXPECT_EQ(colour::blue_of(0x123456), 0x12);
}

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

TEST(DisplayGrid, StartsWithEmptyBlackOnWhiteCellsAndTheFirstCellCurrent) {
  const DisplayGrid grid;
  for (int r = 0; r < 9; ++r)
    for (int c = 0; c < 9; ++c) {
      EXPECT_EQ(grid.text(r, c), " ");
      EXPECT_FALSE(grid.is_filled(r, c));
      EXPECT_EQ(grid.cell(r, c).text_colour, colour::black);
      EXPECT_EQ(grid.cell(r, c).back_colour, colour::white);
      EXPECT_EQ(grid.cell(r, c).font_size, 0);
      EXPECT_EQ(grid.cell(r, c).mark, 0);
    }
  EXPECT_EQ(grid.selection(), (CellRange{0, 0, 0, 0}));
  EXPECT_TRUE(grid.visible());
  EXPECT_TRUE(grid.tab_stop());
  EXPECT_TRUE(grid.marks_current());
}

TEST(DisplayGrid, CountsAnythingButOneSpaceAsFilled) {
  DisplayGrid grid;
  for (const char* text : {"5", "", "x", "  ", "0"}) {
    grid.set_text(3, 4, text);
    EXPECT_TRUE(grid.is_filled(3, 4)) << '"' << text << '"';
  }
  grid.set_text(3, 4, " ");
  EXPECT_FALSE(grid.is_filled(3, 4));
}

TEST(DisplayGrid, WritesATextWithoutMovingTheCurrentCell) {
  DisplayGrid grid;
  grid.make_current(8, 7);
  grid.set_text(2, 3, "6");
  EXPECT_EQ(grid.text(2, 3), "6");
  EXPECT_EQ(grid.current_row(), 8);
  EXPECT_EQ(grid.current_column(), 7);
}

TEST(DisplayGrid, ChangesOnlyTheCurrentCell) {
  DisplayGrid grid;
  grid.make_current(4, 2);
  grid.set_text("3");
  grid.set_text_colour(colour::red);
  grid.set_back_colour(colour::from_file);
  grid.set_font_size(12);
  grid.set_mark(5);
  EXPECT_EQ(grid.text(4, 2), "3");
  EXPECT_EQ(grid.current().font_size, 12);
  EXPECT_EQ(grid.current().mark, 5);
  EXPECT_EQ(cells_with_text_colour(grid, colour::red), "r5c3");
  EXPECT_EQ(cells_with_back_colour(grid, colour::from_file), "r5c3");
  EXPECT_EQ(grid.text(2, 4), " ");
}

TEST(DisplayGrid, SelectsTheBlockBetweenTheCurrentCellAndTheOtherCorner) {
  DisplayGrid grid;
  grid.select(5, 6, 2, 8);
  EXPECT_EQ(grid.selection(), (CellRange{2, 6, 5, 8}));
  EXPECT_EQ(grid.current_row(), 5);
  EXPECT_EQ(grid.current_column(), 6);
  grid.make_current(1, 1);
  EXPECT_EQ(grid.selection(), (CellRange{1, 1, 1, 1}));
}

TEST(DisplayGrid, TellsItsListenerOfEveryKindOfChange) {
  struct Listener : DisplayGridListener {
    Lines heard;
    void cell_changed(int r, int c) override {
      heard.push_back("cell " + std::to_string(r) + " " + std::to_string(c));
    }
    void selection_changed() override { heard.push_back("selection"); }
    void appearance_changed() override { heard.push_back("appearance"); }
    void refresh() override { heard.push_back("refresh"); }
  } listener;
  DisplayGrid grid;
  grid.set_listener(&listener);
  grid.set_text(7, 1, "2");
  grid.make_current(3, 5);
  grid.set_text("1");
  grid.set_text_colour(colour::red);
  grid.set_back_colour(colour::black);
  grid.set_font_size(9);
  grid.set_mark(2);
  grid.set_visible(false);
  grid.set_tab_stop(false);
  grid.set_marks_current(false);
  grid.refresh();
  grid.set_listener(nullptr);
  grid.refresh();
  EXPECT_EQ(listener.heard,
            (Lines{"cell 7 1", "selection", "cell 3 5", "cell 3 5", "cell 3 5", "cell 3 5",
                   "cell 3 5", "appearance", "appearance", "appearance", "refresh"}));
}

TEST(DisplayGrid, IsHiddenWhileWorkingAndShownAfterwards) {
  DisplayGrid grid;
  {
    HiddenWhileWorking hidden(grid);
    EXPECT_FALSE(grid.visible());
  }
  EXPECT_TRUE(grid.visible());
}

TEST(Window, IsTheOneThatSudokuNames) {
  Game game;
  EXPECT_EQ(&sudoku(), &game.window);
}

}  // namespace
}  // namespace sdk::test
