// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Which digits clash, which are equal to the current one, and which of them are seen as wrong.

#include "screen/digit_frames.hpp"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "board/cell_set.hpp"
#include "board/clashes.hpp"

namespace sdk::test {
namespace {

class DigitFrames : public testing::Test {
 protected:
  void write(Cell cell, std::string text, Colour text_colour = colour::black) {
    grid.make_current(cell.row - 1, cell.column - 1);
    grid.set_text(std::move(text));
    grid.set_text_colour(text_colour);
  }
  void go_to(Cell cell) { grid.make_current(cell.row - 1, cell.column - 1); }
  DigitFrame frame(Cell cell) const { return digit_frame(grid, cell); }
  bool seen_wrong(Cell cell) const { return as_seen(grid, cell).is_wrong(); }

  DisplayGrid grid;
};

TEST_F(DigitFrames, AreThereForNoEmptyCell) {
  for (const int number : all_cells) EXPECT_EQ(frame(cell_at(number)), DigitFrame::none) << number;
}

TEST_F(DigitFrames, ShowBothEndsOfAClashWhicheverIsRed) {
  write({1, 2}, "2");
  for (const Cell other : {Cell{1, 9}, {9, 2}, {3, 3}}) {
    write(other, "2", colour::red);
    EXPECT_EQ(frame({1, 2}), DigitFrame::clash);
    EXPECT_EQ(frame(other), DigitFrame::clash);
    write(other, " ");
    EXPECT_EQ(frame({1, 2}), DigitFrame::none);
  }
}

TEST_F(DigitFrames, ShowTheOtherCellsWithTheDigitOfTheCurrentOne) {
  write({1, 1}, "5");
  write({2, 4}, "5");
  write({2, 5}, "6");
  go_to({1, 1});
  EXPECT_EQ(frame({2, 4}), DigitFrame::equal);
  EXPECT_EQ(frame({2, 5}), DigitFrame::none);
  EXPECT_EQ(frame({1, 1}), DigitFrame::none) << "it has the border of the current cell";
  go_to({9, 9});
  EXPECT_EQ(frame({2, 4}), DigitFrame::none);
}

TEST_F(DigitFrames, ShowNoEqualDigitsWhileTheCurrentCellIsNotMarked) {
  write({1, 1}, "5");
  write({2, 4}, "5");
  grid.set_marks_current(false);
  EXPECT_EQ(frame({1, 1}), DigitFrame::none);
}

TEST_F(DigitFrames, ShowAClashRatherThanAnEqualDigit) {
  write({1, 1}, "5");
  write({1, 4}, "5");
  EXPECT_EQ(frame({1, 1}), DigitFrame::clash);
  EXPECT_EQ(frame({1, 4}), DigitFrame::clash);
}

TEST_F(DigitFrames, TakeOtherCharactersAndEmptyTextsForNoDigits) {
  for (const char* const text : {"", ".", "0", "x"}) {
    write({1, 1}, text);
    write({1, 4}, text);
    EXPECT_EQ(frame({1, 1}), DigitFrame::none) << text;
    EXPECT_EQ(frame({1, 4}), DigitFrame::none) << text;
  }
}

TEST_F(DigitFrames, OfClashesAreThoseOfTheRules) {
  std::mt19937 random(1);
  for (int turn = 0; turn < 200; ++turn) {
    Square<int> values;
    for (int change = 0; change < 30; ++change) {
      const int number = static_cast<int>(random() % 81) + 1;
      values[number] = static_cast<int>(random() % 10);
    }
    for (const int number : all_cells)
      write(cell_at(number), values[number] ? std::to_string(values[number]) : " ");
    for (const int number : all_cells)
      ASSERT_EQ(frame(cell_at(number)) == DigitFrame::clash,
                values[number] != 0 && has_clash(values, cell_at(number)));
  }
}

TEST_F(DigitFrames, RedIsSeenAsWrongWhileItClashesAndNoLonger) {
  write({1, 2}, "2");
  write({1, 9}, "2", colour::red);
  EXPECT_TRUE(seen_wrong({1, 9}));
  EXPECT_FALSE(seen_wrong({1, 2})) << "it is not red";
  write({1, 2}, "3");
  EXPECT_FALSE(seen_wrong({1, 9}));
}

TEST_F(DigitFrames, WhatWasFoundWrongIsSeenSoWithoutAClash) {
  write({1, 2}, "2");
  grid.set_verdict(colour::red);
  EXPECT_TRUE(seen_wrong({1, 2}));
  EXPECT_TRUE(as_seen(grid).at(1).is_wrong());
  EXPECT_FALSE(as_seen(grid).at(0).is_wrong());
}

TEST_F(DigitFrames, AVerdictGoesWithTheTextAndWithTheColour) {
  write({1, 2}, "2");
  grid.set_verdict(colour::red);
  grid.set_text_colour(colour::red);
  EXPECT_TRUE(seen_wrong({1, 2})) << "the same colour again";
  grid.set_text("3");
  EXPECT_FALSE(seen_wrong({1, 2}));
  EXPECT_EQ(grid.current().text_colour, colour::red);
  grid.set_verdict(colour::red);
  grid.set_text_colour(colour::green);
  grid.set_text_colour(colour::red);
  EXPECT_FALSE(seen_wrong({1, 2}));
  grid.set_verdict(colour::green);
  EXPECT_FALSE(seen_wrong({1, 2}));
}

}  // namespace
}  // namespace sdk::test
