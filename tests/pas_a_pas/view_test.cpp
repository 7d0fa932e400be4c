// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The candidate view and the marks.

#include "pas_a_pas/view.hpp"

#include <gtest/gtest.h>

#include "pas_a_pas/driver.hpp"
#include "tests/pas_a_pas/hint_game.hpp"

namespace sdk::test {
namespace {

class View : public testing::Test {
 protected:
  View() {
    game.draw(std::string(81, '.'));
    init_candidats();
    game.forget();
  }

  HintGame game;
  MainWindow& w = game.window;
};

/// What a cell of `MSR` looks like, but for its text.
struct Looks {
  Colour text, back;
  int font_size, mark;
  bool operator==(const Looks&) const = default;
};

Looks looks_of(const DisplayCell& cell) {
  return {cell.text_colour, cell.back_colour, cell.font_size, cell.mark};
}

// The view

TEST_F(View, CandidatesStandInThreeLinesOfThree) {
  set_candidates({5, 5}, {1, 2, 5, 9});
  set_candidates({5, 6}, {});
  affiche_candidats();
  EXPECT_EQ(game.candidates(1, 1).text, " 1  2  3 \r 4  5  6 \r 7  8  9 ");
  EXPECT_EQ(game.candidates(5, 5).text, " 1  2  . \r .  5  . \r .  .  9 ");
  EXPECT_EQ(game.candidates(5, 6).text, " .  .  . \r .  .  . \r .  .  . ");
}

TEST_F(View, ACellOfTwoCandidatesShowsThreeLinesToo) {
  set_candidates({5, 5}, {3, 8});
  w.MSR.set_text(4, 4, "3 , 8");
  affiche_candidats();
  EXPECT_EQ(game.candidates(5, 5).text, " .  .  3 \r .  .  . \r .  8  . ");
}

TEST_F(View, AFilledCellShowsItsValueInItsOwnLook) {
  Candidats.set_value({3, 7}, 6);  // its candidates are still there
  affiche_candidats();
  EXPECT_EQ(game.candidates(3, 7).text, "6");
  EXPECT_EQ(looks_of(game.candidates(3, 7)), (Looks{colour::black, 14737632, 20, 5}));
  EXPECT_EQ(game.marked(5), "r3c7");
}

TEST_F(View, AShownCandidateGridIsHiddenWhileItIsWritten) {
  w.check(Control::Check2, true);
  game.forget();
  set_candidates({5, 5}, {1});
  affiche_candidats();
  EXPECT_EQ(game.msr.times_hidden, 1);
  EXPECT_EQ(game.msr.changes_while_visible, 0);
  EXPECT_TRUE(w.MSR.visible());
}

TEST_F(View, AHiddenCandidateGridStaysHidden) {
  w.check(Control::Check2, false);
  game.forget();
  const bool was_visible = w.visible(Control::MSR);
  set_candidates({5, 5}, {1});
  affiche_candidats();
  EXPECT_EQ(game.candidates(5, 5).text, " 1  .  . \r .  .  . \r .  .  . ");
  EXPECT_EQ(game.msr.times_hidden, 0);
  EXPECT_EQ(w.visible(Control::MSR), was_visible);
  EXPECT_FALSE(was_visible);
}

TEST_F(View, MarksOutlastARedrawThatOnlyTurnsTextBlackInAHint) {
  globals.ModePasAPas = true;
  marque_case(5, 5, 3);
  marque_case(5, 6, 4);
  marque_case(5, 7, 6);
  affiche_candidats();
  EXPECT_EQ(game.marked(3), "r5c5");
  EXPECT_EQ(game.marked(4), "r5c6");
  EXPECT_EQ(game.marked(6), "r5c7");
  EXPECT_EQ(game.candidates(5, 6).text_colour, colour::black);
  EXPECT_EQ(game.candidates(5, 6).back_colour, 12648384u);
}

TEST_F(View, OutsideAHintTheRedrawKeepsTheTextColour) {
  ASSERT_FALSE(globals.ModePasAPas);
  marque_case(5, 6, 4);
  affiche_candidats();
  EXPECT_EQ(game.candidates(5, 6).text_colour, colour::green);
}

TEST_F(View, TheRecomputeShowsACellOfTwoCandidatesTheSmallerFirst) {
  for (const int digit : {1, 2, 4, 5, 6, 7, 9}) Candidats.remove({2, 3}, digit);
  maj_candidats();
  EXPECT_EQ(game.candidates(2, 3).text, "3 , 8");
  EXPECT_EQ(game.candidates(2, 4).text, " ") << "no other cell is written";
}

TEST_F(View, APairIsShownAfterEveryRecompute) {
  set_candidates({2, 3}, {3, 8});
  maj_candidats();
  w.MSR.set_text(1, 2, "?");
  maj_candidats();
  EXPECT_EQ(game.candidates(2, 3).text, "3 , 8");
}

TEST_F(View, CandidatesAreNumberedUpwards) {
  set_candidates({2, 3}, {3, 5, 9});
  EXPECT_EQ(nieme_candidat(2, 3, 1), 3);
  EXPECT_EQ(nieme_candidat(2, 3, 2), 5);
  EXPECT_EQ(nieme_candidat(2, 3, 3), 9);
  EXPECT_EQ(nieme_candidat(2, 3, 4), 0);
}

// Marks

TEST_F(View, EveryModeHasItsLook) {
  const std::vector<std::pair<int, Looks>> modes{
      {3, {colour::black, 0xFF00FF, 0, 3}},
      {4, {colour::green, 12648384, 10, 4}},
      {5, {colour::black, 14737632, 10, 5}},
      {6, {colour::black, 0x00FFFF, 0, 6}},
  };
  affiche_candidats();
  for (const auto& [mode, looks] : modes) {
    marque_case(2, 9, 0);
    marque_case(2, 9, mode);
    EXPECT_EQ(looks_of(game.candidates(2, 9)), looks) << mode;
  }
}

TEST_F(View, TheModesOfSinglesAndValuesShowADigitLarge) {
  w.MSR.set_text(1, 8, "7");
  for (const int mode : {4, 5}) {
    marque_case(2, 9, mode);
    EXPECT_EQ(game.candidates(2, 9).font_size, 20) << mode;
  }
}

TEST_F(View, Mode0RestoresThePlainLook) {
  const Looks plain = looks_of(game.candidates(2, 9));
  EXPECT_EQ(plain, (Looks{colour::black, colour::white, 0, 0}));
  for (const int mode : {3, 4, 5, 6}) {
    marque_case(2, 9, mode);
    marque_case(2, 9, 0);
    EXPECT_EQ(looks_of(game.candidates(2, 9)), plain) << mode;
  }
}

TEST_F(View, Modes1And2DoNothing) {
  marque_case(2, 9, 3);
  const std::string before = dump(w);
  marque_case(2, 9, 1);
  marque_case(2, 9, 2);
  EXPECT_EQ(difference(before, dump(w)), "");
}

TEST_F(View, AMarkChangesItsOwnCellAlone) {
  marque_case(2, 9, 3);
  EXPECT_EQ(game.marked(3), "r2c9");
  EXPECT_EQ(cells_with_back_colour(w.MSR, 0xFF00FF), "r2c9");
}

TEST_F(View, BlackTextGoesToTheCellsThatCountCandidates) {
  marque_case(1, 1, 4);
  marque_case(1, 2, 4);
  Candidats.set_count({1, 2}, 0);
  marque_candidats();
  EXPECT_EQ(game.candidates(1, 1).text_colour, colour::black);
  EXPECT_EQ(game.candidates(1, 2).text_colour, colour::green);
  EXPECT_EQ(game.marked(4), "r1c1 r1c2");
}

TEST_F(View, ClearingEmptiesEveryCellAndTakesItsMark) {
  affiche_candidats();
  marque_case(1, 1, 3);
  marque_case(9, 9, 6);
  efface_candidats();
  EXPECT_EQ(game.marked(0), all_cells());
  for (int number = 1; number <= 81; ++number) {
    const DisplayCell& cell = game.candidates(cell_at(number).row, cell_at(number).column);
    EXPECT_EQ(cell.text, " ");
    EXPECT_EQ(looks_of(cell), (Looks{colour::black, colour::white, 0, 0}));
  }
}

TEST_F(View, TheHookForOneCandidateDoesNothing) {
  affiche_candidats();
  const std::string before = dump(w);
  const CandidateCube candidates = Candidats;
  trace_candidat(5, 5, 3, 255);
  trace_candidat(5, 5, 3, 16711680);
  EXPECT_EQ(difference(before, dump(w)), "");
  EXPECT_EQ(Candidats, candidates);
}

}  // namespace
}  // namespace sdk::test
