// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// New puzzle, Clear, the options, the level list, and leaving the program.

#include <gtest/gtest.h>

#include <algorithm>

#include "board/grid_text.hpp"
#include "puzzles/library.hpp"
#include "tests/support/game.hpp"
#include "ui/state_check.hpp"
#include "ui/version.hpp"

namespace sdk::test {
namespace {

class Commands : public testing::Test {
 protected:
  bool any_visible(std::initializer_list<Control> ids) const {
    return std::ranges::any_of(ids, [&](Control id) { return w.visible(id); });
  }

  Game game;
  MainWindow& w = game.window;
  FakeDesktop& desktop = game.desktop;
};

// New puzzle

TEST_F(Commands, NewPuzzleShowsTheGivensOfTheLibrarysPuzzleInTheLevelsColour) {
  for (int level = 0; level <= 4; ++level) {
    w.choose_level(level);
    globals.CouleurDonnees = colour::from_file;
    w.ChaineSolution = "";
    w.click(Control::Command7);
    ASSERT_NE(cells_with_text_colour(w.MSF, colour::red), "");
    w.click(Control::Command1);
    const Colour expected = colour::level[static_cast<std::size_t>(level)];
    EXPECT_EQ(globals.CouleurDonnees, expected);
    for (int r = 1; r <= 9; ++r)
      for (int c = 1; c <= 9; ++c) {
        const DisplayCell& cell = game.cell(r, c);
        EXPECT_EQ(cell.text, w.Masque(r, c) ? std::to_string(w.resGrille(r, c)) : " ");
        EXPECT_EQ(cell.back_colour, w.Masque(r, c) ? expected : colour::white);
        EXPECT_EQ(cell.text_colour, colour::black);
      }
  }
}

TEST_F(Commands, NewPuzzleFillsTheChainsAndTheCount) {
  w.ChaineGrille = w.ChaineSolution = "old";
  w.click(Control::Command1);
  EXPECT_EQ(w.ChaineSolution, digits_of(w.resGrille));
  std::string expected = joined(shown(w));
  std::ranges::replace(expected, '.', ' ');
  EXPECT_EQ(w.ChaineGrille, expected);
  EXPECT_EQ(w.control(Control::Label).caption,
            " " + std::to_string(81 - std::ranges::count(expected, ' ')) + " indices");
}

TEST_F(Commands, NewPuzzleShowsButtonsAndRestoresTheCaption) {
  w.set_title("/home/player/puzzle.sdk");
  for (const Control id : {Control::Command2, Control::Command4, Control::Command6,
                           Control::Command8, Control::sauve, Control::Bouton_GO})
    w.set_visible(id, false);
  game.forget();
  w.click(Control::Command1);
  EXPECT_EQ(w.title(), globals.TitreFenetre);
  for (const Control id : {Control::Command2, Control::Command4, Control::Command6,
                           Control::Command8, Control::sauve, Control::Bouton_GO})
    EXPECT_TRUE(w.visible(id)) << static_cast<int>(id);
  EXPECT_EQ(desktop.pointers, std::vector{Pointer::arrow});
  EXPECT_EQ(game.msf.times_hidden, 1);
  EXPECT_EQ(game.msf.changes_while_visible, 0);
  EXPECT_TRUE(w.MSF.visible());
  EXPECT_TRUE(desktop.boxes.empty());
}

TEST_F(Commands, NewPuzzleMovesTheCurrentCellToTheLast) {
  game.select(2, 3);
  w.click(Control::Command1);
  EXPECT_EQ(w.MSF.selection(), (CellRange{8, 8, 8, 8}));
}

TEST_F(Commands, NewPuzzleLeavesTheIntegerGridsUntilTheNextRead) {
  w.Lire_Grille_Initiale(0, 0);
  const auto grid = w.Grille, initial = w.GrilleInitiale;
  w.click(Control::Command1);
  EXPECT_EQ(w.Grille, grid);
  EXPECT_EQ(w.GrilleInitiale, initial);
}

TEST_F(Commands, TwoNewPuzzlesInARowDiffer) {
  w.click(Control::Command1);
  const std::string first = shown(w);
  w.click(Control::Command1);
  EXPECT_NE(shown(w), first);
}

TEST_F(Commands, TheSameSeedGivesTheSamePuzzle) {
  desktop.next_seed = 5;
  w.click(Control::Command1);
  const std::string first = shown(w);
  w.click(Control::Command1);
  desktop.next_seed = 5;
  w.click(Control::Command1);
  EXPECT_EQ(shown(w), first);
}

// Clear

const char* const half_played =
    "1b.......\n.5.......\n..i......\n.........\n....5....\n.........\n.........\n.........\n"
    "h.......9\n";

TEST_F(Commands, ClearKeepsEveryColouredCellWhileTheGivensAreProtected) {
  game.draw(half_played);
  globals.CouleurDonnees = colour::from_file;
  game.select(9, 9);
  w.MSF.set_back_colour(colour::from_file);
  w.set_visible(Control::Command8, false);
  game.forget();
  w.click(Control::Command2);
  EXPECT_EQ(shown(w),
            "1........\n.5.......\n.........\n.........\n....5....\n.........\n.........\n"
            ".........\n........9\n");
  EXPECT_EQ(cells_with_back_colour(w.MSF, colour::level[1]), "r1c1 r2c2 r5c5");
  EXPECT_EQ(cells_with_back_colour(w.MSF, colour::from_file), "r9c9");
  EXPECT_TRUE(w.visible(Control::Command8));
  EXPECT_EQ(w.control(Control::Label).caption, " 4 indices");
  EXPECT_EQ(game.msf.times_hidden, 1);
  EXPECT_EQ(game.msf.changes_while_visible, 0);
  EXPECT_TRUE(w.MSF.visible());
  EXPECT_EQ(w.MSF.selection(), (CellRange{8, 8, 8, 8}));
}

TEST_F(Commands, ClearErasesEverythingAndHidesTheHintWhileTheGivensAreNotProtected) {
  game.draw(half_played);
  w.check(Control::Check3, false);
  w.click(Control::Command2);
  EXPECT_EQ(cells_with_back_colour(w.MSF, colour::white), all_cells());
  EXPECT_EQ(joined(shown(w)), std::string(81, '.'));
  EXPECT_FALSE(w.visible(Control::Command8));
  EXPECT_EQ(w.control(Control::Label).caption, " 0 indices");
}

TEST_F(Commands, ClearResetsTheTwoFlags) {
  globals.GrilleOk = globals.ResolutionSilencieuse = true;
  w.click(Control::Command2);
  EXPECT_FALSE(globals.GrilleOk);
  EXPECT_FALSE(globals.ResolutionSilencieuse);
}

TEST_F(Commands, ClearKeepsTextColoursSolutionChainsAndCaption) {
  game.draw(half_played);
  w.check(Control::Check3, false);
  w.set_title("a file");
  w.ChaineSolution = joined(complete_grid);
  w.ChaineGrille = "as it was";
  game.select(1, 1);
  w.MSF.set_text_colour(colour::red);
  w.click(Control::Command2);
  EXPECT_EQ(cells_with_text_colour(w.MSF, colour::red), "r1c1");
  EXPECT_EQ(cells_with_text_colour(w.MSF, colour::green), "r1c2 r3c3 r9c1");
  EXPECT_EQ(w.ChaineSolution, joined(complete_grid));
  EXPECT_EQ(w.ChaineGrille, "as it was");
  EXPECT_EQ(w.title(), "a file");
}

TEST_F(Commands, ClearOfAFullGridOfGivensAnnouncesItAgain) {
  game.draw(complete_grid);
  w.Lire_Grille_Initiale(0, 0);
  game.forget();
  w.click(Control::Command2);
  EXPECT_EQ(shown(w), complete_grid);
  EXPECT_EQ(desktop.boxes, std::vector{message(Message::completed, Icon::exclamation)});
}

// Options and level

TEST_F(Commands, Check1TurnsVerificationOnAndOff) {
  w.check(Control::Check1, true);
  EXPECT_EQ(w.VerifAuVol.bits(), -1);
  EXPECT_TRUE(w.control(Control::Check1).checked);
  w.check(Control::Check1, false);
  EXPECT_EQ(w.VerifAuVol.bits(), 0);
  EXPECT_FALSE(w.control(Control::Check1).checked);
}

TEST_F(Commands, Check3TurnsTheProtectionOffAndOn) {
  w.check(Control::Check3, false);
  EXPECT_EQ(globals.ProtegeGrille.bits(), 0);
  EXPECT_FALSE(w.control(Control::Check3).checked);
  w.check(Control::Check3, true);
  EXPECT_EQ(globals.ProtegeGrille.bits(), -1);
}

TEST_F(Commands, Check2ShowsTheCandidatesAndWidensTheWindow) {
  w.check(Control::Check2, true);
  EXPECT_EQ(globals.AfficheCandidats.bits(), -1);
  EXPECT_TRUE(w.visible(Control::MSR));
  EXPECT_TRUE(w.MSR.visible());
  EXPECT_TRUE(w.visible(Control::rect2));
  EXPECT_EQ(w.layout().window.width, 14440);
  EXPECT_EQ(w.layout().MSF.left, 100);
  EXPECT_EQ(w.lines().size(), 8u);
}

TEST_F(Commands, Check2HidesTheCandidatesAgain) {
  w.check(Control::Check2, true);
  game.forget();
  w.check(Control::Check2, false);
  EXPECT_EQ(globals.AfficheCandidats.bits(), 0);
  EXPECT_FALSE(w.visible(Control::MSR));
  EXPECT_FALSE(w.visible(Control::rect2));
  EXPECT_EQ(w.layout().window.width, 10035);
  EXPECT_EQ(w.lines().size(), 4u);
}

TEST_F(Commands, ChoosingALevelTakesItsColourAndLeavesTheGrid) {
  const std::string grid = shown(w);
  for (int level = 0; level <= 4; ++level) {
    w.choose_level(level);
    EXPECT_EQ(globals.NiveauCourant, level);
    EXPECT_EQ(globals.CouleurDonnees, colour::level[static_cast<std::size_t>(level)]);
    EXPECT_EQ(w.chosen_level(), level);
    EXPECT_EQ(w.level_text(), w.levels()[static_cast<std::size_t>(level)].name);
    EXPECT_EQ(shown(w), grid);
    EXPECT_EQ(cells_with_back_colour(w.MSF, colour::level[1]).empty(), false);
  }
}

TEST_F(Commands, TheLevelHandlerWithoutAnItemReadsLevel0) {
  w.choose_level(3);
  w.choose_level(std::nullopt);
  EXPECT_EQ(globals.NiveauCourant, 0);
  EXPECT_EQ(globals.CouleurDonnees, colour::level[0]);
  EXPECT_EQ(w.chosen_level(), std::nullopt);
}

TEST_F(Commands, TheLevelHandlerReadsAnItemThatIsNotThereAsLevel0) {
  for (const int item : {-1, 5, 1000}) {
    w.choose_level(3);
    w.choose_level(item);
    EXPECT_EQ(globals.NiveauCourant, 0);
    EXPECT_EQ(globals.CouleurDonnees, colour::level[0]);
    EXPECT_EQ(w.chosen_level(), std::nullopt);
  }
}

// The other buttons

TEST_F(Commands, Command7ShowsBadValues) {
  game.draw(half_played);
  w.ChaineSolution = joined(complete_grid);
  w.click(Control::Command7);
  EXPECT_EQ(cells_with_text_colour(w.MSF, colour::black), "r1c1 r2c2");
  EXPECT_EQ(cells_with_text_colour(w.MSF, colour::green), "r1c2 r3c3");
}

TEST_F(Commands, Command8AsksForOneStep) {
  w.click(Control::Command8);
  EXPECT_TRUE(globals.ModePasAPas);
}

TEST_F(Commands, BoutonGoSolves) {
  std::string grid = complete_grid;
  grid[40] = '.';
  game.draw(grid);
  w.click(Control::Bouton_GO);
  EXPECT_EQ(shown(w), complete_grid);
}

TEST_F(Commands, AClickOnWhatIsNoButtonDoesNothing) {
  const std::string before = dump(w);
  for (const Control id :
       {Control::Check1, Control::Niveau, Control::Label, Control::MSF, Control::rect2})
    w.click(id);
  EXPECT_EQ(difference(before, dump(w)), "");
  EXPECT_TRUE(game.repaints.empty());
}

// Leaving

class Leaving : public Commands {
 protected:
  Box question() const {
    return {std::string("Voulez-vous vraiment quitter ") + program_title + "? ", Icon::question,
            Buttons::yes_no, program_title};
  }
};

TEST_F(Leaving, YesToTheQuitButtonEndsTheProgramAtOnce) {
  desktop.answers = {Answer::yes};
  try {
    w.click(Control::Command3);
    FAIL() << "the program goes on";
  } catch (const ProgramEnd& end) {
    EXPECT_EQ(end.status, 0);
  }
  EXPECT_EQ(desktop.boxes, std::vector{question()});
  EXPECT_TRUE(game.repaints.empty());
}

TEST_F(Leaving, NoToTheQuitButtonLeavesEverythingAsItWas) {
  const std::string before = dump(w);
  desktop.answers = {Answer::no};
  w.click(Control::Command3);
  EXPECT_EQ(desktop.boxes, std::vector{question()});
  EXPECT_EQ(difference(before, dump(w)), "");
}

TEST_F(Leaving, AsksInTheCurrentLanguage) {
  w.preview_key(key::f1);
  w.click(Control::Command3);
  EXPECT_EQ(desktop.boxes.at(0).text, std::string("Really want to quit ") + program_title + "? ");
}

TEST_F(Leaving, ClosingByTheWindowOrTheTaskManagerAsks) {
  for (const CloseMode mode : {CloseMode::window_command, CloseMode::task_manager}) {
    game.forget();
    desktop.answers = {Answer::no, Answer::yes};
    EXPECT_FALSE(w.confirm_close(mode));
    EXPECT_TRUE(w.confirm_close(mode));
    EXPECT_EQ(desktop.boxes, (std::vector{question(), question()}));
  }
}

TEST_F(Leaving, ClosingAtTheEndOfTheSessionAsksNothing) {
  EXPECT_TRUE(w.confirm_close(CloseMode::session_end));
  EXPECT_TRUE(desktop.boxes.empty());
}

TEST_F(Leaving, ARefusedCloseLeavesEverythingAsItWas) {
  const std::string before = dump(w);
  w.confirm_close(CloseMode::window_command);
  EXPECT_EQ(difference(before, dump(w)), "");
}

}  // namespace
}  // namespace sdk::test
