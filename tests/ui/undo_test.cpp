// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Undo and redo in the window.

#include <gtest/gtest.h>
#include <malloc.h>

#include "tests/support/game.hpp"
#include "ui/state_check.hpp"

namespace sdk::test {
namespace {

class Undo : public testing::Test {
 protected:
  /// A game of that grid that has just begun to be played.
  void draw(std::string_view grid) {
    game.draw(grid);
    w.maj_indices();
    w.check(Control::Check1, false);
    game.forget();
  }
  void type(int row, int column, char digit) {
    game.select(row, column);
    game.press(digit);
  }
  /// Makes one step, takes it back and does it again: what it was before and after comes back.
  void expect_one_step(const std::function<void()>& command) {
    const GameState before = w.game_state();
    command();
    const GameState after = w.game_state();
    ASSERT_FALSE(after.has_texts_of(before));
    game.forget();
    w.undo();
    EXPECT_EQ(w.game_state(), before);
    w.redo();
    EXPECT_EQ(w.game_state(), after);
    w.undo();
    EXPECT_EQ(w.game_state(), before);
    EXPECT_TRUE(desktop.boxes.empty());
    EXPECT_EQ(state_fault(w), "");
  }

  Game game;
  MainWindow& w = game.window;
  FakeDesktop& desktop = game.desktop;
};

TEST_F(Undo, FindsNothingAtTheStart) {
  EXPECT_FALSE(w.can_undo());
  EXPECT_FALSE(w.can_redo());
  const std::string before = dump(w);
  game.forget();
  w.undo();
  w.redo();
  EXPECT_EQ(difference(before, dump(w)), "");
  EXPECT_TRUE(game.repaints.empty());
}

TEST_F(Undo, TakesADigitBack) {
  draw(grid_of_several_steps);
  expect_one_step([&] { type(2, 8, '6'); });
}

TEST_F(Undo, TakesAnErasedSelectionBack) {
  draw(
      "1bc......\nd........\n.........\n.........\n.........\n.........\n.........\n.........\n"
      ".........\n");
  expect_one_step([&] {
    w.MSF.select(0, 0, 1, 2);
    game.press(key::del);
  });
  EXPECT_EQ(w.game_state().count, " 4 indices");
}

TEST_F(Undo, TakesClearBackWithTheButtonsThatItHid) {
  draw(grid_of_several_steps);
  w.check(Control::Check3, false);
  expect_one_step([&] { w.click(Control::Command2); });
  EXPECT_TRUE(w.visible(Control::Command8));
  w.redo();
  EXPECT_FALSE(w.visible(Control::Command8));
}

TEST_F(Undo, TakesSolveBack) {
  expect_one_step([&] { w.click(Control::Bouton_GO); });
}

TEST_F(Undo, TakesANewPuzzleBackWithItsSolutionAndCaption) {
  w.set_title("/home/player/puzzle.sdk");
  expect_one_step([&] { w.click(Control::Command1); });
  EXPECT_EQ(w.title(), "/home/player/puzzle.sdk");
}

TEST_F(Undo, TakesALoadedPuzzleBack) {
  const std::string file = (desktop.data_folder() / "puzzle.sdk").string();
  desktop.chosen = {file};
  w.click(Control::sauve);
  w.click(Control::Command1);
  w.click(Control::Command1);
  desktop.chosen = {file};
  expect_one_step([&] { w.click(Control::Command6); });
  w.redo();
  EXPECT_EQ(w.title(), file);
}

TEST_F(Undo, TakesEachDigitOfAHintBackAlone) {
  const GameState start = w.game_state();
  desktop.answers = {Answer::yes, Answer::yes, Answer::yes};
  w.click(Control::Command8);
  int steps = 0;
  for (; w.can_undo() && steps < 2000; ++steps) w.undo();
  EXPECT_EQ(steps, 3);
  EXPECT_EQ(w.game_state().count, start.count);
  EXPECT_TRUE(w.game_state().has_texts_of(start));
}

TEST_F(Undo, TakesTheLastDigitBackAndDoesItAgainWithoutABox) {
  std::string grid = complete_grid;
  const char last = grid.front();
  grid.front() = '.';
  draw(grid);
  expect_one_step([&] { type(1, 1, last); });
  w.redo();
  EXPECT_TRUE(desktop.boxes.empty());
  EXPECT_EQ(w.control(Control::Label).caption, " 81 indices");
}

TEST_F(Undo, TellsTheHintNoMoreAndComputesTheCandidatesAnew) {
  draw(grid_of_several_steps);
  type(2, 8, '6');
  game.press(key::del);
  w.click(Control::Command8);
  ASSERT_GT(w.explanation().size(), 0u);
  game.forget();
  w.undo();
  EXPECT_EQ(w.explanation().size(), 0u);
  EXPECT_EQ(w.MSR.text(1, 7), "6");
  w.undo();
  const std::string candidates = w.MSR.text(1, 7);
  w.MajCandidats();
  EXPECT_EQ(w.MSR.text(1, 7), candidates);
  EXPECT_EQ(cells_with_back_colour(w.MSR, 0xFF00FF), "");
}

TEST_F(Undo, HidesTheGridWhileItChanges) {
  type(2, 8, '6');
  game.forget();
  w.undo();
  EXPECT_EQ(game.msf.times_hidden, 1);
  EXPECT_EQ(game.msf.changes_while_visible, 0);
}

TEST_F(Undo, LeavesCurrentCellLevelLanguageAndOptionsAlone) {
  draw(grid_of_several_steps);
  type(2, 8, '6');
  w.MSF.select(4, 4, 6, 7);
  w.choose_level(3);
  w.preview_key(key::f1);
  w.check(Control::Check2, true);
  w.check(Control::Check3, false);
  w.undo();
  EXPECT_EQ(w.MSF.selection(), (CellRange{4, 4, 6, 7}));
  EXPECT_EQ(globals.NiveauCourant, 3);
  EXPECT_EQ(globals.Langue, "En");
  EXPECT_TRUE(w.MSR.visible());
  EXPECT_FALSE(globals.ProtegeGrille);
  EXPECT_EQ(shown(w), grid_of_several_steps);
}

TEST_F(Undo, KnowsNoStepWhereNoTextChanges) {
  draw(grid_of_several_steps);
  type(2, 8, '6');
  w.undo();
  game.press(key::del);
  game.press(key::c, true);
  game.press(key::a, true);
  w.click(Control::Command7);
  w.choose_level(2);
  w.click(Control::Command8);
  EXPECT_TRUE(w.can_redo());
  w.redo();
  w.undo();
  type(2, 8, '5');
  EXPECT_FALSE(w.can_redo());
}

TEST_F(Undo, BringsBackTheColoursOfShowBadValues) {
  type(2, 8, '6');
  w.ChaineSolution = std::string(81, '1');
  w.click(Control::Command7);
  const GameState red = w.game_state();
  type(2, 8, '5');
  w.undo();
  EXPECT_EQ(w.game_state(), red);
  EXPECT_EQ(game.cell(2, 8).text_colour, colour::red);
  EXPECT_TRUE(game.cell(2, 8).is_wrong());
}

TEST_F(Undo, DoesNothingDuringASearch) {
  type(2, 8, '6');
  w.click(Control::Command2);
  ASSERT_TRUE(w.can_undo());
  desktop.forget();
  desktop.at_step = {{3, [&] { w.undo(); }}, {5, [&] { w.redo(); }}};
  expect_one_step([&] { w.click(Control::Bouton_GO); });
}

TEST_F(Undo, TakesBackWhatADeedDuringASearchChangedApartFromItsResult) {
  const std::string first = shown(w);
  std::string second;
  desktop.forget();
  desktop.at_step = {{3, [&] {
                        w.click(Control::Command1);
                        second = shown(w);
                      }}};
  w.click(Control::Bouton_GO);
  w.undo();
  EXPECT_EQ(shown(w), second);
  w.undo();
  EXPECT_EQ(shown(w), first);
  EXPECT_FALSE(w.can_undo());
}

TEST_F(Undo, KeepsAThousandStepsInLessThanFourMegabytes) {
  const std::size_t before = mallinfo2().uordblks;
  for (int n = 0; n < 1000; ++n) w.click(Control::Command1);
  const std::size_t bytes = mallinfo2().uordblks - before;
  RecordProperty("bytes", std::to_string(bytes));
  EXPECT_LT(bytes, 4'000'000u);
  int steps = 0;
  for (; w.can_undo() && steps < 2000; ++steps) w.undo();
  EXPECT_EQ(steps, 1000);
}

}  // namespace
}  // namespace sdk::test
