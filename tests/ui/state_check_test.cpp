// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The check of the window's whole state.

#include "ui/state_check.hpp"

#include <gtest/gtest.h>

#include "board/fault.hpp"
#include "pas_a_pas/tables.hpp"
#include "tests/support/game.hpp"
#include "ui/messages.hpp"

namespace sdk::test {
namespace {

struct Damage {
  const char* name;
  void (*damage)(MainWindow& w);
  const char* fault;
};

class StateCheck : public testing::TestWithParam<Damage> {};

TEST_P(StateCheck, NamesTheDamage) {
  Game game;
  ASSERT_EQ(state_fault(game.window), "");
  GetParam().damage(game.window);
  EXPECT_EQ(state_fault(game.window), GetParam().fault);
}

void set_current(DisplayGrid& grid, int row, int column, Colour text, Colour back) {
  grid.make_current(row - 1, column - 1);
  grid.set_text_colour(text);
  grid.set_back_colour(back);
}

const Damage damages[] = {
    {"WrongAndGreen",
     [](MainWindow& w) {
       set_current(w.MSF, 2, 3, colour::green, colour::white);
       DisplayCell cell = w.MSF.current();
       cell.wrong = true;
       w.MSF.set_cell(1, 2, cell);
     },
     "MSF r2c3 is wrong but not red"},
    {"LongText", [](MainWindow& w) { w.MSF.set_text(1, 2, "12"); },
     "MSF r2c3 holds more than one character"},
    {"TextColour", [](MainWindow& w) { set_current(w.MSF, 4, 5, 0x123456, colour::white); },
     "MSF r4c5 has an unknown text colour"},
    {"Background", [](MainWindow& w) { set_current(w.MSF, 9, 1, colour::red, 0xC0C0C0); },
     "MSF r9c1 has an unknown background"},
    {"Mark",
     [](MainWindow& w) {
       w.MSR.make_current(2, 2);
       w.MSR.set_mark(7);
     },
     "MSR r3c3 has an unknown mark"},
    {"NegativeMark",
     [](MainWindow& w) {
       w.MSR.make_current(2, 2);
       w.MSR.set_mark(-1);
     },
     "MSR r3c3 has an unknown mark"},
    {"Grille", [](MainWindow& w) { w.Grille(1, 1) = 10; }, "Grille r1c1 out of range"},
    {"NegativeGrille", [](MainWindow& w) { w.Grille(1, 9) = -1; }, "Grille r1c9 out of range"},
    {"GrilleInitiale", [](MainWindow& w) { w.GrilleInitiale(9, 9) = 10; },
     "GrilleInitiale r9c9 out of range"},
    {"ResGrille", [](MainWindow& w) { w.resGrille(5, 5) = 10; }, "resGrille r5c5 out of range"},
    {"LongSolution", [](MainWindow& w) { w.ChaineSolution = std::string(82, '1'); },
     "ChaineSolution is too long"},
    {"StrangeSolution", [](MainWindow& w) { w.ChaineSolution = "12x"; },
     "ChaineSolution holds more than digits"},
    {"Level", [](MainWindow&) { globals.NiveauCourant = 5; }, "NiveauCourant out of range"},
    {"NegativeLevel", [](MainWindow&) { globals.NiveauCourant = -1; },
     "NiveauCourant out of range"},
    {"GivensColour", [](MainWindow&) { globals.CouleurDonnees = colour::white; },
     "CouleurDonnees is no colour of givens"},
    {"Language", [](MainWindow&) { globals.Langue = "De"; }, "Langue is unknown"},
    {"Messages", [](MainWindow&) { globals.Messages[place_of(Message::impossible)] = ""; },
     "Messages differ from Langue"},
    {"SilentSolve", [](MainWindow&) { globals.ResolutionSilencieuse = true; },
     "ResolutionSilencieuse outlived its solve"},
    {"HiddenGrid", [](MainWindow& w) { w.MSF.set_visible(false); }, "MSF stayed hidden"},
    {"Candidates", [](MainWindow& w) { w.MSR.set_visible(true); }, "MSR is not as Check2 says"},
    {"Frame", [](MainWindow& w) { w.set_visible(Control::rect2, true); }, "rect2 is not as MSR"},
    {"Check1", [](MainWindow& w) { w.VerifAuVol = true; }, "Check1 differs"},
    {"Check2",
     [](MainWindow& w) {
       globals.AfficheCandidats = true;
       w.MSR.set_visible(true);
       w.set_visible(Control::rect2, true);
       w.trace_ligne();
     },
     "Check2 differs"},
    {"Check3", [](MainWindow&) { globals.ProtegeGrille = false; }, "Check3 differs"},
    {"Command1", [](MainWindow& w) { w.set_visible(Control::Command1, false); },
     "Command1 is hidden"},
    {"Search", [](MainWindow& w) { w.searches_running = 1; }, "a search is still counted"},
    {"TabStop", [](MainWindow& w) { w.MSF.set_tab_stop(false); }, "MSF stayed without focus marks"},
    {"OutdatedExplanation",
     [](MainWindow& w) {
       w.click(Control::Command8);
       w.MSF.set_text(0, 0, "9");
       w.MSF.set_text(0, 1, "9");
     },
     "the explanation is of another puzzle"},
    {"LostHint",
     [](MainWindow& w) {
       w.click(Control::Command8);
       solver.hint.reset();
     },
     "the explanation is of no hint"},
    {"UnfinishedHint",
     [](MainWindow& w) {
       w.click(Control::Command8);
       solver.hint.emplace(solver.position);
     },
     "the explanation is of no hint"},
    {"MissingStep",
     [](MainWindow& w) {
       draw(w, grid_of_several_steps);
       w.click(Control::Command8);
       w.choose_step(1);
       solver.hint.emplace(open_position({}), std::span<const Technique>{});
       solver.hint->next();
     },
     "the chosen step is missing"},
    {"FocusMark", [](MainWindow& w) { w.MSF.set_marks_current(false); },
     "MSF stayed without focus marks"},
};

INSTANTIATE_TEST_SUITE_P(Each, StateCheck, testing::ValuesIn(damages),
                         [](const auto& test) { return test.param.name; });

TEST(StateAfterACommand, IsCheckedInABuildWithAssertions) {
  if (!has_assertions) GTEST_SKIP() << "this build has no assertions";
  Game game;
  game.desktop.at_box = [&](const Box&) { game.window.MSF.set_tab_stop(false); };
  EXPECT_DEATH(game.window.click(Control::Command3), "MSF stayed without focus marks");
}

TEST(StateAfterACommand, IsLeftAloneInsideAnotherCommand) {
  Game game;
  game.desktop.at_box = [&](const Box&) {
    const bool is_first = game.desktop.boxes.size() == 1;
    if (is_first) game.window.click(Control::Command3);
    game.window.MSF.set_tab_stop(is_first);
  };
  game.window.click(Control::Command3);
  EXPECT_EQ(game.desktop.boxes.size(), 2u);
}

TEST(StateAfterACommand, IsLeftAloneWhenTheCommandFoundItDamaged) {
  Game game;
  game.window.MSF.set_tab_stop(false);
  game.window.check(Control::Check1, true);
  EXPECT_TRUE(game.window.VerifAuVol);
}

/// A window that was never started, made to look as if.
class Unstarted : public testing::Test {
 protected:
  Unstarted() {
    globals = {};
    globals.ProtegeGrille = false;
    globals.Messages = messages_in("Fr");
    w.set_visible(Control::MSR, false);
    w.set_visible(Control::rect2, false);
  }

  FakeDesktop desktop;
  MainWindow w{desktop};
};

TEST_F(Unstarted, StateHasNoLevelItems) { EXPECT_EQ(state_fault(w), "Niveau has lost its items"); }

TEST_F(Unstarted, StateHasNoBoxLines) {
  w.langage("Fr");
  EXPECT_EQ(state_fault(w), "box lines are missing");
}

TEST(SoundState, IsAnythingThatThePlayerCanReach) {
  Game game;
  MainWindow& w = game.window;
  w.check(Control::Check2, true);
  EXPECT_EQ(state_fault(w), "");
  w.choose_level(4);
  w.click(Control::Command1);
  EXPECT_EQ(state_fault(w), "");
  w.click(Control::Command7);
  EXPECT_EQ(state_fault(w), "");
  w.check(Control::Check3, false);
  w.click(Control::Command2);
  w.click(Control::Bouton_GO);
  EXPECT_EQ(state_fault(w), "");
  w.preview_key(key::f1);
  EXPECT_EQ(state_fault(w), "");
}

}  // namespace
}  // namespace sdk::test
