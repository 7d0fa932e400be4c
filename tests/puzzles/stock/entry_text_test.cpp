// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Stored puzzles as text.

#include "puzzles/stock/entry_text.hpp"

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace sdk::test
