// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// A hint run from its start to each of its ends.

#include "pas_a_pas/driver.hpp"

#include <gtest/gtest.h>

#include "tests/pas_a_pas/hint_game.hpp"

namespace sdk::test {
namespace {

class Driver : public testing::Test {
 protected:
  HintGame game;
  MainWindow& w = game.window;
  FakeDesktop& desktop = game.desktop;
};

const char* const no_candidates = " .  .  . \r .  .  . \r .  .  . ";

// Initialisation

TEST_F(Driver, InitialisationReadsEveryTextOfTheGrid) {
  game.draw(
      "1...#...?\n.........\n.........\n.........\n....e....\n"
      ".........\n.........\n.........\n........9\n");
  init_candidats();
  for (int number = 1; number <= 81; ++number) {
    const Cell cell = cell_at(number);
    const int value = number == 1 ? 1 : number == 41 ? 5 : number == 81 ? 9 : 0;
    EXPECT_EQ(Candidats.value(cell), value) << number;
    EXPECT_EQ(Candidats.count(cell), value == 0 ? 9 : 0) << number;
    EXPECT_EQ(Candidats.digits(cell), value == 0 ? NineSet::all() : NineSet{}) << number;
    EXPECT_EQ(solver.GrilleDepart(cell.row, cell.column), value) << number;
  }
}

TEST_F(Driver, InitialisationEmptiesTheCandidateGridAndThePairs) {
  game.draw(complete_grid);
  game.hint();
  ASSERT_NE(game.marked(5), "");
  w.MSF.set_text(0, 0, " ");
  Paires(1, 1) = Paires(9, 9) = {3, 8};
  init_candidats();
  EXPECT_EQ(game.marked(0), all_cells());
  for (int number = 1; number <= 81; ++number) {
    const Cell cell = cell_at(number);
    EXPECT_EQ(game.candidates(cell.row, cell.column).text, " ");
    EXPECT_EQ(Paires(cell.row, cell.column), (std::array<std::uint8_t, 2>{0, 0}));
  }
}

// Completed

TEST_F(Driver, AFullGridIsCompletedAtOnceEvenWhenItBreaksTheRules) {
  game.draw(std::string(81, '1'));
  const std::string before = shown(w);
  game.hint();
  EXPECT_EQ(game.events, (Lines{"completed"}));
  EXPECT_EQ(desktop.boxes, std::vector{message(Message::completed, Icon::exclamation)});
  EXPECT_EQ(shown(w), before);
  EXPECT_TRUE(solver.GrilleFinie);
  EXPECT_EQ(game.marked(5), all_cells());
  EXPECT_EQ(game.candidates(9, 9).text, "1");
}

TEST_F(Driver, OneEmptyCellIsNotComplete) {
  std::string grid = complete_grid;
  grid[0] = '.';
  game.draw(grid);
  init_candidats();
  maj_candidats();
  EXPECT_FALSE(grille_finie());
  EXPECT_FALSE(solver.GrilleFinie);
  EXPECT_EQ(game.marked(5), "") << "the candidates were redrawn";
}

TEST_F(Driver, TheLastPlacementIsFollowedByTwoBoxes) {
  std::string grid = complete_grid;
  grid[0] = '.';
  game.draw(grid);
  desktop.answers = {Answer::yes};
  game.hint();
  ASSERT_EQ(desktop.boxes.size(), 3u);
  EXPECT_EQ(desktop.boxes[0].buttons, Buttons::yes_no);
  EXPECT_EQ(desktop.boxes[1], message(Message::completed, Icon::exclamation));
  EXPECT_EQ(desktop.boxes[2], message(Message::completed, Icon::exclamation));
  EXPECT_EQ(game.events, (Lines{"naked r1c1=1", "completed"}));
}

// Dead cell

const char* const two_dead_cells =
    "12345678.\n........9\n.........\n.........\n.........\n"
    ".........\n9........\n.........\n.87654321\n";

TEST_F(Driver, ADeadCellIsMarkedWithoutAMessage) {
  game.draw(two_dead_cells);
  const std::string before = shown(w);
  game.hint();
  EXPECT_EQ(game.events, (Lines{"dead"}));
  EXPECT_TRUE(desktop.boxes.empty());
  EXPECT_EQ(game.marked(3), "r1c9");
  EXPECT_EQ(game.candidates(1, 9).back_colour, 0xFF00FFu);
  EXPECT_EQ(game.candidates(1, 9).text, no_candidates);
  EXPECT_EQ(game.candidates(1, 1).mark, 5);
  EXPECT_EQ(game.marked(4) + game.marked(6), "");
  EXPECT_EQ(shown(w), before);
  EXPECT_EQ(game.repaints, Lines{});
}

TEST_F(Driver, TheDeadCellCheckLeavesTheViewAloneWhenToldTo) {
  game.draw(two_dead_cells);
  init_candidats();
  maj_candidats();
  solver.SansMarqueMorte = true;
  const bool dead = case_morte();
  solver.SansMarqueMorte = false;
  EXPECT_TRUE(dead);
  EXPECT_EQ(game.marked(0), all_cells());
  EXPECT_EQ(game.candidates(1, 9).text, " ");
}

TEST_F(Driver, AFilledCellWithoutCandidatesIsNotDead) {
  game.draw(complete_grid);
  init_candidats();
  maj_candidats();
  EXPECT_FALSE(case_morte());
  EXPECT_EQ(game.marked(3), "");
}

TEST_F(Driver, ADeadCellIsFoundBeforeANakedSingle) {
  std::string grid = two_dead_cells;
  grid.replace(30, 9, "..1234567");  // r4c1 and r4c2 are left with 8 and 9, r4c1 sees a 9
  game.draw(grid);
  game.hint();
  EXPECT_EQ(game.events, (Lines{"dead"}));
}

// Exhausted

TEST_F(Driver, WhenNothingIsFoundTheGridIsReadAndThePlayerTold) {
  game.draw(std::string(81, '.'));
  w.Grille(5, 5) = w.GrilleInitiale(5, 5) = 7;
  w.set_focus(Control::Command8);
  game.hint();
  EXPECT_EQ(game.events.back(), "exhausted");
  EXPECT_EQ(desktop.boxes, std::vector{message(Message::no_suggestion, Icon::exclamation)});
  EXPECT_EQ(w.focus(), Control::MSF);
  EXPECT_EQ(w.Grille(5, 5), 0);
  EXPECT_EQ(w.GrilleInitiale(5, 5), 0);
  EXPECT_EQ(game.candidates(9, 9).text, " 1  2  3 \r 4  5  6 \r 7  8  9 ");
}

TEST_F(Driver, TheReadingAtTheEndReddensTheTopLeftCellForAClashAnywhere) {
  std::string grid(81, '.');
  grid[70] = grid[80] = '5';  // one box
  game.draw(grid);
  game.hint();
  EXPECT_EQ(game.events.back(), "exhausted");
  EXPECT_EQ(cells_with_text_colour(w.MSF, colour::red), "r1c1");
  EXPECT_FALSE(globals.GrilleOk);
}

TEST_F(Driver, ARunForgetsWhatTheOneBeforeRemoved) {
  game.draw(library_puzzle(34));
  desktop.answers.assign(81, Answer::no);
  Lines first;
  for (int times = 0; times < 2; ++times) {
    game.forget();
    game.events.clear();
    game.hint();
    if (times == 0) first = game.events;
  }
  EXPECT_EQ(game.events, first);
}

TEST_F(Driver, TheHintButtonSetsTheStepModeAndNothingSetsItBack) {
  ASSERT_FALSE(globals.ModePasAPas);
  game.draw(complete_grid);
  game.hint();
  EXPECT_TRUE(globals.ModePasAPas);
  w.click(Control::Command1);
  EXPECT_TRUE(globals.ModePasAPas);
}

TEST_F(Driver, OnlyAHintRunRedrawsTheCandidatesEachRound) {
  std::string grid = complete_grid;
  grid[0] = '.';
  game.draw(grid);
  suggestion();
  EXPECT_EQ(game.marked(5), "");
  EXPECT_EQ(game.candidates(1, 1).text, " ");
  game.hint();
  EXPECT_EQ(game.candidates(1, 1).text, " 1  .  . \r .  .  . \r .  .  . ");
  EXPECT_EQ(game.candidates(1, 2).mark, 5);
}

}  // namespace
}  // namespace sdk::test
