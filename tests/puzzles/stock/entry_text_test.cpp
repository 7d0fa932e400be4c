// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Stored puzzles as text.

#include "puzzles/stock/entry_text.hpp"

#include <gtest/gtest.h>

#include "board/grid_text.hpp"

namespace sdk::test {
namespace {

TEST(PuzzleText, ShowsTheGivensAndADotForEveryOtherCell) {
  EXPECT_EQ(puzzle_text(BibliothequeGrilles[0]),
            "4.75..2....38.9.5.695.2....5.41...9..3.....1..1...43.6....4.861.5.3.69....6..75.3");
}

TEST(PuzzleText, OfEveryEntryHasItsDigitsWhereItsMaskHasOnes) {
  for (const LibraryEntry& entry : BibliothequeGrilles) {
    const std::string text = puzzle_text(entry);
    ASSERT_EQ(text.size(), 81u);
    for (std::size_t k = 0; k < 81; ++k)
      EXPECT_EQ(text[k], entry.mask[k] == '1' ? entry.solution[k] : '.');
  }
}

TEST(MaskText, HasAOneForEachGivenRowByRow) {
  Square<std::int16_t> givens;
  EXPECT_EQ(mask_text(givens), std::string(81, '0'));
  givens(1, 2) = 9;
  givens(2, 1) = 1;
  givens(9, 9) = -1;
  EXPECT_EQ(mask_text(givens), "010000000100000000" + std::string(62, '0') + "1");
}

TEST(MaskText, OfAStoredPuzzlesGivensIsItsMask) {
  for (const LibraryEntry& entry : BibliothequeGrilles) {
    EXPECT_EQ(mask_text(puzzle_of(puzzle_text(entry))), entry.mask);
  }
}

TEST(EntryLines, AreTheMaskTheSolutionAndAnEmptyLine) {
  const std::string mask(81, '1'), solution(81, '0');
  EXPECT_EQ(entry_lines({mask, solution}), mask + "\r\n" + solution + "\r\n\r\n");
}

TEST(EntryLines, HoldASolutionOfAnyLengthAsItIs) {
  EXPECT_EQ(entry_lines({"10", "5"}), "10\r\n5\r\n\r\n");
}

}  // namespace
}  // namespace sdk::test
