// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// What techniques find on the drawn boards, proved.

#include <gtest/gtest.h>

#include <set>

#include "logic/techniques.hpp"
#include "tests/logic/board_call.hpp"
#include "tests/proofs/proof_checker.hpp"
#include "tools/walk/json_walk.hpp"

namespace sdk::proofs {
namespace {

using test::BoardCase;
using test::BoardFile;

/// The step as a line in JSON.
std::string line_of(const Deduction& deduction) {
  return json_of({EventKind::removal, {}, deduction, deduction.certain});
}

PlainGrid plain(const BoardCase& board) {
  PlainGrid grid;
  for (int cell = 0; cell < cell_count; ++cell) {
    const test::DrawnCell& drawn = board.cells[cell + 1];
    grid.values[static_cast<std::size_t>(cell)] = drawn.value;
    if (drawn.value != 0) continue;
    for (const int digit : drawn.digits) grid.at(cell).set(static_cast<std::size_t>(digit));
  }
  return grid;
}

/// Where stored counts differ from the drawing, a technique may see other candidates than there
/// are.
bool has_true_counts(const BoardCase& board) {
  for (int number = 1; number <= cell_count; ++number)
    if (board.cells[number].count != board.cells[number].digits.count()) return false;
  return true;
}

/// An avoidable rectangle rests on what was entered before.
bool is_provable(const BoardFile& file, const BoardCase& board) {
  return board.fires && file.technique->place != 10 && has_true_counts(board);
}

void expect_proof(const std::string& line, const BoardFile& file, const BoardCase& board) {
  ProofChecker checker(plain(board), Setting::drawn_board);
  EXPECT_EQ(checker.fault(nlohmann::json::parse(line)), "")
      << file.technique->id << '.' << board.name << ": " << line;
}

TEST(BoardProofs, EveryStepOnADrawnBoardIsProved) {
  std::set<int> proved;
  for (const BoardFile& file : test::read_all_boards(BOARDS))
    for (const BoardCase& board : file.cases) {
      if (!is_provable(file, board)) continue;
      const auto found = find_by(*file.technique, test::position_of(file, board));
      ASSERT_TRUE(found) << board.name;
      expect_proof(line_of(*found), file, board);
      proved.insert(file.technique->place);
    }
  EXPECT_EQ(proved.size(), techniques.size() - 1) << "a technique has no board to prove";
}

}  // namespace
}  // namespace sdk::proofs
