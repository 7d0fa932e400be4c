// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Switching the language with the window open.

#include <gtest/gtest.h>

#include "tests/support/game.hpp"
#include "ui/messages.hpp"
#include "ui/version.hpp"

namespace sdk::test {
namespace {

struct Place {
  Control control;
  const char* french;
  const char* english;
};

const Place tooltips[] = {
    {Control::Command1, "Nouvelle grille", "New puzzle"},
    {Control::Command2, "Efface la grille", "Clean the grid"},
    {Control::Command6, "Charger une grille", "Load puzzle"},
    {Control::sauve, "Sauver la grille", "Save puzzle"},
    {Control::Bouton_GO, "Résoudre la grille", "Solve puzzle"},
    {Control::Command4, "Imprimer la grille", "Print puzzle"},
    {Control::Command5, "Information", "About"},
    {Control::aide, "Aide", "Help"},
    {Control::Command3, "Quitter", "Quit"},
    {Control::Command7, "Indiquer les valeurs fausses", "Show bad values"},
    {Control::Check3, "Protéger la grille initiale", "Keep intact the initial grid"},
    {Control::Check2, "Affiche possibilités", "Show possible candidates"},
    {Control::Check1, "Vérification pas à pas", "Verification on the fly"},
};

bool is_check(Control id) {
  return id == Control::Check1 || id == Control::Check2 || id == Control::Check3;
}

class Languages : public testing::Test {
 protected:
  void expect_texts(bool french) {
    for (const Place& place : tooltips) {
      const char* text = french ? place.french : place.english;
      EXPECT_EQ(w.control(place.control).tooltip, text);
      EXPECT_EQ(w.control(place.control).caption, is_check(place.control) ? text : "");
    }
  }

  Lines level_names() const {
    Lines names;
    for (const LevelItem& item : w.levels()) names.push_back(item.name);
    return names;
  }

  Game game;
  MainWindow& w = game.window;
};

TEST_F(Languages, AreFrenchAtTheStart) {
  EXPECT_EQ(globals.Langue, "Fr");
  expect_texts(true);
}

TEST_F(Languages, SwitchToEnglishWithF1AndBackWithF2) {
  w.preview_key(key::f1);
  EXPECT_EQ(globals.Langue, "En");
  EXPECT_EQ(globals.Messages, messages_in("En"));
  expect_texts(false);
  EXPECT_EQ(level_names(), (Lines{"Newbie", "Easy", "Average", "Hard", "Diabolic"}));
  w.preview_key(key::f2);
  EXPECT_EQ(globals.Langue, "Fr");
  EXPECT_EQ(globals.Messages, messages_in("Fr"));
  expect_texts(true);
  EXPECT_EQ(level_names(), (Lines{"Débutant", "Facile", "Moyen", "Difficile", "Diabolique"}));
}

TEST_F(Languages, GiveEveryLevelItemItsNumber) {
  for (const int code : {key::f1, key::f2}) {
    w.preview_key(code);
    ASSERT_EQ(w.levels().size(), 5u);
    for (std::int16_t level = 0; level <= 4; ++level)
      EXPECT_EQ(w.levels()[static_cast<std::size_t>(level)].level, level);
  }
}

TEST_F(Languages, LeaveTheCreditLabelWithoutTheTitle) {
  EXPECT_EQ(w.control(Control::Label3).caption,
            std::string(program_title) + " proposé par l'équipe SuDoKu");
  w.preview_key(key::f1);
  EXPECT_EQ(w.control(Control::Label3).caption, " proposed by the SuDoKu team");
  w.preview_key(key::f2);
  EXPECT_EQ(w.control(Control::Label3).caption, " proposé par l'équipe SuDoKu");
}

TEST_F(Languages, RebuildTheLevelListWithoutASelectionAndWithoutRunningItsHandler) {
  w.choose_level(3);
  globals.CouleurDonnees = colour::from_file;
  w.preview_key(key::f1);
  EXPECT_EQ(w.chosen_level(), std::nullopt);
  EXPECT_EQ(globals.NiveauCourant, 3);
  EXPECT_EQ(globals.CouleurDonnees, colour::from_file);
  EXPECT_EQ(w.level_text(), "Hard");
  w.preview_key(key::f2);
  EXPECT_EQ(w.level_text(), "Difficile");
}

TEST_F(Languages, LeaveTheGridTheCountAndTheWindowsTitle) {
  const std::string grid = shown(w);
  const std::string count = w.control(Control::Label).caption;
  w.preview_key(key::f1);
  EXPECT_EQ(shown(w), grid);
  EXPECT_EQ(w.control(Control::Label).caption, count);
  EXPECT_EQ(w.title(), program_title);
}

TEST_F(Languages, AreEnglishForAnyNameButExactlyFr) {
  for (const char* name : {"fr", "", "En"}) {
    w.langage("Fr");
    w.langage(name);
    EXPECT_EQ(globals.Messages, messages_in("En")) << name;
    expect_texts(false);
    EXPECT_EQ(globals.Langue, "Fr") << "langage only reads its argument";
  }
}

TEST_F(Languages, LeaveEntries24To29Empty) {
  for (const int code : {key::f1, key::f2}) {
    w.preview_key(code);
    for (std::size_t i = 24; i <= 29; ++i) EXPECT_EQ(globals.Messages[i], "");
  }
}

TEST_F(Languages, EscapeAsksTheSearchToStopAndChangesNothingElse) {
  const std::string before = dump(w);
  w.preview_key(key::escape);
  EXPECT_TRUE(globals.ArretDemande);
  globals.ArretDemande = false;
  EXPECT_EQ(difference(before, dump(w)), "");
}

TEST_F(Languages, OtherKeysAreIgnoredByTheWindow) {
  const std::string before = dump(w);
  for (int code = 0; code < 300; ++code)
    if (code != key::f1 && code != key::f2 && code != key::escape) w.preview_key(code);
  EXPECT_EQ(difference(before, dump(w)), "");
}

}  // namespace
}  // namespace sdk::test
