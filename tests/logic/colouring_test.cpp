// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The colours along strong links, and the two rules. What the technique does is drawn in boards/.

#include "logic/techniques/colouring.hpp"
#include "tests/logic/candidates.hpp"

#include <gtest/gtest.h>

#include <vector>

namespace sdk::test {
namespace {

constexpr int digit = 5;

/// An empty grid on which 5 is a candidate of a few cells only, and every other digit of all.
class Colours : public testing::Test {
 protected:
  void keep_in(const std::vector<Cell>& cells) {
    position.candidates = open_cube();
    CellSet kept;
    for (const Cell cell : cells) kept.insert(cell);
    for (const int cell : all_cells - kept) position.candidates.remove(cell_at(cell), digit);
    position.links = links_of(position.candidates);
  }
  void spread_from(Cell cell) {
    spread_colours(colours, position.links.strong, cell.number(), digit);
  }
  static CellSet cells(std::initializer_list<Cell> list) {
    CellSet set;
    for (const Cell cell : list) set.insert(cell);
    return set;
  }

  /// The link of two cells in a unit, as what the wrap rests on.
  static Premise link(Unit unit, Cell cell1, Cell cell2) {
    return DigitInUnit{unit, digit, cells({cell1, cell2})};
  }
  /// What the wrap rests on when the colours spread from r1c3; in the order of the cells.
  std::vector<Premise> premises_of_the_wrap() {
    colours.paint(Cell{1, 3}.number(), 1);
    spread_from({1, 3});
    return find_wrap(position, colours, digit).value().premises;
  }

  Position position;
  ColourTable colours;
};

TEST_F(Colours, AlternateAlongStrongLinksOnly) {
  keep_in({{1, 1}, {1, 6}, {8, 6}, {8, 2}, {8, 3}, {4, 4}});
  colours.paint(Cell{1, 6}.number(), 1);
  spread_from({1, 6});
  EXPECT_EQ(colours.cells(1), cells({{1, 6}}));
  EXPECT_EQ(colours.cells(-1), cells({{1, 1}, {8, 6}}));
}

TEST_F(Colours, ACellKeepsItsColour) {
  keep_in({{1, 1}, {1, 6}, {8, 6}});
  colours.paint(Cell{1, 1}.number(), 1);
  colours.paint(Cell{1, 6}.number(), 1);
  spread_from({1, 1});
  EXPECT_EQ(colours.cells(1), cells({{1, 1}, {1, 6}}));
  EXPECT_TRUE(colours.cells(-1).empty());
}

TEST_F(Colours, TheTrapTakesTheDigitFromACellThatSeesBoth) {
  keep_in({{1, 1}, {1, 3}, {2, 2}});
  EXPECT_EQ(find_trap(position, colours, digit), std::nullopt);
  colours.paint(Cell{1, 1}.number(), 1);
  EXPECT_EQ(find_trap(position, colours, digit), std::nullopt);
  colours.paint(Cell{1, 3}.number(), -1);
  EXPECT_EQ(find_wrap(position, colours, digit), std::nullopt);
  EXPECT_EQ(find_trap(position, colours, digit)->losers_of(digit), cells({{2, 2}}));
}

TEST_F(Colours, TheWrapTakesTheDigitFromTheColourThatSeesItself) {
  keep_in({{1, 1}, {1, 3}, {5, 5}});
  colours.paint(Cell{1, 1}.number(), -1);
  colours.paint(Cell{5, 5}.number(), 1);
  EXPECT_EQ(find_wrap(position, colours, digit), std::nullopt);
  colours.paint(Cell{1, 3}.number(), -1);
  EXPECT_EQ(find_wrap(position, colours, digit)->losers_of(digit), cells({{1, 1}, {1, 3}}));
}

TEST_F(Colours, TheWrapRestsOnTheChainBetweenTheCellsThatClash) {
  keep_in({{1, 3}, {1, 8}, {6, 8}, {6, 1}, {5, 3}, {9, 3}});
  EXPECT_EQ(premises_of_the_wrap(), (std::vector{link({UnitKind::row, 1}, {1, 3}, {1, 8}),
                                                 link({UnitKind::column, 8}, {1, 8}, {6, 8}),
                                                 link({UnitKind::box, 4}, {5, 3}, {6, 1}),
                                                 link({UnitKind::row, 6}, {6, 1}, {6, 8})}));
}

TEST_F(Colours, TheWrapRestsOnABranchWhoseEndSeesNoOtherCellOfTheOtherColour) {
  keep_in({{1, 3}, {1, 8}, {6, 8}, {6, 1}, {5, 3}, {9, 3}, {5, 7}, {8, 7}});
  EXPECT_EQ(premises_of_the_wrap(), (std::vector{link({UnitKind::row, 1}, {1, 3}, {1, 8}),
                                                 link({UnitKind::column, 8}, {1, 8}, {6, 8}),
                                                 link({UnitKind::row, 5}, {5, 3}, {5, 7}),
                                                 link({UnitKind::box, 6}, {5, 7}, {6, 8}),
                                                 link({UnitKind::column, 7}, {5, 7}, {8, 7})}));
}

TEST_F(Colours, TheWrapRestsOnNoBranchWhoseEndSeesTheOtherColourAnyway) {
  keep_in({{1, 3}, {1, 8}, {6, 8}, {6, 1}, {5, 3}, {9, 3}, {2, 2}, {2, 9}, {3, 7}});
  EXPECT_EQ(premises_of_the_wrap(), (std::vector{link({UnitKind::row, 1}, {1, 3}, {1, 8}),
                                                 link({UnitKind::column, 8}, {1, 8}, {6, 8}),
                                                 link({UnitKind::box, 4}, {5, 3}, {6, 1}),
                                                 link({UnitKind::row, 6}, {6, 1}, {6, 8})}));
}

TEST_F(Colours, EveryEmptyCellIsMarkedByItsColour) {
  keep_in({{1, 1}, {1, 3}});
  fill(position.candidates, {9, 9}, 4);
  colours.paint(Cell{1, 1}.number(), 1);
  colours.paint(Cell{1, 3}.number(), -1);
  const std::vector<Highlight> marks = colour_marks(position, colours);
  ASSERT_EQ(marks.size(), 80u);
  EXPECT_EQ(marks[0].mark, Mark::support);
  EXPECT_EQ(marks[1].mark, Mark::none);
  EXPECT_EQ(marks[2].mark, Mark::second);
}

}  // namespace
}  // namespace sdk::test
