// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The window after start-up.

#include <gtest/gtest.h>

#include <algorithm>

#include "pas_a_pas/tables.hpp"
#include "pas_a_pas/techniques.hpp"
#include "tests/support/game.hpp"
#include "ui/messages.hpp"
#include "ui/state_check.hpp"

namespace sdk::test {
namespace {

class StartUp : public testing::Test {
 protected:
  Game game;
  MainWindow& w = game.window;
};

TEST_F(StartUp, GivesEveryFlagItsStartValue) {
  EXPECT_EQ(globals.Langue, "Fr");
  EXPECT_EQ(globals.NiveauCourant, 1);
  EXPECT_EQ(globals.CouleurDonnees, 0xC0FFFFu);
  EXPECT_EQ(globals.GrilleOk.bits(), 0);
  EXPECT_EQ(globals.ResolutionSilencieuse.bits(), 0);
  EXPECT_EQ(globals.ProtegeGrille.bits(), -1);
  EXPECT_EQ(globals.AfficheCandidats.bits(), 0);
  EXPECT_EQ(globals.ArretDemande.bits(), 0);
  EXPECT_EQ(globals.ModePasAPas.bits(), 0);
  EXPECT_EQ(w.VerifAuVol.bits(), 0);
  EXPECT_EQ(globals.Messages, messages_in("Fr"));
}

TEST_F(StartUp, GivesTheFlagsTheirStartValuesAfterAnEarlierWindowToo) {
  globals.NiveauCourant = 4;
  globals.ProtegeGrille = false;
  globals.Langue = "En";
  globals.ModePasAPas = globals.ArretDemande = globals.AfficheCandidats = true;
  globals.GrilleOk = globals.ResolutionSilencieuse = true;
  FakeDesktop desktop;
  MainWindow second(desktop);
  second.start("");
  EXPECT_EQ(globals.NiveauCourant, 1);
  EXPECT_TRUE(globals.ProtegeGrille);
  EXPECT_EQ(globals.Langue, "Fr");
  for (const Bool16 flag : {globals.ModePasAPas, globals.ArretDemande, globals.AfficheCandidats,
                            globals.GrilleOk, globals.ResolutionSilencieuse})
    EXPECT_FALSE(flag);
}

TEST_F(StartUp, EmptiesTheTablesOfTheSolverAfterAnEarlierWindow) {
  solver.running = solver.run_wanted = true;
  solver.GrilleFinie = solver.SuggestionTrouvee = true;
  construit_liens();
  ASSERT_NE(LienFaible, LinkTable()) << "there is something to forget";
  Couleur.paint(81, 1);
  FakeDesktop desktop;
  MainWindow second(desktop);
  second.start("");
  EXPECT_FALSE(solver.running || solver.run_wanted);
  EXPECT_FALSE(solver.GrilleFinie || solver.SuggestionTrouvee);
  EXPECT_EQ(LienFort, LinkTable());
  EXPECT_EQ(LienFaible, LinkTable());
  EXPECT_TRUE(Couleur.coloured().empty());
}

TEST_F(StartUp, NamesTheProgramAndItsVersion) {
  EXPECT_EQ(globals.TitreFenetre, "SuDoKu " PROJECT_VERSION);
  EXPECT_EQ(w.title(), globals.TitreFenetre);
  EXPECT_EQ(w.control(Control::Label3).caption, globals.TitreFenetre + text_of(Message::credit));
}

TEST_F(StartUp, ShowsEveryControlButTheCandidates) {
  for (const ControlRow& row : all_controls) {
    const Control id = row.control;
    EXPECT_EQ(w.visible(id), id != Control::MSR && id != Control::rect2) << row.name;
  }
}

TEST_F(StartUp, HidesTheButtonsThatNeedAPuzzleUntilThereIsOne) {
  FakeDesktop desktop;
  MainWindow second(desktop);
  int picks = 0;
  desktop.at_pick = [&] {
    ++picks;
    for (const Control id :
         {Control::Command2, Control::sauve, Control::Bouton_GO, Control::Command4})
      EXPECT_FALSE(second.visible(id));
    EXPECT_TRUE(second.visible(Control::Command1));
    EXPECT_TRUE(second.visible(Control::Command6));
  };
  second.start("");
  EXPECT_EQ(picks, 1);
}

TEST_F(StartUp, TicksOnlyTheProtectionOfTheGivens) {
  EXPECT_FALSE(w.control(Control::Check1).checked);
  EXPECT_FALSE(w.control(Control::Check2).checked);
  EXPECT_TRUE(w.control(Control::Check3).checked);
}

TEST_F(StartUp, ShowsLevel1WithNoItemChosen) {
  EXPECT_EQ(w.level_text(), "Facile");
  EXPECT_EQ(w.chosen_level(), std::nullopt);
}

TEST_F(StartUp, ShowsANewPuzzle) {
  EXPECT_EQ(w.ChaineSolution.size(), 81u);
  EXPECT_EQ(joined(shown(w)).find_first_not_of(".123456789"), std::string::npos);
  const auto givens = 81 - std::ranges::count(joined(shown(w)), '.');
  EXPECT_GE(givens, 28);
  EXPECT_LE(givens, 32);
  EXPECT_EQ(w.MSF.selection(), (CellRange{8, 8, 8, 8}));
  EXPECT_EQ(w.lines().size(), 4u);
}

TEST_F(StartUp, FillsTheCandidatesEvenThoughTheyAreHidden) {
  for (int r = 0; r < 9; ++r)
    for (int c = 0; c < 9; ++c) {
      if (w.MSF.is_filled(r, c))
        EXPECT_EQ(w.MSR.text(r, c), w.MSF.text(r, c));
      else
        EXPECT_GT(w.MSR.text(r, c).size(), 1u);
    }
}

TEST_F(StartUp, AsksTheMachineForNothingButASeedAndTheArrow) {
  FakeDesktop desktop;
  MainWindow second(desktop);
  second.start("");
  EXPECT_EQ(desktop.next_seed, 2u);
  EXPECT_EQ(desktop.pointers, std::vector{Pointer::arrow});
  EXPECT_TRUE(desktop.boxes.empty());
  EXPECT_TRUE(desktop.clipboard.empty());
  EXPECT_TRUE(desktop.prints.empty());
  EXPECT_TRUE(desktop.errors.empty());
  EXPECT_EQ(desktop.steps, 0);
}

TEST_F(StartUp, LeavesASoundState) { EXPECT_EQ(state_fault(w), ""); }

TEST_F(StartUp, PutsTheFocusInTheGrid) { EXPECT_EQ(w.focus(), Control::MSF); }

}  // namespace
}  // namespace sdk::test
