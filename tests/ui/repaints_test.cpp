// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// What each command repaints, and in which order. Other tests say what the player sees then.

#include <gtest/gtest.h>

#include <filesystem>

#include "files/puzzle_file.hpp"
#include "pas_a_pas/driver.hpp"
#include "pas_a_pas/singles.hpp"
#include "tests/pas_a_pas/hint_game.hpp"
#include "tests/support/machine.hpp"

namespace sdk::test {
namespace {

const std::string empty_grid(81, '.');
const Lines lines_alone{"lines"};
const Lines window_and_lines{"refresh window", "lines"};
const Lines both_grids{"refresh MSF", "refresh MSR", "lines"};
/// What the count of a full grid without a clash repaints, in front of its box.
const Lines completed{"refresh MSF", "lines"};

Lines operator+(Lines first, const Lines& then) {
  first.insert(first.end(), then.begin(), then.end());
  return first;
}

class Repaints : public testing::Test {
 protected:
  template <class Action>
  Lines of(Action action) {
    game.forget();
    action();
    return game.repaints;
  }

  /// A full grid without those cells.
  void draw_without(const std::vector<Cell>& cells) {
    std::string grid = joined(complete_grid);
    for (const Cell cell : cells) grid[static_cast<std::size_t>(cell.number() - 1)] = '.';
    game.draw(grid);
    w.ChaineSolution = joined(complete_grid);
  }

