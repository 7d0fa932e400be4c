// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The backtracking search, by itself and step by step beside a plain one.

#include <gtest/gtest.h>

#include "puzzles/stock/random.hpp"
#include "tests/game/plain_search.hpp"
#include "tests/support/game.hpp"
#include "ui/version.hpp"

namespace sdk::test {
namespace {

const char* const empty_grid =
    ".........\n.........\n.........\n.........\n.........\n.........\n.........\n.........\n"
    ".........\n";

/// The player's digits c (3) and b (2) are right.
const char* const easy_puzzle =
    "1.3.5.7.9\n.5.7.9.2.\n7.9.2.4.6\n.3.5.4.9.\n5.4.9.2.1\n.9.2.1.6.\nc.2.4.9.8\n.4.9.8.1.\n"
    "9.8.1.6.5\n";

const char* const sparse_puzzle =
    "..3.5....\n4....9.2.\n..91..4..\n.3.....9.\n5..89...1\n8...3..6.\n..2..5...\n.4.9...1.\n"
    "9....2..5\n";

/// Takes the search 34361 steps.
const char* const long_puzzle =
    ".2.4..1.3\n.74....82\n3.1.2..45\n....91...\n4.......1\n...84....\n15..8.7.4\n69....51.\n"
    "7.8..2.6.\n";

/// Row 1 asks for a 9 in its last cell, which column 9 holds already.
const char* const impossible_puzzle =
    "12345678.\n........9\n.........\n.........\n.........\n.........\n.........\n.........\n"
    ".........\n";

/// Two 5s in row 1, whose last cell has no digit left.
const char* const clashing_puzzle =
    "55345678.\n.........\n.........\n........1\n........2\n........9\n.........\n.........\n"
    ".........\n";

std::string full_with_a_clash() {
  std::string grid = complete_grid;
  grid[0] = '2';
  return grid;
}

using Solve = void (*)(MainWindow&);

void fast(MainWindow& w) { w.click(Control::Bouton_GO); }

/// What happens in the search, at which step; `solve` is the search under test.
struct Event {
  const char* name;
  void (*happen)(Game& game, Solve solve);
};

const Event escape{"Escape", [](Game& g, Solve) { g.window.preview_key(key::escape); }};
const Event nested_search{"Solve", [](Game& g, Solve solve) { solve(g.window); }};
const Event new_puzzle{"New", [](Game& g, Solve) { g.window.click(Control::Command1); }};
const Event new_and_search{"NewAndSolve", [](Game& g, Solve solve) {
                             draw(g.window, easy_puzzle);
                             solve(g.window);
                           }};
const Event impossible_search{"SolveAnImpossibleOne", [](Game& g, Solve solve) {
                                draw(g.window, impossible_puzzle);
                                solve(g.window);
                              }};
const Event search_full{"SolveAFullOne", [](Game& g, Solve solve) {
                          draw(g.window, complete_grid);
                          solve(g.window);
                        }};
const Event clear{"Clear", [](Game& g, Solve) { g.window.click(Control::Command2); }};
const Event clear_all{"ClearUnprotected", [](Game& g, Solve) {
                        g.window.check(Control::Check3, false);
                        g.window.click(Control::Command2);
                      }};
const Event clear_full_givens{"ClearOfAFullGrid", [](Game& g, Solve) {
                                draw(g.window, complete_grid);
                                g.window.click(Control::Command2);
                              }};
const Event hint{"Hint", [](Game& g, Solve) { g.window.click(Control::Command8); }};
const Event bad_values{"BadValues", [](Game& g, Solve) { g.window.click(Control::Command7); }};
const Event typed{"Digit", [](Game& g, Solve) { g.press('5'); }};

struct Run {
  std::string state;
  long steps;
  std::vector<Box> boxes;
  std::vector<Pointer> pointers;
  Lines repaints;
};

struct TimedEvent {
  long step;
  const Event& event;
};

/// Escape ends every run that an event made endless.
Run run(std::string_view grid, Solve solve, const std::vector<TimedEvent>& events, bool silent) {
  Game game;
  game.draw(grid);
  globals.ResolutionSilencieuse = silent;
  if (!events.empty()) game.desktop.at_step[5000] = [&] { game.window.preview_key(key::escape); };
  for (const TimedEvent& e : events)
    game.desktop.at_step[e.step] = [&game, solve, &e] { e.event.happen(game, solve); };
  solve(game.window);
  return {dump(game.window), game.desktop.steps, game.desktop.boxes, game.desktop.pointers,
          game.repaints};
}

void expect_same(std::string_view grid, const std::vector<TimedEvent>& events = {},
                 bool silent = false) {
  const Run plain = run(grid, plain_resoudre, events, silent);
  const Run searched = run(grid, fast, events, silent);
  EXPECT_EQ(difference(plain.state, searched.state), "");
  EXPECT_EQ(searched.steps, plain.steps);
  EXPECT_EQ(searched.boxes, plain.boxes);
  EXPECT_EQ(searched.pointers, plain.pointers);
  EXPECT_EQ(searched.repaints, plain.repaints);
}

struct NamedGrid {
  const char* name;
  std::string grid;
};

class StepByStep : public testing::TestWithParam<NamedGrid> {};

TEST_P(StepByStep, TheSearchAgreesWithThePlainOne) { expect_same(GetParam().grid); }

TEST_P(StepByStep, TheSilentSearchAgreesWithThePlainOne) { expect_same(GetParam().grid, {}, true); }

TEST_P(StepByStep, TheSearchStoppedAtAnyStepAgreesWithThePlainOne) {
  for (const long step : {1, 2, 3, 50, 81, 82, 83, 200, 391})
    expect_same(GetParam().grid, {{step, escape}});
}

INSTANTIATE_TEST_SUITE_P(
    Search, StepByStep,
    testing::Values(NamedGrid{"Empty", empty_grid}, NamedGrid{"Easy", easy_puzzle},
                    NamedGrid{"Sparse", sparse_puzzle}, NamedGrid{"Long", long_puzzle},
                    NamedGrid{"Impossible", impossible_puzzle},
                    NamedGrid{"Clashing", clashing_puzzle}, NamedGrid{"Full", complete_grid},
                    NamedGrid{"FullWithAClash", full_with_a_clash()}),
    [](const auto& test) { return test.param.name; });

class Interrupted : public testing::TestWithParam<Event> {};

TEST_P(Interrupted, TheSearchAgreesWithThePlainOneWhereverItHappens) {
  for (const char* grid : {empty_grid, easy_puzzle, sparse_puzzle, impossible_puzzle})
    for (const long step : {1, 2, 40, 80, 81, 100, 101, 102, 103, 150, 300}) {
      SCOPED_TRACE(std::string(grid) + " step " + std::to_string(step));
      expect_same(grid, {{step, GetParam()}});
    }
}

TEST_P(Interrupted, TwiceTheSearchAgreesWithThePlainOne) {
  for (const char* grid : {empty_grid, easy_puzzle, sparse_puzzle, impossible_puzzle})
    for (const long step : {1, 40, 101}) {
      SCOPED_TRACE(std::string(grid) + " step " + std::to_string(step));
      expect_same(grid, {{step, GetParam()}, {step + 60, nested_search}, {step + 90, clear}});
      expect_same(grid, {{step, nested_search}, {step + 1, GetParam()}});
      expect_same(grid,
                  {{step, nested_search}, {step + 7, nested_search}, {step + 30, GetParam()}});
    }
}

INSTANTIATE_TEST_SUITE_P(Search, Interrupted,
                         testing::Values(escape, nested_search, new_puzzle, new_and_search,
                                         impossible_search, search_full, clear, clear_all,
                                         clear_full_givens, hint, bad_values, typed),
                         [](const auto& test) { return test.param.name; });

/// Up to four events, each at some step.
std::vector<TimedEvent> random_events(std::uint32_t seed) {
  static const Event* const events[] = {&escape,         &nested_search,     &new_puzzle,
                                        &new_and_search, &impossible_search, &search_full,
                                        &clear,          &clear_all,         &clear_full_givens,
                                        &hint,           &bad_values,        &typed};
  Random random;
  random.reseed(seed);
  std::vector<TimedEvent> script;
  long step = 0;
  for (int n = random.below(4); n >= 0; --n) {
    step += 1 + random.below(random.below(2) ? 10 : 300);
    script.push_back({step, *events[random.below(std::size(events))]});
  }
  return script;
}

TEST(RandomInterruptions, LeaveTheSearchInAgreementWithThePlainOne) {
  for (std::uint32_t seed = 0; seed < 500; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    static const char* const grids[] = {empty_grid, easy_puzzle, sparse_puzzle, long_puzzle,
                                        impossible_puzzle};
    expect_same(grids[seed % std::size(grids)], random_events(seed), seed % 7 == 0);
  }
}

class Search : public testing::Test {
 protected:
  Game game;
  MainWindow& w = game.window;
  FakeDesktop& desktop = game.desktop;
};

TEST_F(Search, SolvesAnEmptyGridWithTheSmallestDigitsFirst) {
  game.draw(empty_grid);
  w.Resoudre();
  EXPECT_EQ(shown(w),
            "123456789\n456789123\n789123456\n214365897\n365897214\n897214365\n531642978\n"
            "642978531\n978531642\n");
  EXPECT_EQ(cells_with_text_colour(w.MSF, colour::green), all_cells());
  EXPECT_EQ(w.NumCase, 82);
}

TEST_F(Search, ShowsTheSolutionInGreenAndAnnouncesIt) {
  game.draw(easy_puzzle);
  w.set_visible(Control::Bouton_GO, false);
  w.set_visible(Control::Command1, false);
  w.Resoudre();
  EXPECT_EQ(shown(w), complete_grid);
  EXPECT_EQ(w.ChaineGrille, joined(complete_grid));
  EXPECT_TRUE(globals.GrilleOk);
  EXPECT_EQ(desktop.boxes, std::vector{message(Message::completed, Icon::exclamation)});
  EXPECT_EQ(desktop.pointers, (std::vector{Pointer::hourglass, Pointer::arrow}));
  EXPECT_TRUE(w.visible(Control::Bouton_GO));
  EXPECT_TRUE(w.visible(Control::Command1));
  EXPECT_TRUE(w.MSF.tab_stop());
  EXPECT_TRUE(w.MSF.marks_current());
  EXPECT_EQ(w.MSF.cell(6, 0).text_colour, colour::green) << "a player's digit keeps its colour";
}

TEST_F(Search, CallsForEventsOnceAStep) {
  game.draw(long_puzzle);
  w.Resoudre();
  EXPECT_EQ(desktop.steps, 34361);
}

TEST_F(Search, FillsOnlyTheSolutionWhenSilent) {
  game.draw(easy_puzzle);
  w.ChaineGrille = "as it was";
  globals.ResolutionSilencieuse = true;
  w.Resoudre();
  EXPECT_EQ(w.ChaineSolution, joined(complete_grid));
  EXPECT_EQ(w.ChaineGrille, "as it was");
  EXPECT_EQ(shown(w).substr(0, 9), "1.3.5.7.9");
  EXPECT_TRUE(desktop.boxes.empty());
  EXPECT_TRUE(globals.GrilleOk);
  EXPECT_TRUE(globals.ResolutionSilencieuse);
}

TEST_F(Search, ShowsTheButtonsThatNeedAPuzzleWhenItEnds) {
  for (const char* grid : {easy_puzzle, impossible_puzzle}) {
    game.draw(grid);
    desktop.at_step[2] = [&] { w.set_visible(Control::sauve, false); };
    w.Resoudre();
    EXPECT_TRUE(w.visible(Control::sauve));
  }
}

TEST_F(Search, LeavesTheButtonsAsTheyAreWhenItIsStopped) {
  game.draw(easy_puzzle);
  desktop.at_step[2] = [&] {
    w.set_visible(Control::sauve, false);
    w.preview_key(key::escape);
  };
  w.Resoudre();
  EXPECT_FALSE(w.visible(Control::sauve));
}

TEST_F(Search, WalksAFullGridOnceAndShowsItUnchanged) {
  game.draw(complete_grid);
  w.Resoudre();
  EXPECT_EQ(desktop.steps, 81);
  EXPECT_EQ(w.NumCase, 82);
  EXPECT_EQ(shown(w), complete_grid);
  EXPECT_EQ(cells_with_text_colour(w.MSF, colour::black), all_cells());
  EXPECT_EQ(desktop.boxes, std::vector{message(Message::completed, Icon::exclamation)});
}

TEST_F(Search, OnAFullGridWithAClashEndsGoodAndCallsItImpossible) {
  game.draw(full_with_a_clash());
  w.Resoudre();
  EXPECT_TRUE(globals.GrilleOk);
  EXPECT_EQ(desktop.boxes, std::vector{message(Message::impossible, Icon::exclamation)});
  EXPECT_EQ(cells_with_text_colour(w.MSF, colour::red), "r1c1");
  EXPECT_EQ(w.NumCase, 82);
}

TEST_F(Search, OnClashingGivensReddensTheFirstCellAndEndsImpossible) {
  game.draw(clashing_puzzle);
  const std::string before = shown(w);
  globals.GrilleOk = true;
  w.set_visible(Control::sauve, false);
  w.Resoudre();
  EXPECT_EQ(cells_with_text_colour(w.MSF, colour::red), "r1c1");
  EXPECT_LT(w.NumCase, 1);
  EXPECT_FALSE(globals.GrilleOk);
  EXPECT_EQ(desktop.boxes, std::vector{message(Message::impossible, Icon::critical)});
  EXPECT_EQ(shown(w), before);
  EXPECT_EQ(desktop.pointers.back(), Pointer::arrow);
  EXPECT_TRUE(w.MSF.tab_stop());
  EXPECT_TRUE(w.MSF.marks_current());
  EXPECT_TRUE(w.visible(Control::sauve));
}

TEST_F(Search, FindsAPuzzleWithoutSolutionImpossible) {
  game.draw(impossible_puzzle);
  w.ChaineSolution = "as it was";
  w.Resoudre();
  EXPECT_EQ(w.NumCase, 0);
  EXPECT_EQ(desktop.boxes, std::vector{message(Message::impossible, Icon::critical)});
  EXPECT_EQ(w.ChaineSolution, "as it was");
}

TEST_F(Search, StoppedByEscapeSaysSoAndLeavesTheDisplay) {
  w.preview_key(key::f1);
  game.draw(sparse_puzzle);
  globals.GrilleOk = false;
  desktop.at_step[100] = [&] { w.preview_key(key::escape); };
  w.Resoudre();
  EXPECT_EQ(desktop.steps, 100);
  EXPECT_EQ(desktop.boxes,
            (std::vector{Box{"Solver stopped!", Icon::critical, Buttons::ok, program_title}}));
  EXPECT_EQ(shown(w), sparse_puzzle);
  EXPECT_EQ(cells_with_text_colour(w.MSF, colour::black), all_cells());
  EXPECT_FALSE(globals.GrilleOk);
  EXPECT_NE(digits(w.Grille), sparse_puzzle) << "the working grid keeps what was tried";
  EXPECT_EQ(desktop.pointers, (std::vector{Pointer::hourglass, Pointer::arrow}));
  EXPECT_TRUE(w.MSF.tab_stop());
  EXPECT_TRUE(w.MSF.marks_current());
  EXPECT_TRUE(globals.ArretDemande);
}

TEST_F(Search, ForgetsAnEscapePressedBeforeIt) {
  game.draw(easy_puzzle);
  w.preview_key(key::escape);
  w.Resoudre();
  EXPECT_EQ(shown(w), complete_grid);
  EXPECT_FALSE(globals.ArretDemande);
}

TEST_F(Search, IsPreparedBeforeItsFirstStep) {
  game.draw(sparse_puzzle);
  w.set_visible(Control::Command1, false);
  w.set_visible(Control::Command6, false);
  desktop.at_step[1] = [&] {
    EXPECT_EQ(digits(w.Grille), sparse_puzzle);
    EXPECT_EQ(digits(w.GrilleInitiale), sparse_puzzle);
    EXPECT_EQ(w.NumCase, 1);
    EXPECT_EQ(w.Ligne, 1);
    EXPECT_EQ(w.Colonne, 1);
    EXPECT_EQ(desktop.pointers, std::vector{Pointer::hourglass});
    EXPECT_FALSE(w.MSF.tab_stop());
    EXPECT_FALSE(w.MSF.marks_current());
    EXPECT_TRUE(w.visible(Control::Command1));
    EXPECT_TRUE(w.visible(Control::Command6));
    EXPECT_EQ(w.searches_running, 1);
  };
  w.Resoudre();
  EXPECT_EQ(w.searches_running, 0);
}

TEST_F(Search, EndsWithTheProgramWhenThePlayerQuitsInIt) {
  game.draw(sparse_puzzle);
  desktop.answers = {Answer::yes};
  desktop.at_step[5] = [&] { w.click(Control::Command3); };
  EXPECT_THROW(w.click(Control::Bouton_GO), ProgramEnd);
  EXPECT_EQ(w.searches_running, 0);
}

TEST_F(Search, EndsWhenASearchInsideItLeftTheGridBeforeTheFirstCell) {
  const char* const impossible_with_a_fixed_corner =
      "12.345679\n..8......\n.........\n.........\n.........\n.........\n.........\n"
      ".........\n.........\n";
  const long going_back = 1 + 20;  // of the middle search
  desktop.at_step[1] = [&] {
    draw(w, impossible_puzzle);
    w.Resoudre();
  };
  desktop.at_step[going_back] = [&] {
    draw(w, impossible_with_a_fixed_corner);
    w.Resoudre();
    EXPECT_EQ(w.NumCase, 0);
  };
  game.draw(sparse_puzzle);
  w.Resoudre();
  EXPECT_EQ(w.NumCase, -1);
  EXPECT_LT(w.Colonne, 1);
  EXPECT_EQ(desktop.boxes, (std::vector(3, message(Message::impossible, Icon::critical))));
  EXPECT_TRUE(desktop.at_step.empty());
}

TEST_F(Search, RefusesDigitsAndErasingWhileItRuns) {
  game.draw(sparse_puzzle);
  desktop.at_step[3] = [&] {
    const std::string before = dump(w);
    game.select(1, 1);
    game.press('7');
    game.press(key::keypad_1);
    game.select(1, 3);
    w.check(Control::Check3, false);
    game.press(key::del);
    game.press(key::backspace);
    w.check(Control::Check3, true);
    game.select(1, 1);
    EXPECT_EQ(difference(before, dump(w)), "");
    EXPECT_TRUE(desktop.boxes.empty());
  };
  w.Resoudre();
  EXPECT_TRUE(desktop.at_step.empty());
}

}  // namespace
}  // namespace sdk::test
