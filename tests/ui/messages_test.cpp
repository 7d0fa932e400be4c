// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Every text for the player, exactly.

#include "ui/messages.hpp"

#include <gtest/gtest.h>

namespace sdk::test {
namespace {

struct Row {
  std::size_t index;
  const char* french;
  const char* english;
};

class Messages : public testing::TestWithParam<Row> {};

TEST_P(Messages, ReadAsWrittenInBothLanguages) {
  EXPECT_EQ(messages_in("Fr")[GetParam().index], GetParam().french);
  EXPECT_EQ(messages_in("En")[GetParam().index], GetParam().english);
}

INSTANTIATE_TEST_SUITE_P(
    Table, Messages,
    testing::Values(
        Row{0, "Nouvelle grille", "New puzzle"}, Row{1, "Efface la grille", "Clean the grid"},
        Row{2, "Charger une grille", "Load puzzle"}, Row{3, "Sauver la grille", "Save puzzle"},
        Row{4, "Résoudre la grille", "Solve puzzle"}, Row{5, "Imprimer la grille", "Print puzzle"},
        Row{6, "Information", "About"}, Row{7, "Aide", "Help"}, Row{8, "Quitter", "Quit"},
        Row{9, "Indiquer les valeurs fausses", "Show bad values"},
        Row{10, "Protéger la grille initiale", "Keep intact the initial grid"},
        Row{11, "Vérification pas à pas", "Verification on the fly"},
        Row{12, "Voulez-vous vraiment quitter ", "Really want to quit "},
        Row{13, "Grille impossible à résoudre", "Impossible to solve this puzzle"},
        Row{14, "Grille terminée!!", "Puzzle completed!! "},
        Row{15, " proposé par l'équipe SuDoKu", " proposed by the SuDoKu team"},
        Row{16, "Débutant", "Newbie"}, Row{17, "Facile", "Easy"}, Row{18, "Moyen", "Average"},
        Row{19, "Difficile", "Hard"}, Row{20, "Diabolique", "Diabolic"},
        Row{21, "Appuyer sur la touche F1 pour passer en Anglais, F2 pour le Français",
            "Press on the F1 key for english or F2 for french"},
        Row{22, "Affiche possibilités", "Show possible candidates"},
        Row{23, "Résolution interrompu!", "Solver stopped!"}, Row{24, "", ""}, Row{25, "", ""},
        Row{26, "", ""}, Row{27, "", ""}, Row{28, "", ""}, Row{29, "", ""},
        Row{30, "Japonaise au chapeau par l'équipe SuDoKu",
            "Japonese women with a hat by the SuDoKu team"},
        Row{31, "Auteur", "Author"},
        Row{32, "Désolé, plus de suggestion à faire!", "Sorry, no suggestion anymore to provide!"},
        Row{33, " Singleton nu L", "Naked single L"},
        Row{34, " Singleton caché L", "Hidden single L"}),
    [](const auto& test) { return std::to_string(test.param.index); });

TEST(MessageTable, IsEnglishForAnythingButExactlyFr) {
  for (const char* language : {"fr", "", "FR", "Fr ", "De"})
    EXPECT_EQ(messages_in(language), messages_in("En")) << language;
}

TEST(Notices, AreFilledInInBothLanguages) {
  EXPECT_EQ(notice(Notice::cell, "Fr", "3", "9"), "ligne 3, colonne 9");
  EXPECT_EQ(notice(Notice::cell, "En", "3", "9"), "row 3, column 9");
  EXPECT_EQ(notice(Notice::empty, "Fr"), "vide");
  EXPECT_EQ(notice(Notice::empty, "En"), "empty");
  EXPECT_EQ(notice(Notice::puzzle, "Fr"), "Grille");
  EXPECT_EQ(notice(Notice::puzzle, "En"), "Puzzle");
  EXPECT_EQ(notice(Notice::candidates, "Fr"), "Candidats");
  EXPECT_EQ(notice(Notice::candidates, "En"), "Candidates");
  EXPECT_EQ(notice(Notice::level, "Fr"), "Niveau");
  EXPECT_EQ(notice(Notice::level, "En"), "Level");
  EXPECT_EQ(notice(Notice::given, "Fr"), "donné");
  EXPECT_EQ(notice(Notice::given, "En"), "given");
  EXPECT_EQ(notice(Notice::wrong, "Fr"), "faux");
  EXPECT_EQ(notice(Notice::wrong, "En"), "wrong");
  EXPECT_EQ(notice(Notice::clashing, "Fr"), "en conflit");
  EXPECT_EQ(notice(Notice::clashing, "En"), "clashes");
  EXPECT_EQ(notice(Notice::placed, "Fr"), "placé");
  EXPECT_EQ(notice(Notice::placed, "En"), "placed");
  EXPECT_EQ(notice(Notice::reduced, "Fr"), "perd un candidat");
  EXPECT_EQ(notice(Notice::reduced, "En"), "loses a candidate");
  EXPECT_EQ(notice(Notice::pattern, "Fr"), "appui");
  EXPECT_EQ(notice(Notice::pattern, "En"), "supports the hint");
  EXPECT_EQ(notice(Notice::second_pattern, "Fr"), "second rôle");
  EXPECT_EQ(notice(Notice::second_pattern, "En"), "second role");
  EXPECT_EQ(notice(Notice::dead, "Fr"), "il ne reste aucun chiffre");
  EXPECT_EQ(notice(Notice::dead, "En"), "no digit is left");
  EXPECT_EQ(notice(Notice::loses, "Fr", "3 8"), "perd 3 8");
  EXPECT_EQ(notice(Notice::loses, "En", "3 8"), "loses 3 8");
  EXPECT_EQ(notice(Notice::bold, "Fr", "5"), "en gras 5");
  EXPECT_EQ(notice(Notice::bold, "En", "5"), "bold 5");
  EXPECT_EQ(notice(Notice::row, "Fr", "4"), "ligne 4");
  EXPECT_EQ(notice(Notice::row, "En", "4"), "row 4");
  EXPECT_EQ(notice(Notice::column, "Fr", "4"), "colonne 4");
  EXPECT_EQ(notice(Notice::column, "En", "4"), "column 4");
  EXPECT_EQ(notice(Notice::commands, "Fr"), "Commandes");
  EXPECT_EQ(notice(Notice::commands, "En"), "Commands");
  EXPECT_EQ(notice(Notice::options, "Fr"), "Options");
  EXPECT_EQ(notice(Notice::options, "En"), "Options");
  EXPECT_EQ(notice(Notice::explanation, "Fr"), "Explication");
  EXPECT_EQ(notice(Notice::explanation, "En"), "Explanation");
  EXPECT_EQ(notice(Notice::previous_step, "Fr"), "Étape précédente");
  EXPECT_EQ(notice(Notice::previous_step, "En"), "Previous step");
  EXPECT_EQ(notice(Notice::next_step, "Fr"), "Étape suivante");
  EXPECT_EQ(notice(Notice::next_step, "En"), "Next step");
  EXPECT_EQ(notice(Notice::author, "Fr"), "l'équipe SuDoKu");
  EXPECT_EQ(notice(Notice::author, "En"), "the SuDoKu team");
  EXPECT_EQ(notice(Notice::rights, "Fr", "2026"), "Copyright © l'équipe SuDoKu 2026");
  EXPECT_EQ(notice(Notice::rights, "En", "2026"), "Copyright © the SuDoKu team 2026");
}

TEST(Notices, KeepPlaceholdersThatStandInWhatIsFilledIn) {
  EXPECT_EQ(notice(Notice::cell, "En", "%2", "%1"), "row %2, column %1");
}

}  // namespace
}  // namespace sdk::test
