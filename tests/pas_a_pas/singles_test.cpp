// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Naked and hidden singles: which one is found, and what an offer does.

#include "pas_a_pas/singles.hpp"

#include <gtest/gtest.h>

#include "pas_a_pas/driver.hpp"
#include "tests/pas_a_pas/hint_game.hpp"

namespace sdk::test {
namespace {

constexpr Unit box(int n) { return {UnitKind::box, n}; }

class Singles : public testing::Test {
 protected:
  /// complete_grid without those cells.
  void draw_without(std::initializer_list<Cell> cells) {
    std::string grid = joined(complete_grid);
    for (const Cell cell : cells) grid[static_cast<std::size_t>(cell.number() - 1)] = '.';
    game.draw(grid);
  }
  /// Every cell has every candidate, and the next search is part of a hint.
  void open_cube() {
    globals.ModePasAPas = true;
    Candidats = test::open_cube();
  }
  const Lines& offers() const { return game.events; }

  HintGame game;
  MainWindow& w = game.window;
  FakeDesktop& desktop = game.desktop;
};

// Which naked single

TEST_F(Singles, OfTwoNakedSinglesTheOneInTheLowestRowIsOffered) {
  draw_without({{9, 1}, {2, 8}, {3, 1}});
  game.hint();
  EXPECT_EQ(offers(), (Lines{"naked r2c8=2"}));
}

TEST_F(Singles, OfTwoNakedSinglesInARowTheOneInTheLowestColumnIsOffered) {
  draw_without({{2, 9}, {2, 4}, {3, 1}});
  game.hint();
  EXPECT_EQ(offers(), (Lines{"naked r2c4=7"}));
}

TEST_F(Singles, ACellThatIsBothIsOfferedAsANakedSingle) {
  draw_without({{5, 5}});
  game.hint();
  EXPECT_EQ(offers(), (Lines{"naked r5c5=9"}));
}

// The searches

TEST_F(Singles, ANakedSingleIsOfferedByItsCountAndItsLowestFlag) {
  open_cube();
  set_candidates({4, 6}, {3, 8});
  Candidats.set_count({4, 6}, 1);
  EXPECT_TRUE(singleton_nu());
  EXPECT_EQ(game.questions(), (Lines{" Singleton nu L4 C6 3"}));
}

TEST_F(Singles, NoNakedSingleAsksNothing) {
  open_cube();
  set_candidates({1, 1}, {3, 8});
  fill(Candidats, {1, 2}, 4);  // counts 0
  const CandidateCube before = Candidats;
  EXPECT_FALSE(singleton_nu());
  EXPECT_EQ(Candidats, before);
  EXPECT_TRUE(desktop.boxes.empty());
}

TEST_F(Singles, AHiddenSingleIsOfferedWhereItsDigitHasItsOnlyPlace) {
  open_cube();
  keep_places(box(9), 4, {1});
  EXPECT_TRUE(singleton_cache());
  EXPECT_EQ(game.questions(), (Lines{" Singleton caché L7 C7 4"}));
}

TEST_F(Singles, NoHiddenSingleAsksNothing) {
  open_cube();
  keep_places(box(5), 7, {1, 9});
  keep_places(box(9), 3, {});
  const CandidateCube before = Candidats;
  EXPECT_FALSE(singleton_cache());
  EXPECT_EQ(Candidats, before);
  EXPECT_TRUE(desktop.boxes.empty());
}

// The offer

TEST_F(Singles, TheQuestionNamesTechniqueCellAndDigitInBothLanguages) {
  for (const char* language : {"En", "Fr"}) {
    w.langage(language);
    globals.ModePasAPas = true;
    init_candidats();
    place_singleton_nu(4, 2, 7);
    place_singleton_cache(4, 2, 7);
  }
  EXPECT_EQ(game.questions(), (Lines{"Naked single L4 C2 7", "Hidden single L4 C2 7",
                                     " Singleton nu L4 C2 7", " Singleton caché L4 C2 7"}));
  for (const Box& asked : desktop.boxes) {
    EXPECT_EQ(asked.icon, Icon::none);
    EXPECT_EQ(asked.title, globals.TitreFenetre);
  }
}

TEST_F(Singles, AnOfferEntersTheDigitInTheWorkingCopyOnly) {
  open_cube();
  game.draw(std::string(81, '.'));
  place_singleton_cache(4, 2, 7);
  EXPECT_EQ(Candidats.value({4, 2}), 7);
  EXPECT_EQ(Candidats.digits({4, 2}), NineSet::all() - NineSet{7});
  EXPECT_EQ(Candidats.count({4, 2}), 9);
  EXPECT_EQ(w.MSF.text(3, 1), " ");
}

TEST_F(Singles, AnOfferMarksItsCell) {
  open_cube();
  game.draw(std::string(81, '.'));
  init_candidats();
  place_singleton_nu(4, 2, 7);
  EXPECT_EQ(game.marked(4), "r4c2");
}

TEST_F(Singles, NoLeavesTheGridAndTheNextHintOffersTheSame) {
  draw_without({{2, 4}, {2, 9}});
  desktop.answers = {Answer::no, Answer::no};
  game.hint();
  const std::string before = dump(w);
  game.hint();
  EXPECT_EQ(difference(before, dump(w)), "");
  EXPECT_EQ(offers(), (Lines{"naked r2c4=7", "naked r2c4=7"}));
  EXPECT_EQ(w.MSF.text(1, 3), " ");
}

TEST_F(Singles, YesWritesTheTextOnlyAndGoesOn) {
  draw_without({{2, 4}, {2, 9}});
  w.set_focus(Control::Command8);
  desktop.answers = {Answer::yes, Answer::no};
  game.hint();
  EXPECT_EQ(w.MSF.text(1, 3), "7");
  EXPECT_EQ(game.cell(2, 4).text_colour, colour::black);
  EXPECT_EQ(game.cell(2, 4).back_colour, colour::white);
  EXPECT_EQ(w.control(Control::Label).caption, " 80 indices");
  EXPECT_EQ(w.focus(), Control::MSF);
  EXPECT_EQ(w.Grille(2, 4), 0) << "nothing reads the grid";
  EXPECT_EQ(offers(), (Lines{"naked r2c4=7", "naked r2c9=3"}));
}

TEST_F(Singles, WithoutStepModeANakedSingleIsEnteredSilentlyAndTheRunStops) {
  draw_without({{2, 4}, {2, 9}});
  ASSERT_FALSE(globals.ModePasAPas);
  suggestion();
  ASSERT_EQ(solver.hint->events().size(), 1u);
  EXPECT_EQ(told(solver.hint->events().front()), "naked r2c4=7");
  EXPECT_TRUE(desktop.boxes.empty());
  EXPECT_EQ(Candidats.value({2, 4}), 7);
  EXPECT_EQ(Candidats.value({2, 9}), 0);
  EXPECT_EQ(w.MSF.text(1, 3), " ");
  EXPECT_EQ(game.marked(0), all_cells());
  EXPECT_TRUE(game.repaints.empty());
}

TEST_F(Singles, WithoutStepModeAHiddenSingleIsMarkedAndOfferedAllTheSame) {
  open_cube();
  init_candidats();
  globals.ModePasAPas = false;
  keep_places(box(5), 7, {4});
  EXPECT_TRUE(singleton_cache());
  EXPECT_EQ(game.marked(4), "r5c4");
  EXPECT_EQ(game.questions().size(), 1u);
}

}  // namespace
}  // namespace sdk::test