  HintGame game;
  MainWindow& w = game.window;
};

TEST_F(Repaints, OfATypedDigitAreBothGridsAndTheLines) {
  game.draw(empty_grid);
  EXPECT_EQ(of([&] { game.press('5'); }), both_grids);
}

TEST_F(Repaints, OfADigitTypedOnAProtectedGivenAreTheSame) {
  game.draw("1" + empty_grid.substr(1));
  EXPECT_EQ(of([&] { game.press('5'); }), both_grids);
}

TEST_F(Repaints, OfTheLastDigitAreThoseOfTheCountAndOfTyping) {
  draw_without({{9, 9}});
  game.select(9, 9);
  EXPECT_EQ(of([&] { game.press('5'); }), completed + both_grids);
}

TEST_F(Repaints, OfErasingAreTheCandidatesAndTheLines) {
  for (const int code : {key::del, key::backspace})
    EXPECT_EQ(of([&] { game.press(code); }), (Lines{"refresh MSR", "lines"})) << code;
}

TEST_F(Repaints, OfCommandsThatChangeTheGridAreBothGridsAndTheLines) {
  EXPECT_EQ(of([&] { w.click(Control::Command1); }), both_grids);
  EXPECT_EQ(of([&] { w.click(Control::Command2); }), both_grids);
  EXPECT_EQ(of([&] { w.undo(); }), both_grids);
}

TEST_F(Repaints, OfPrintingAndOfNoToQuittingAreTheWindowAndTheLines) {
  EXPECT_EQ(of([&] { w.click(Control::Command4); }), window_and_lines);
  EXPECT_EQ(of([&] { w.click(Control::Command3); }), window_and_lines);
}

TEST_F(Repaints, OfShowingAndHidingTheCandidatesFollowTheLayout) {
  for (const bool on : {true, false})
    EXPECT_EQ(of([&] { w.check(Control::Check2, on); }), (Lines{"layout", "refresh MSR", "lines"}));
}

TEST_F(Repaints, OfTheLinesAloneFollowTheMouseAndTheHelpButton) {
  EXPECT_EQ(of([&] { w.trace_ligne(); }), lines_alone);
  const std::string before = dump(w);
  EXPECT_EQ(of([&] { w.redraw_lines(); }), lines_alone);
  EXPECT_EQ(difference(before, dump(w)), "");
  EXPECT_EQ(of([&] { w.focus_lost(Control::aide); }), lines_alone);
}

TEST_F(Repaints, OfTheAboutBoxAreItsOwnWhenItOpensAndCloses) {
  EXPECT_EQ(of([&] { w.click(Control::Command5); }), Lines{"about"});
  EXPECT_EQ(of([&] { w.click_about(AboutControl::Picture); }), Lines{"about"});
  w.click(Control::Command5);
  EXPECT_EQ(of([&] { w.close_about(); }), Lines{"about"});
}

TEST_F(Repaints, OfTheProceduresOfTheGrid) {
  EXPECT_EQ(of([&] { w.CreateGrille(); }), window_and_lines);
  game.draw(complete_grid);
  w.Lire_Grille_Initiale(0, 0);
  w.ChaineSolution = joined(complete_grid);
  EXPECT_EQ(of([&] { w.maj_indices(); }), completed);
  EXPECT_EQ(of([&] { w.Afficher_resGrille(); }), window_and_lines + completed);
  EXPECT_EQ(of([&] { w.essai(); }), completed);
}

TEST_F(Repaints, OfASearchAreThoseOfItsStartAndOfWhatItShows) {
  draw_without({{1, 1}, {5, 5}});
  game.desktop.at_step[1] = [&] { EXPECT_EQ(game.repaints, window_and_lines); };
  EXPECT_EQ(of([&] { w.Resoudre(); }),
            window_and_lines + window_and_lines + completed + both_grids);
  draw_without({{1, 1}, {5, 5}});
  globals.ResolutionSilencieuse = true;
  EXPECT_EQ(of([&] { w.Resoudre(); }), window_and_lines + both_grids);
}

TEST_F(Repaints, OfTheExternalSolverAreThoseOfItsAnswerAndOfWhatItShows) {
  const KeptFolder kept;
  const Variable variable("tmp", game.desktop.temporary_folder());
  struct {
    const char* stand_in;
    bool silent;
    Lines repaints;
  } const cases[] = {{"digits", false, window_and_lines + completed + both_grids},
                     {"digits", true, both_grids},
                     {"zero", false, lines_alone + window_and_lines + both_grids},
                     {"zero", true, lines_alone + both_grids}};
  for (const auto& [stand_in, silent, repaints] : cases) {
    std::filesystem::copy_file(STAND_INS + ("/" + std::string(stand_in) + ".sh"),
                               game.desktop.program_folder() / "zolv.exe",
                               std::filesystem::copy_options::overwrite_existing);
    game.draw(puzzle);
    globals.ResolutionSilencieuse = silent;
    EXPECT_EQ(of([&] { w.click(Control::Bouton_GO); }), repaints) << stand_in << silent;
  }
}

TEST_F(Repaints, OfAPuzzleThatIsReadAreTheWindow) {
  const std::string file = (game.desktop.data_folder() / "a.sdk").string();
  write_file(file, puzzle);
  EXPECT_EQ(of([&] { ouvrir(file); }), Lines{"refresh window"});
}

TEST_F(Repaints, OfAnOfferAreTheLines) {
  globals.ModePasAPas = true;
  game.draw(empty_grid);
  init_candidats();
  EXPECT_EQ(of([&] { place_singleton_nu(4, 2, 7); }), lines_alone);
}

TEST_F(Repaints, OfAHintAreTheLinesOfEveryOfferAndOfTheAnswer) {
  draw_without({{2, 4}, {2, 9}});
  game.desktop.answers = {Answer::yes, Answer::no};
  EXPECT_EQ(of([&] { game.hint(); }), (Lines{"lines", "lines", "lines"}));
}

TEST_F(Repaints, OfAHintThatFindsNothingAreTheLines) {
  game.draw(empty_grid);
  EXPECT_EQ(of([&] { game.hint(); }), (Lines{"lines", "lines"}));
}

TEST_F(Repaints, OfAHintOnAFullGridAreThoseOfTheCount) {
  game.draw(complete_grid);
  EXPECT_EQ(of([&] { game.hint(); }), completed);
}

}  // namespace
}  // namespace sdk::test
