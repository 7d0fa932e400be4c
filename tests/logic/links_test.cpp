// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The link tables. What the techniques do with them is drawn in boards/.

#include "logic/links.hpp"

#include <gtest/gtest.h>

#include <vector>

#include "board/grid_text.hpp"
#include "logic/position.hpp"
#include "puzzles/stock/entry_text.hpp"
#include "tests/logic/candidates.hpp"

namespace sdk::test {
namespace {

constexpr int digit = 5;

/// An empty grid on which 5 is a candidate of a few cells only, and every other digit of all.
class LinkTables : public testing::Test {
 protected:
  LinkTables() { candidates = open_cube(); }

  void keep_in(const std::vector<Cell>& cells) {
    CellSet kept;
    for (const Cell cell : cells) kept.insert(cell);
    for (const int cell : sdk::all_cells - kept) candidates.remove(cell_at(cell), digit);
    links = links_of(candidates);
  }

  /// Of 5, between two cells: "strong", "weak", "both" or "none".
  std::string link(Cell a, Cell b) const {
    const bool strong = links.strong(digit, a.number(), b.number()) != 0;
    const bool weak = links.weak(digit, a.number(), b.number()) != 0;
    if (strong) return weak ? "both" : "strong";
    return weak ? "weak" : "none";
  }

  CandidateCube candidates;
  Links links;
};

TEST_F(LinkTables, TheOnlyTwoPlacesOfARowAreStrong) {
  keep_in({{3, 2}, {3, 7}});
  EXPECT_EQ(link({3, 2}, {3, 7}), "strong");
  EXPECT_EQ(link({3, 7}, {3, 2}), "strong");
}

TEST_F(LinkTables, TheOnlyTwoPlacesOfAColumnAreStrong) {
  keep_in({{1, 4}, {8, 4}});
  EXPECT_EQ(link({1, 4}, {8, 4}), "strong");
  EXPECT_EQ(link({8, 4}, {1, 4}), "strong");
}

TEST_F(LinkTables, TheOnlyTwoPlacesOfABoxAreStrong) {
  keep_in({{7, 7}, {9, 8}});
  EXPECT_EQ(link({7, 7}, {9, 8}), "strong");
  EXPECT_EQ(link({9, 8}, {7, 7}), "strong");
}

TEST_F(LinkTables, ThreePlacesOfAUnitAreWeak) {
  keep_in({{3, 1}, {3, 4}, {3, 9}});
  EXPECT_EQ(link({3, 1}, {3, 4}), "weak");
  EXPECT_EQ(link({3, 4}, {3, 9}), "weak");
  EXPECT_EQ(link({3, 9}, {3, 1}), "weak");
}

TEST_F(LinkTables, OneUnitWithTwoPlacesIsEnough) {
  keep_in({{2, 1}, {2, 3}, {2, 8}});  // two in the box, three in the row
  EXPECT_EQ(link({2, 1}, {2, 3}), "strong");
  EXPECT_EQ(link({2, 3}, {2, 1}), "strong");
  EXPECT_EQ(link({2, 1}, {2, 8}), "weak");
  EXPECT_EQ(link({2, 8}, {2, 3}), "weak");
}

TEST_F(LinkTables, AUnitWithTwoPlacesLinksNoThirdCell) {
  keep_in({{2, 1}, {2, 8}, {3, 2}, {3, 3}});  // two in row 2, three in the box of r2c1
  EXPECT_EQ(link({2, 1}, {2, 8}), "strong");
  EXPECT_EQ(link({2, 1}, {3, 2}), "weak");
  EXPECT_EQ(link({2, 8}, {3, 2}), "none");
}

TEST_F(LinkTables, CellsOutOfSightAndACellWithItselfAreNotLinked) {
  keep_in({{1, 1}, {5, 5}});
  EXPECT_EQ(link({1, 1}, {5, 5}), "none");
  EXPECT_EQ(link({1, 1}, {1, 1}), "none");
}

TEST_F(LinkTables, ACellWithoutTheDigitIsNotLinked) {
  keep_in({{3, 2}, {3, 7}});
  EXPECT_EQ(link({3, 2}, {3, 5}), "none");
  EXPECT_EQ(link({3, 5}, {3, 2}), "none");
  EXPECT_EQ(link({3, 5}, {3, 6}), "none");
}

TEST_F(LinkTables, EachDigitHasItsOwnLinks) {
  keep_in({{3, 2}, {3, 7}});
  EXPECT_EQ(links.strong(4, Cell{3, 2}.number(), Cell{3, 7}.number()), 0);
  EXPECT_EQ(links.weak(4, Cell{3, 2}.number(), Cell{3, 7}.number()), 1);
}

TEST_F(LinkTables, AnotherCallForgetsTheLinksOfBefore) {
  keep_in({{3, 2}, {3, 7}, {3, 9}, {8, 7}});
  ASSERT_EQ(link({3, 7}, {3, 9}), "strong");  // in the box
  ASSERT_EQ(link({3, 2}, {3, 9}), "weak");
  candidates.remove({3, 9}, digit);
  links = links_of(candidates);
  EXPECT_EQ(link({3, 7}, {3, 9}), "none");
  EXPECT_EQ(link({3, 2}, {3, 9}), "none");
  EXPECT_EQ(link({3, 2}, {3, 7}), "strong");
}

/// The table that should come out, cell by cell.
std::string link_by_the_rule(const CandidateCube& cube, int of, Cell a, Cell b) {
  if (a == b || !se_voient(a.row, a.column, b.row, b.column)) return "none";
  if (!cube.has(a, of) || !cube.has(b, of)) return "none";
  for (const Unit unit : all_units) {
    int places = 0;
    for (int place = 1; place <= 9; ++place) places += cube.has(unit.cell(place), of);
    if (places == 2 && unit.contains(a) && unit.contains(b)) return "strong";
  }
  return "weak";
}

std::string link_in_the_tables(const Links& links, int of, int a, int b) {
  const int strong = links.strong(of, a, b), weak = links.weak(of, a, b);
  if (strong + weak > 1) return "both";
  return strong == 1 ? "strong" : weak == 1 ? "weak" : "none";
}

/// Over all digits and ordered pairs of cells, how many entries differ from the rule.
int wrong_entries(const CandidateCube& cube) {
  const Links links = links_of(cube);
  int wrong = 0;
  for (int of = 1; of <= 9; ++of)
    for (int a = 1; a <= 81; ++a)
      for (int b = 1; b <= 81; ++b)
        wrong += link_in_the_tables(links, of, a, b) !=
                 link_by_the_rule(cube, of, cell_at(a), cell_at(b));
  return wrong;
}

TEST(LinksOfPuzzles, EveryEntryFollowsTheRuleBothWays) {
  for (const std::size_t number : {1, 17, 40}) {
    const std::string puzzle = puzzle_text(BibliothequeGrilles.at(number - 1));
    EXPECT_EQ(wrong_entries(position_of(puzzle_of(puzzle)).candidates), 0) << "puzzle " << number;
  }
}

TEST(LinksOfPuzzles, NoCandidatesNoLinks) {
  const Links none = links_of(position_of(puzzle_of(std::string(81, '1'))).candidates);
  for (int of = 1; of <= 9; ++of)
    for (int cell = 1; cell <= 81; ++cell) {
      EXPECT_TRUE(none.strong.of(of, cell).empty());
      EXPECT_TRUE(none.weak.of(of, cell).empty());
    }
  EXPECT_EQ(none, Links{});
}

}  // namespace
}  // namespace sdk::test
