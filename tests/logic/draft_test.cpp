// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// What a draft notes.

#include "logic/draft.hpp"

#include <gtest/gtest.h>

#include "tests/logic/candidates.hpp"

namespace sdk::test {
namespace {

class Drafts : public testing::Test {
 protected:
  Drafts() { set_candidates(position.candidates, {4, 2}, {}); }

  static Position three_candidates() {
    Position start;
    start.candidates = open_cube();
    set_candidates(start.candidates, {1, 1}, {3, 5, 8});
    return start;
  }

  Position position = three_candidates();
  Draft draft{position};
};

TEST_F(Drafts, NoteOnlyWhatTheCellStillHas) {
  draft.eliminate({1, 1}, {5, 9});
  EXPECT_EQ(draft.digits_left({1, 1}), (NineSet{3, 8}));
  draft.eliminate_shown({1, 1}, {3, 5});
  EXPECT_EQ(draft.digits_left({1, 1}), NineSet{8});
  EXPECT_TRUE(draft.deduction.losers_of(9).empty());
  EXPECT_EQ(draft.deduction.highlights,
            (std::vector{Highlight{{1, 1}, Mark::removed, {3}, Emphasis::removed}}));
  EXPECT_EQ(position, [] {
    Position same = three_candidates();
    set_candidates(same.candidates, {4, 2}, {});
    return same;
  }());
}

TEST_F(Drafts, ASupportHasItsRoleAndItsMark) {
  draft.support({1, 1}, Role::pincer, NineSet::all(), Mark::second);
  EXPECT_TRUE(draft.deduction.cells_as(Role::pincer).contains(Cell{1, 1}));
  EXPECT_EQ(draft.deduction.highlights,
            (std::vector{Highlight{{1, 1}, Mark::second, {3, 5, 8}, Emphasis::support}}));
  EXPECT_FALSE(draft.deduction.removes_something());
}

TEST_F(Drafts, AColumnIsClearedOutsideABoxWithoutAHighlight) {
  draft.clear_column_outside_box(5, 1, 1);
  EXPECT_EQ(draft.deduction.losers_of(5).count(), 6);
  EXPECT_FALSE(draft.deduction.losers_of(5).contains(Cell{1, 1}));
  EXPECT_TRUE(draft.deduction.highlights.empty());
}

}  // namespace
}  // namespace sdk::test
