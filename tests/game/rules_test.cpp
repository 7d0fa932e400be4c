// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The rule checks, and the procedures that carry a grid between the display and the integer grids.

#include <gtest/gtest.h>

#include "tests/support/game.hpp"

namespace sdk::test {
namespace {

const char* const empty_grid =
    ".........\n.........\n.........\n.........\n.........\n.........\n.........\n.........\n"
    ".........\n";

/// The complete grid with the first cell of every row left out.
const char* const seventy_two_cells =
    ".23456789\n.56789123\n.89123456\n.31564897\n.64897231\n.97231564\n.12645978\n.45978312\n"
    ".78312645\n";

class Rules : public testing::Test {
 protected:
  /// Draws and reads the grid, with nothing recorded.
  void read(std::string_view grid) {
    game.draw(grid);
    w.Lire_Grille_Initiale(0, 0);
    game.forget();
  }

  bool valid_at(int row, int column) {
    w.Ligne = static_cast<std::int16_t>(row);
    w.Colonne = static_cast<std::int16_t>(column);
    return w.Valide();
  }

  Game game;
  MainWindow& w = game.window;
  FakeDesktop& desktop = game.desktop;
};

// Valide

struct Pair {
  const char* name;
  int row, column, other_row, other_column;
  bool clashes;
};

class EqualDigits : public testing::TestWithParam<Pair> {};

TEST_P(EqualDigits, ClashWhenTheyShareAUnit) {
  const Pair& pair = GetParam();
  Game game;
  MainWindow& w = game.window;
  w.Grille = {};
  w.Grille(pair.row, pair.column) = w.Grille(pair.other_row, pair.other_column) = 7;
  for (const auto& [row, column] :
       {std::pair{pair.row, pair.column}, std::pair{pair.other_row, pair.other_column}}) {
    w.Ligne = static_cast<std::int16_t>(row);
    w.Colonne = static_cast<std::int16_t>(column);
    EXPECT_EQ(w.Valide(), !pair.clashes);
  }
}

INSTANTIATE_TEST_SUITE_P(Rules, EqualDigits,
                         testing::Values(Pair{"SameRow", 4, 1, 4, 9, true},
                                         Pair{"SameColumn", 1, 6, 9, 6, true},
                                         Pair{"SameRowAndBox", 5, 5, 5, 6, true},
                                         Pair{"SameColumnAndBox", 7, 9, 8, 9, true},
                                         Pair{"OnlySameBoxFallingDiagonal", 1, 1, 3, 3, true},
                                         Pair{"OnlySameBoxRisingDiagonal", 6, 7, 4, 9, true},
                                         Pair{"OnlySameBoxNeighbours", 8, 4, 9, 5, true},
                                         Pair{"NeighbouringBoxesAcross", 3, 3, 2, 4, false},
                                         Pair{"NeighbouringBoxesDown", 3, 3, 4, 2, false},
                                         Pair{"CornersOfTheGrid", 1, 1, 9, 9, false}),
                         [](const auto& test) { return test.param.name; });

TEST_F(Rules, EveryCellOfACompleteGridIsValid) {
  read(complete_grid);
  for (int r = 1; r <= 9; ++r)
    for (int c = 1; c <= 9; ++c) EXPECT_TRUE(valid_at(r, c)) << r << ' ' << c;
}

TEST_F(Rules, ValideAgreesWithTwentyComparisonsForEveryPairOfCells) {
  for (int a = 0; a < 81; ++a)
    for (int b = 0; b < 81; ++b) {
      if (a == b) continue;
      w.Grille = {};
      w.Grille(a / 9 + 1, a % 9 + 1) = w.Grille(b / 9 + 1, b % 9 + 1) = 3;
      const bool share =
          a / 9 == b / 9 || a % 9 == b % 9 || (a / 27 == b / 27 && a % 9 / 3 == b % 9 / 3);
      EXPECT_EQ(valid_at(a / 9 + 1, a % 9 + 1), !share) << a << ' ' << b;
    }
}

TEST_F(Rules, ValideComparesZerosLikeAnyValue) {
  w.Grille = {};
  EXPECT_FALSE(valid_at(1, 1));
}

TEST_F(Rules, ValideChangesNothing) {
  read(complete_grid);
  const std::string before = dump(w);
  w.Valide();
  EXPECT_EQ(difference(before, dump(w)), "");
}

// verify_valide

TEST_F(Rules, VerifyValideAcceptsAGridWithoutClashAndIgnoresEmptyCells) {
  read(seventy_two_cells);
  w.GrilleValide = false;
  w.verify_valide();
  EXPECT_EQ(w.GrilleValide.bits(), -1);
  EXPECT_TRUE(desktop.pointers.empty());
  w.Grille = {};
  w.GrilleValide = false;
  w.verify_valide();
  EXPECT_TRUE(w.GrilleValide);
}

TEST_F(Rules, VerifyValideFindsAClashAnywhereAndSetsTheArrowOnceForEachClashingCell) {
  w.Grille = {};
  w.Grille(9, 8) = w.Grille(9, 9) = 4;
  w.verify_valide();
  EXPECT_EQ(w.GrilleValide.bits(), 0);
  EXPECT_EQ(desktop.pointers, (std::vector{Pointer::arrow, Pointer::arrow}));
}

TEST_F(Rules, VerifyValideVisitsAllCellsWhateverItFinds) {
  w.Grille = {};
  w.Grille(1, 1) = w.Grille(1, 2) = 4;
  w.Grille(8, 6) = 1;
  w.verify_valide();
  EXPECT_FALSE(w.GrilleValide);
  EXPECT_EQ(w.Ligne, 8);
  EXPECT_EQ(w.Colonne, 6);
}

TEST_F(Rules, VerifyValideTurnsValidAgainOnceTheClashIsGone) {
  w.Grille = {};
  w.Grille(1, 1) = w.Grille(1, 2) = 4;
  w.verify_valide();
  w.Grille(1, 2) = 5;
  w.verify_valide();
  EXPECT_TRUE(w.GrilleValide);
}

// Lire_Grille_Initiale

TEST_F(Rules, ReadingCopiesDigitsIntoBothGridsAndAnythingElseAsZero) {
  game.draw(
      "1........\n..b......\n....?....\n.#.......\n.........\n.........\n.........\n"
      ".........\n........9\n");
  const std::string before = shown(w);
  w.Lire_Grille_Initiale(5, 5);
  const std::string values =
      "1........\n..2......\n.........\n.........\n.........\n.........\n.........\n"
      ".........\n........9\n";
  EXPECT_EQ(digits(w.Grille), values);
  EXPECT_EQ(digits(w.GrilleInitiale), values);
  EXPECT_EQ(shown(w), before);
}

TEST_F(Rules, ReadingACleanGridLeavesColoursFlagPointerAndCurrentCell) {
  game.draw(complete_grid);
  globals.GrilleOk = true;
  w.Lire_Grille_Initiale(5, 5);
  EXPECT_TRUE(globals.GrilleOk);
  EXPECT_EQ(cells_with_text_colour(w.MSF, colour::red), "");
  EXPECT_TRUE(desktop.pointers.empty());
  EXPECT_EQ(w.MSF.selection(), (CellRange{0, 0, 0, 0}));
  EXPECT_TRUE(w.MSF.visible());
  EXPECT_EQ(game.msf.times_hidden, 1);
}

TEST_F(Rules, AClashReddensTheCellNamedInTheCallAndNoOther) {
  game.draw(
      "5...5....\n.........\n.........\n.........\n.........\n.........\n.........\n"
      ".........\n.........\n");
  globals.GrilleOk = true;
  w.Lire_Grille_Initiale(7, 2);
  EXPECT_EQ(cells_with_text_colour(w.MSF, colour::red), "r8c3");
  EXPECT_EQ(w.MSF.selection(), (CellRange{7, 2, 7, 2}));
  EXPECT_FALSE(globals.GrilleOk);
  EXPECT_EQ(desktop.pointers, (std::vector{Pointer::arrow, Pointer::arrow}));
  EXPECT_EQ(game.msf.times_hidden, 1);
  EXPECT_EQ(game.msf.changes_while_visible, 0);
  EXPECT_TRUE(w.MSF.visible());
}

TEST_F(Rules, AClashIsStillFoundAfterTheWholeGridWasRead) {
  game.draw(
      "5........\n.........\n.........\n.........\n.........\n.........\n.........\n"
      ".........\n5.......1\n");
  w.Lire_Grille_Initiale(0, 0);
  EXPECT_EQ(w.Grille(9, 9), 1);
  EXPECT_EQ(cells_with_text_colour(w.MSF, colour::red), "r1c1");
  EXPECT_EQ(w.Ligne, 9);
  EXPECT_EQ(w.Colonne, 9);
}

TEST_F(Rules, ReadingShowsTheFileSolveAndPrintButtonsAgain) {
  for (const Control id : {Control::Command2, Control::Command4, Control::Command6, Control::sauve,
                           Control::Bouton_GO})
    w.set_visible(id, false);
  w.set_visible(Control::Command8, false);
  w.Lire_Grille_Initiale(0, 0);
  for (const Control id : {Control::Command2, Control::Command4, Control::Command6, Control::sauve,
                           Control::Bouton_GO})
    EXPECT_TRUE(w.visible(id)) << static_cast<int>(id);
  EXPECT_FALSE(w.visible(Control::Command8));
}

// CreateGrille

TEST_F(Rules, CreateGrilleWritesTheTextWithFilledCellsOnTheGivensColour) {
  game.draw(complete_grid);
  w.MSF.make_current(4, 4);
  w.MSF.set_text_colour(colour::red);
  globals.CouleurDonnees = colour::from_file;
  w.ChaineGrille = "1 3" + std::string(77, ' ') + "9";
  game.forget();
  w.CreateGrille();
  EXPECT_EQ(shown(w),
            "1.3......\n.........\n.........\n.........\n.........\n.........\n"
            ".........\n.........\n........9\n");
  EXPECT_EQ(cells_with_back_colour(w.MSF, colour::from_file), "r1c1 r1c3 r9c9");
  EXPECT_EQ(cells_with_text_colour(w.MSF, colour::black), all_cells());
  EXPECT_EQ(w.MSF.cell(1, 1).back_colour, colour::white);
  EXPECT_EQ(w.MSF.selection(), (CellRange{8, 8, 8, 8}));
  EXPECT_EQ(game.msf.times_hidden, 1);
  EXPECT_EQ(game.msf.changes_while_visible, 0);
}

TEST_F(Rules, CreateGrilleOfAShortTextLeavesEmptyTextsThatCountAsFilled) {
  w.ChaineGrille = "12 ";
  w.CreateGrille();
  EXPECT_EQ(w.MSF.text(0, 2), " ");
  EXPECT_EQ(w.MSF.text(0, 3), "");
  EXPECT_EQ(w.MSF.text(8, 8), "");
  EXPECT_EQ(w.MSF.cell(8, 8).back_colour, globals.CouleurDonnees);
  EXPECT_EQ(cells_with_back_colour(w.MSF, colour::white), "r1c3");
  w.maj_indices();
  EXPECT_EQ(w.control(Control::Label).caption, " 80 indices");
}

TEST_F(Rules, CreateGrilleTakesOnlyTheFirst81Characters) {
  w.ChaineGrille = std::string(81, ' ') + "123";
  w.CreateGrille();
  EXPECT_EQ(shown(w), empty_grid);
}

// Afficher_resGrille

TEST_F(Rules, AfficherOfZerosLeavesEveryTextAndEmptiesTheChain) {
  game.draw(seventy_two_cells);
  w.Grille = w.GrilleInitiale = {};
  w.ChaineGrille = "old";
  w.Afficher_resGrille();
  EXPECT_EQ(shown(w), seventy_two_cells);
  EXPECT_EQ(w.ChaineGrille, "");
  EXPECT_EQ(cells_with_text_colour(w.MSF, colour::green), all_cells());
  EXPECT_EQ(w.control(Control::Label).caption, " 72 indices");
  EXPECT_TRUE(desktop.boxes.empty());
}

TEST_F(Rules, AfficherWritesTheDigitsGreenWhereTheCellWasNotFixed) {
  read(seventy_two_cells);
  for (int r = 1; r <= 9; ++r)
    w.Grille(r, 1) = static_cast<std::int16_t>(complete_grid[(r - 1) * 10] - '0');
  w.Afficher_resGrille();
  EXPECT_EQ(shown(w), complete_grid);
  EXPECT_EQ(w.ChaineGrille, joined(complete_grid));
  EXPECT_EQ(cells_with_text_colour(w.MSF, colour::green),
            "r1c1 r2c1 r3c1 r4c1 r5c1 r6c1 r7c1 r8c1 r9c1");
  EXPECT_EQ(cells_with_back_colour(w.MSF, colour::white),
            "r1c1 r2c1 r3c1 r4c1 r5c1 r6c1 r7c1 r8c1 r9c1");
  EXPECT_EQ(w.control(Control::Label).caption, " 81 indices");
  EXPECT_EQ(desktop.boxes, std::vector{message(Message::completed, Icon::exclamation)});
  EXPECT_EQ(w.MSF.selection(), (CellRange{8, 8, 8, 8}));
  EXPECT_EQ(game.msf.times_hidden, 1);
  EXPECT_EQ(game.msf.changes_while_visible, 0);
}

TEST_F(Rules, AfficherLeavesTheTextsOfZerosBetweenDigits) {
  game.draw(
      "12.......\n.........\n.........\n.........\n.........\n.........\n.........\n"
      ".........\n.........\n");
  w.Grille = w.GrilleInitiale = {};
  w.Grille(1, 2) = 5;
  w.Grille(9, 9) = 7;
  w.Afficher_resGrille();
  EXPECT_EQ(shown(w),
            "15.......\n.........\n.........\n.........\n.........\n.........\n"
            ".........\n.........\n........7\n");
  EXPECT_EQ(w.ChaineGrille, "57");
}

TEST_F(Rules, AfficherKeepsTheColourOfAFixedCell) {
  game.draw(complete_grid);
  w.MSF.make_current(2, 2);
  w.MSF.set_text_colour(colour::red);
  w.Lire_Grille_Initiale(0, 0);
  w.Afficher_resGrille();
  EXPECT_EQ(cells_with_text_colour(w.MSF, colour::red), "r3c3");
  EXPECT_EQ(cells_with_text_colour(w.MSF, colour::green), "");
}

// maj_indices

TEST_F(Rules, EightyFilledCellsShowTheCountAndNoMessage) {
  std::string grid = complete_grid;
  grid[grid.size() - 2] = '.';
  game.draw(grid);
  w.GrilleValide = false;
  w.maj_indices();
  EXPECT_EQ(w.control(Control::Label).caption, " 80 indices");
  EXPECT_TRUE(desktop.boxes.empty());
  EXPECT_TRUE(game.repaints.empty());
  EXPECT_FALSE(w.GrilleValide);
}

TEST_F(Rules, AFullValidGridIsAnnouncedAtEveryCount) {
  read(complete_grid);
  w.maj_indices();
  w.maj_indices();
  EXPECT_EQ(w.control(Control::Label).caption, " 81 indices");
  EXPECT_EQ(desktop.boxes, (std::vector{message(Message::completed, Icon::exclamation),
                                        message(Message::completed, Icon::exclamation)}));
}

TEST_F(Rules, AFullGridWithAClashIsCalledImpossibleAndKept) {
  std::string grid = complete_grid;
  grid[0] = '2';
  read(grid);
  const std::string before = shown(w);
  w.maj_indices();
  EXPECT_EQ(desktop.boxes, std::vector{message(Message::impossible, Icon::exclamation)});
  EXPECT_EQ(shown(w), before);
  EXPECT_FALSE(w.GrilleValide);
}

TEST_F(Rules, CountingJudgesTheGridAsItWasLastRead) {
  read(complete_grid);
  w.MSF.set_text(0, 0, "2");
  w.maj_indices();
  EXPECT_EQ(desktop.boxes, std::vector{message(Message::completed, Icon::exclamation)});
}

TEST_F(Rules, AnEmptyGridCountsZero) {
  game.draw(empty_grid);
  w.maj_indices();
  EXPECT_EQ(w.control(Control::Label).caption, " 0 indices");
}

TEST_F(Rules, AnEmptyTextCountsAsAFilledCell) {
  game.draw(
      "?........\n.........\n.........\n.........\n.........\n.........\n.........\n"
      ".........\n.........\n");
  w.maj_indices();
  EXPECT_EQ(w.control(Control::Label).caption, " 1 indices");
}

// essai

TEST_F(Rules, ShowBadValuesColoursGivensFoundDigitsWrongDigitsAndEmptyCells) {
  game.draw(
      "1c.f.....\n.........\n.........\n.........\n.........\n.........\n.........\n"
      ".........\n........5\n");
  w.ChaineSolution = joined(complete_grid);
  w.essai();
  EXPECT_EQ(cells_with_text_colour(w.MSF, colour::black), "r1c1 r9c9");
  EXPECT_EQ(w.MSF.cell(0, 1).text_colour, colour::red);
  EXPECT_EQ(w.MSF.cell(0, 2).text_colour, colour::red);
  EXPECT_EQ(w.MSF.cell(0, 3).text_colour, colour::red);
  EXPECT_EQ(cells_with_text_colour(w.MSF, colour::green), "");
}

TEST_F(Rules, ShowBadValuesGivesFoundDigitsGreenAndWrongGivensRed) {
  std::string grid = complete_grid;
  grid[0] = 'a';  // found
  grid[1] = '3';  // a given that differs
  grid[2] = 'd';  // wrong
  game.draw(grid);
  w.MSF.make_current(0, 0);
  w.MSF.set_text_colour(colour::red);
  w.ChaineSolution = joined(complete_grid);
  game.forget();
  w.essai();
  EXPECT_EQ(cells_with_text_colour(w.MSF, colour::green), "r1c1");
  EXPECT_EQ(cells_with_text_colour(w.MSF, colour::red), "r1c2 r1c3");
  EXPECT_EQ(joined(shown(w)).substr(0, 4), "1344");
  EXPECT_EQ(cells_with_back_colour(w.MSF, colour::white), "r1c1 r1c3");
  EXPECT_EQ(w.MSF.selection(), (CellRange{8, 8, 8, 8}));
  EXPECT_EQ(game.msf.times_hidden, 1);
  EXPECT_EQ(game.msf.changes_while_visible, 0);
  EXPECT_TRUE(desktop.boxes.empty());
}

TEST_F(Rules, ShowBadValuesWithAnEmptySolutionReddensEveryFilledAndEmptyCell) {
  game.draw(seventy_two_cells);
  w.ChaineSolution = "";
  w.essai();
  EXPECT_EQ(cells_with_text_colour(w.MSF, colour::red), all_cells());
}

TEST_F(Rules, ShowBadValuesWithAnEmptySolutionAcceptsEmptyTexts) {
  game.draw(
      "?........\n.........\n.........\n.........\n.........\n.........\n.........\n"
      ".........\n.........\n");
  w.MSF.make_current(0, 0);
  w.MSF.set_text_colour(colour::red);
  w.ChaineSolution = "";
  w.essai();
  EXPECT_EQ(w.MSF.cell(0, 0).text_colour, colour::black);
}

}  // namespace
}  // namespace sdk::test
