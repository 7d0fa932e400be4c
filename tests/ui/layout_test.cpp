// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Where the window and its grids stand, in twips, and the box lines over them.

#include "ui/layout.hpp"

#include <gtest/gtest.h>

#include "tests/support/game.hpp"

namespace sdk::test {
namespace {

TEST(Layout, OfThePuzzleAloneIs10035WideWithTheGridInTheMiddle) {
  const Layout alone = layout(false);
  EXPECT_EQ(alone.window.width, 10035);
  EXPECT_EQ(alone.MSF.width, 7020);
  EXPECT_EQ(alone.MSF.height, 7020);
  EXPECT_EQ(alone.MSF.left, (10035 - 7020) / 2.f);
}

TEST(Layout, WithTheCandidatesPutsThePuzzleAt100AndWidensByBothGridsAnd400) {
  const Layout both = layout(true);
  EXPECT_EQ(both.window.width, 7020 + 7020 + 400);
  EXPECT_EQ(both.MSF.left, 100);
  EXPECT_EQ(both.MSR.width, 7020);
  EXPECT_EQ(both.MSR.height, 7020);
  EXPECT_GE(both.MSR.left, both.MSF.left + both.MSF.width);
  EXPECT_LE(both.MSR.left + both.MSR.width, both.window.width);
}

TEST(Layout, FramesBothGrids) {
  for (const Layout& l : {layout(false), layout(true)})
    for (const auto& [grid, frame] : {std::pair{l.MSF, l.rect}, std::pair{l.MSR, l.rect2}}) {
      EXPECT_LT(frame.left, grid.left);
      EXPECT_LT(frame.top, grid.top);
      EXPECT_EQ(frame.left + frame.width / 2, grid.left + grid.width / 2);
      EXPECT_EQ(frame.top + frame.height / 2, grid.top + grid.height / 2);
      EXPECT_LE(grid.top + grid.height, l.window.height);
    }
}

TEST(Layout, KeepsHeightAndTopWhenTheCandidatesAreShown) {
  EXPECT_EQ(layout(true).window.height, layout(false).window.height);
  EXPECT_EQ(layout(true).MSF.top, layout(false).MSF.top);
  EXPECT_EQ(layout(true).MSR.top, layout(true).MSF.top);
}

TEST(Cells, Are780TwipsSquare) { EXPECT_EQ(cell_size, 780); }

std::vector<LineDrawing> four_lines(const Rectangle& g) {
  return {{3, g.left, g.top + 2340, g.left + 7020, g.top + 2340},
          {3, g.left, g.top + 4680, g.left + 7020, g.top + 4680},
          {3, g.left + 2340, g.top, g.left + 2340, g.top + 7020},
          {3, g.left + 4680, g.top, g.left + 4680, g.top + 7020}};
}

TEST(BoxLines, AreFourOverThePuzzleWhileTheCandidatesAreHidden) {
  Game game;
  game.window.trace_ligne();
  EXPECT_EQ(game.window.lines(), four_lines(layout(false).MSF));
}

TEST(BoxLines, AreEightWithTheCandidatesThePuzzlesFirst) {
  Game game;
  game.window.check(Control::Check2, true);
  auto expected = four_lines(layout(true).MSF);
  for (const LineDrawing& line : four_lines(layout(true).MSR)) expected.push_back(line);
  EXPECT_EQ(game.window.lines(), expected);
}

}  // namespace
}  // namespace sdk::test
