// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Counts, what changes a position, and the recompute.

#include "logic/position.hpp"

#include <gtest/gtest.h>

#include "board/grid_text.hpp"
#include "logic/deduction.hpp"
#include "logic/draft.hpp"
#include "logic/position_check.hpp"
#include "tests/logic/candidates.hpp"

namespace sdk::test {
namespace {

constexpr Unit row(int n) { return {UnitKind::row, n}; }
constexpr Unit column(int n) { return {UnitKind::column, n}; }
constexpr Unit box(int n) { return {UnitKind::box, n}; }

/// Every cell has every candidate.
class Positions : public testing::Test {
 protected:
  Positions() { candidates = open_cube(); }

  Position position;
  CandidateCube& candidates = position.candidates;
};

// Counts

TEST_F(Positions, ADigitIsCountedByItsFlags) {
  keep_places(candidates, row(5), 7, {1, 4, 6});
  candidates.set_count({5, 1}, 0);  // no count of digits looks at it
  EXPECT_EQ(digit_count(position, row(5), 7), 3);
  EXPECT_EQ(digit_count(position, column(4), 7), 9);
  EXPECT_EQ(digit_count(position, column(5), 7), 8);
  EXPECT_EQ(digit_count(position, box(5), 7), 8);
  EXPECT_EQ(digit_count(position, box(4), 7), 7);
  EXPECT_EQ(digit_count_in_box(position, row(5), 4, 7), 1);
  EXPECT_EQ(digit_count_in_box(position, row(5), 5, 7), 2);
  EXPECT_EQ(digit_count_in_box(position, row(5), 6, 7), 0);
  EXPECT_EQ(digit_count_in_box(position, column(5), 5, 7), 2);
  EXPECT_EQ(digit_count_in_box(position, column(5), 2, 7), 3);
}

TEST_F(Positions, TotalsAddTheStoredCounts) {
  set_candidates(candidates, {5, 5}, {1, 2});
  candidates.remove({5, 6}, 1);  // its count still says 9
  EXPECT_EQ(candidate_total(position, row(5)), 74);
  EXPECT_EQ(candidate_total(position, column(5)), 74);
  EXPECT_EQ(candidate_total(position, box(5)), 74);
  EXPECT_EQ(candidate_total(position, column(6)), 81);
  EXPECT_EQ(candidates.digits({5, 6}).count(), 8);
  EXPECT_EQ(candidates.count({5, 6}), 9);
}

TEST_F(Positions, CandidatesAreNumberedUpwards) {
  set_candidates(candidates, {2, 3}, {3, 5, 9});
  EXPECT_EQ(nth_candidate(position, {2, 3}, 1), 3);
  EXPECT_EQ(nth_candidate(position, {2, 3}, 2), 5);
  EXPECT_EQ(nth_candidate(position, {2, 3}, 3), 9);
  EXPECT_EQ(nth_candidate(position, {2, 3}, 4), 0);
}

// Primitives

TEST_F(Positions, AColumnIsClearedOutsideABox) {
  Draft draft(position);
  draft.clear_column_outside_box(6, 5, 2);
  apply(draft.deduction, position);
  EXPECT_EQ(candidates.places(column(5), 6), (NineSet{1, 2, 3}));
  EXPECT_EQ(candidates.cells_with(6).count(), 75);
  EXPECT_EQ(candidates.cells_with(7).count(), 81);
  EXPECT_EQ(candidates.count({9, 5}), 9) << "counts wait for the recompute";
}

TEST_F(Positions, AClearedCellHasNoFlagAndTheCount0) {
  candidates.clear({4, 4});
  EXPECT_EQ(candidates.digits({4, 4}), NineSet{});
  EXPECT_EQ(candidates.count({4, 4}), 0);
  EXPECT_EQ(candidates.digits({4, 5}), NineSet::all());
}

// The recompute

TEST_F(Positions, AFilledCellThatStillHasCandidatesLosesThemAll) {
  candidates.set_value({4, 4}, 5);
  ASSERT_EQ(candidates.count({4, 4}), 9);
  recompute(position);
  EXPECT_EQ(candidates.digits({4, 4}), NineSet{});
  EXPECT_EQ(candidates.count({4, 4}), 0);
}

TEST_F(Positions, AValueExcludesItsDigitFromTheCellsThatSeeIt) {
  fill(candidates, {4, 4}, 5);
  recompute(position);
  for (int number = 1; number <= 81; ++number) {
    const Cell cell = cell_at(number);
    if (cell == Cell{4, 4}) continue;
    const bool sees = se_voient_num(number, Cell{4, 4}.number());
    EXPECT_EQ(candidates.has(cell, 5), !sees) << number;
    EXPECT_EQ(candidates.count(cell), sees ? 8 : 9) << number;
  }
  EXPECT_EQ(position_fault(position), "");
}

TEST_F(Positions, ACellThatOnceCounted0IsNeverVisitedAgain) {
  fill(candidates, {4, 4}, 5);
  candidates.set_count({4, 5}, 0);
  recompute(position);
  EXPECT_TRUE(candidates.has({4, 5}, 5));
  EXPECT_EQ(candidates.count({4, 5}), 0);
}

TEST_F(Positions, TheRecomputeRestoresNothing) {
  set_candidates(candidates, {1, 1}, {1});
  recompute(position);
  EXPECT_EQ(candidates.digits({1, 1}), NineSet{1});
  EXPECT_EQ(candidates.count({1, 1}), 1);
}

TEST_F(Positions, ACellOfTwoCandidatesEntersThePairsTheSmallerFirst) {
  for (const int digit : {1, 2, 4, 5, 6, 7, 9}) candidates.remove({2, 3}, digit);
  recompute(position);
  EXPECT_EQ(position.pairs(2, 3), (std::array<std::uint8_t, 2>{3, 8}));
}

TEST_F(Positions, APairIsKeptWhenTheCellHasFewer) {
  set_candidates(candidates, {2, 3}, {3, 8});
  recompute(position);
  candidates.remove({2, 3}, 8);
  recompute(position);
  EXPECT_EQ(candidates.count({2, 3}), 1);
  EXPECT_EQ(position.pairs(2, 3), (std::array<std::uint8_t, 2>{3, 8}));
}

// Positions of grids

const char* const some_grid =
    "4...683797689431523.97..648.43.9.86719.876.348763.4.91987615423..1439786634287915";

TEST(PositionsOfGrids, AreOpenBeforeAnythingIsConcluded) {
  const Position open = open_position(puzzle_of(some_grid));
  for (int number = 1; number <= 81; ++number) {
    const Cell cell = cell_at(number);
    const bool is_empty = some_grid[number - 1] == '.';
    EXPECT_EQ(open.candidates.digits(cell), is_empty ? NineSet::all() : NineSet{});
    EXPECT_EQ(open.candidates.count(cell), is_empty ? 9 : 0);
    EXPECT_EQ(open.candidates.value(cell), is_empty ? 0 : some_grid[number - 1] - '0');
    EXPECT_EQ(open.pairs[number], (std::array<std::uint8_t, 2>{0, 0}));
  }
}

TEST(PositionsOfGrids, AreTheOpenOnesRecomputed) {
  for (const std::string& grid : {std::string(some_grid), std::string(81, '.'),
                                  std::string(81, '1'), "11" + std::string(79, '.')}) {
    Position open = open_position(puzzle_of(grid));
    recompute(open);
    EXPECT_EQ(position_of(puzzle_of(grid)), open) << grid;
    EXPECT_EQ(position_fault(open), "") << grid;
  }
}

// Applying

TEST_F(Positions, RemovalsLeaveTheCounts) {
  Deduction deduction;
  deduction.removed[3].insert(Cell{4, 2});
  deduction.removed[8].insert(Cell{4, 2});
  apply(deduction, position);
  EXPECT_EQ(candidates.digits({4, 2}), (NineSet::all() - NineSet{3, 8}));
  EXPECT_EQ(candidates.count({4, 2}), 9);
  EXPECT_EQ(candidates.cells_with(3).count(), 80);
}

TEST_F(Positions, APlacementTakesItsOwnDigitAlone) {
  Deduction deduction;
  deduction.placement = Placement{{4, 2}, 7};
  apply(deduction, position);
  EXPECT_EQ(candidates.value({4, 2}), 7);
  EXPECT_EQ(candidates.digits({4, 2}), (NineSet::all() - NineSet{7}));
  EXPECT_EQ(candidates.count({4, 2}), 9);
}

// The check of the candidates

TEST_F(Positions, TheCheckFindsWhatIsWrong) {
  EXPECT_EQ(position_fault(position), "");
  candidates.set_count({1, 2}, 8);
  EXPECT_EQ(position_fault(position), "r1c2 has a count other than its number of flags");
  candidates = open_cube();
  candidates.set_value({1, 2}, 8);
  EXPECT_EQ(position_fault(position), "r1c1 has the candidate 8 and sees that value");
  candidates = open_cube();
  candidates.set_value({1, 1}, 8);
  EXPECT_EQ(position_fault(position), "r1c1 is filled and has candidates");
}

}  // namespace
}  // namespace sdk::test
