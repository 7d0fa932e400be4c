// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// What techniques find on the drawn boards, proved.

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <stdexcept>

#include "logic/techniques.hpp"
#include "tests/logic/board_call.hpp"
#include "tests/proofs/alterations.hpp"
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

/// What a technique finds on a drawn board.
struct BoardStep {
  std::string name;
  PlainGrid grid;
  nlohmann::json step;

  std::string fault_of(const nlohmann::json& other) const {
    return ProofChecker(grid, Setting::drawn_board).fault(other);
  }
  /// As in a walk, where no premise may be left out.
  std::string fault_in_walk() const { return ProofChecker(grid, Setting::walk).fault(step); }
};

BoardStep step_on(const BoardFile& file, const BoardCase& board) {
  const std::string name = std::string(file.technique->id) + '.' + board.name;
  const auto found = find_by(*file.technique, test::position_of(file, board));
  if (!found) throw std::runtime_error("nothing is found on " + name);
  return {name, plain(board), nlohmann::json::parse(line_of(*found))};
}

std::vector<BoardStep> all_steps() {
  std::vector<BoardStep> steps;
  for (const BoardFile& file : test::read_all_boards(BOARDS))
    for (const BoardCase& board : file.cases)
      if (board.fires && has_true_counts(board)) steps.push_back(step_on(file, board));
  return steps;
}

TEST(BoardProofs, EveryTechniqueHasABoard) {
  std::set<int> places;
  for (const BoardStep& board : all_steps()) places.insert(board.step["place"].get<int>());
  EXPECT_EQ(places.size(), techniques.size());
}

TEST(BoardProofs, EveryStepOnADrawnBoardIsProved) {
  for (const BoardStep& board : all_steps())
    EXPECT_EQ(board.fault_of(board.step), "") << board.name << ": " << board.step;
}

TEST(BoardProofs, APincerThatAnotherMakesNeedlessIsNoPremise) {
  const std::vector<BoardStep> steps = all_steps();
  const auto board =
      std::ranges::find(steps, "xy_wing.a_pincer_that_another_makes_needless", &BoardStep::name);
  ASSERT_NE(board, steps.end());
  EXPECT_EQ(board->step["premises"].size(), 3u) << board->step;
  EXPECT_EQ(board->fault_in_walk(), "") << board->step;
}

TEST(BoardProofs, AStepMadeWrongIsNoticed) {
  for (const BoardStep& board : all_steps())
    for (const nlohmann::json& wrong : altered(board.step, board.grid))
      EXPECT_NE(board.fault_of(wrong), "") << board.name << ": " << wrong;
}

}  // namespace
}  // namespace sdk::proofs
