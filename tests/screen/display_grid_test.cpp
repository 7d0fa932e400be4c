// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The model of the grid control.

#include "screen/display_grid.hpp"

#include <gtest/gtest.h>

#include <vector>

namespace sdk::test {
namespace {

using Lines = std::vector<std::string>;

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

TEST(DisplayGrid, ReplacesACellWithoutMovingTheCurrentOne) {
  const DisplayCell replaced{.text = "6", .text_colour = colour::red};
  DisplayGrid grid;
  grid.make_current(8, 7);
  grid.set_cell(2, 3, replaced);
  EXPECT_EQ(grid.cell(2, 3), replaced);
  EXPECT_EQ(grid.selection(), (CellRange{8, 7, 8, 7}));
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
  EXPECT_EQ(grid.current().text_colour, colour::red);
  EXPECT_EQ(grid.current().back_colour, colour::from_file);
  for (int i = 0; i < 81; ++i) {
    if (i == 4 * 9 + 2) continue;
    EXPECT_EQ(grid.cell(i / 9, i % 9), DisplayCell{}) << i;
  }
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

TEST(DisplayCell, IsAGivenByItsBackgroundAlone) {
  DisplayCell cell;
  EXPECT_FALSE(cell.is_given());
  cell.text = "5";
  EXPECT_FALSE(cell.is_given());
  cell.back_colour = colour::from_file;
  EXPECT_TRUE(cell.is_given());
}

TEST(DisplayCell, IsWrongWhenItIsFilledAndWasFoundSo) {
  DisplayCell cell;
  cell.text = "5";
  EXPECT_FALSE(cell.is_wrong());
  cell.text_colour = colour::red;
  EXPECT_FALSE(cell.is_wrong()) << "it may be red for a clash";
  cell.wrong = true;
  EXPECT_TRUE(cell.is_wrong());
  for (const char* const blank : {" ", "", "  "}) {
    cell.text = blank;
    EXPECT_FALSE(cell.is_wrong()) << '"' << blank << '"';
  }
}

TEST(DisplayGrid, WritesATextInTheCurrentCellAndThenInAnotherOne) {
  DisplayGrid grid;
  grid.select(5, 6, 2, 8);
  grid.set_text("4");
  grid.set_text(0, 0, "x");
  EXPECT_EQ(grid.text(5, 6), "4");
  EXPECT_EQ(grid.selection(), (CellRange{2, 6, 5, 8})) << "writing selects nothing";
}

TEST(DisplayGrid, IsShownAgainWhenTheWorkFails) {
  DisplayGrid grid;
  const auto fail = [&] {
    HiddenWhileWorking hidden(grid);
    throw 1;
  };
  EXPECT_THROW(fail(), int);
  EXPECT_TRUE(grid.visible());
}

TEST(DisplayGrid, GivesItsCellsRowByRowAsTheyAre) {
  DisplayGrid grid;
  grid.set_text(2, 3, "6");
  const std::vector<DisplayCell> cells = grid.cells();
  grid.set_text(2, 3, "7");
  ASSERT_EQ(cells.size(), 81u);
  EXPECT_EQ(cells[2 * 9 + 3].text, "6");
  EXPECT_EQ(cells[0], DisplayCell{});
}

TEST(DisplayGrid, KeepsEveryCellWhileItIsHidden) {
  DisplayGrid grid;
  grid.set_text(4, 4, "7");
  grid.set_visible(false);
  EXPECT_EQ(grid.text(4, 4), "7");
}

}  // namespace
}  // namespace sdk::test
