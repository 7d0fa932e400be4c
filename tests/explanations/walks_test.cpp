// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Every sentence of whole walks and of the drawn boards is read back and compared with its step.
// SENTENCE_GRIDS in the environment says from how many grids puzzles are made up, six a grid.

#include <gtest/gtest.h>

#include <cstdlib>
#include <set>

#include "board/grid_text.hpp"
#include "puzzles/stock/entry_text.hpp"
#include "puzzles/stock/library_table.hpp"
#include "tests/explanations/sentence_judge.hpp"
#include "tests/logic/board_call.hpp"
#include "tests/support/puzzle_generator.hpp"
#include "tests/support/wanted_count.hpp"
#include "tools/walk/play.hpp"

namespace sdk::test {
namespace {

void expect_true_walk(const std::string& puzzle) {
  play_hints(puzzle_of(puzzle),
             [&](const std::deque<Event>& hint) { EXPECT_EQ(faults(hint), "") << puzzle; });
}

TEST(ToldWalks, SentencesOfTheLibraryAreTrueAndComplete) {
  for (const LibraryEntry& entry : BibliothequeGrilles) expect_true_walk(puzzle_text(entry));
}

TEST(ToldWalks, SentencesOfMadeUpPuzzlesAreTrueAndComplete) {
  PuzzleGenerator generator(7);
  for (int grids = wanted_count("SENTENCE_GRIDS", 10); grids > 0; --grids)
    for (const std::string& puzzle : generator.next()) expect_true_walk(puzzle);
}

/// Where stored counts differ from the drawing, a technique may see other candidates than there
/// are.
bool has_true_counts(const BoardCase& board) {
  for (int number = 1; number <= 81; ++number)
    if (board.cells[number].count != board.cells[number].digits.count()) return false;
  return true;
}

std::size_t rules_in_all() {
  std::size_t count = 0;
  for (const Technique& technique : techniques) count += technique.rules.count();
  return count;
}

TEST(ToldBoards, SentencesOfADrawnBoardAreTrueAndComplete) {
  std::set<std::pair<int, Rule>> told;
  for (const BoardFile& file : read_all_boards(BOARDS))
    for (const BoardCase& board : file.cases) {
      if (!board.fires || !has_true_counts(board)) continue;
      const Position position = position_of(file, board);
      const auto found = find_by(*file.technique, position);
      ASSERT_TRUE(found) << board.name;
      EXPECT_EQ(faults({Event{EventKind::removal, position, *found, found->certain}}), "")
          << file.technique->id << '.' << board.name;
      told.insert({file.technique->place, found->rule});
    }
  EXPECT_EQ(told.size(), rules_in_all()) << "a rule has no board";
}

}  // namespace
}  // namespace sdk::test
