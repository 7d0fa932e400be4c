// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Grids as text.

#include "board/grid_text.hpp"

#include <gtest/gtest.h>

namespace sdk::test {
namespace {

const std::string some_puzzle =
    "1.3.5.7.9"
    ".507.9020"
    "7.9.2.4.6"
    ".3.5.4.9."
    "5.4.9.2.1"
    ".9.2.1.6."
    "..2.4.9.8"
    ".4.9.8.1."
    "9.8.1.6.5";

TEST(NumericPrefix, IsTheIntegerAtTheStartOrZero) {
  EXPECT_EQ(numeric_prefix("7"), 7);
  EXPECT_EQ(numeric_prefix(" "), 0);
  EXPECT_EQ(numeric_prefix(""), 0);
  EXPECT_EQ(numeric_prefix("x"), 0);
  EXPECT_EQ(numeric_prefix("\xE9"), 0);
  EXPECT_EQ(numeric_prefix(" 4x"), 4);
}

TEST(Character, IsCountedFromOneAndEmptyPastTheEnd) {
  EXPECT_EQ(character("abc", 1), "a");
  EXPECT_EQ(character("abc", 3), "c");
  EXPECT_EQ(character("abc", 4), "");
  EXPECT_EQ(character("", 1), "");
}

TEST(PuzzleFault, IsEmptyForAPuzzleOfDigitsDotsAndZeros) {
  EXPECT_EQ(puzzle_fault(some_puzzle), "");
  EXPECT_EQ(puzzle_fault(std::string(81, '.')), "");
  EXPECT_EQ(puzzle_fault(std::string(81, '0')), "");
}

TEST(PuzzleFault, NamesTheLengthOfALineThatIsTooShortOrTooLong) {
  EXPECT_EQ(puzzle_fault(""), "81 characters expected, 0 found");
  EXPECT_EQ(puzzle_fault(some_puzzle + "1"), "81 characters expected, 82 found");
}

TEST(PuzzleFault, NamesTheFirstCharacterThatIsNone) {
  std::string line = some_puzzle;
  line[80] = ' ';
  EXPECT_EQ(puzzle_fault(line), "character 81 is neither a digit nor '.'");
  line[40] = 'x';
  EXPECT_EQ(puzzle_fault(line), "character 41 is neither a digit nor '.'");
  line[0] = '/';
  EXPECT_EQ(puzzle_fault(line), "character 1 is neither a digit nor '.'");
}

TEST(PuzzleOf, HoldsTheDigitsRowByRowAndZeroWhereTheLineHasADotOrAZero) {
  const Square<std::int16_t> grid = puzzle_of(some_puzzle);
  EXPECT_EQ(grid(1, 1), 1);
  EXPECT_EQ(grid(1, 2), 0);
  EXPECT_EQ(grid(2, 3), 0);
  EXPECT_EQ(grid(2, 4), 7);
  EXPECT_EQ(grid(9, 9), 5);
}

TEST(NameOf, ACellIsItsRowAndItsColumn) {
  EXPECT_EQ(name_of(Cell{1, 9}), "r1c9");
  EXPECT_EQ(name_of(cell_at(81)), "r9c9");
}

TEST(DigitsOf, AreTheDigitsRowByRowWithZeroForAnEmptyCell) {
  std::string digits = some_puzzle;
  for (char& c : digits)
    if (c == '.') c = '0';
  EXPECT_EQ(digits_of(puzzle_of(some_puzzle)), digits);
}

}  // namespace
}  // namespace sdk::test
