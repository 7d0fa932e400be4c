// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/messages.hpp"

namespace sdk {

namespace {

struct Text {
  std::string_view french, english;

  std::string_view in(std::string_view language) const {
    return language == "Fr" ? french : english;
  }
};

constexpr std::array<Text, 35> messages{{
    /*  0 */ {"Nouvelle grille", "New puzzle"},
    /*  1 */ {"Efface la grille", "Clean the grid"},
    /*  2 */ {"Charger une grille", "Load puzzle"},
    /*  3 */ {"Sauver la grille", "Save puzzle"},
    /*  4 */ {"Résoudre la grille", "Solve puzzle"},
    /*  5 */ {"Imprimer la grille", "Print puzzle"},
    /*  6 */ {"Information", "About"},
    /*  7 */ {"Aide", "Help"},
    /*  8 */ {"Quitter", "Quit"},
    /*  9 */ {"Indiquer les valeurs fausses", "Show bad values"},
    /* 10 */ {"Protéger la grille initiale", "Keep intact the initial grid"},
    /* 11 */ {"Vérification pas à pas", "Verification on the fly"},
    /* 12 */ {"Voulez-vous vraiment quitter ", "Really want to quit "},
    /* 13 */ {"Grille impossible à résoudre", "Impossible to solve this puzzle"},
    /* 14 */ {"Grille terminée!!", "Puzzle completed!! "},
    /* 15 */ {" proposé par l'équipe SuDoKu", " proposed by the SuDoKu team"},
    /* 16 */ {"Débutant", "Newbie"},
    /* 17 */ {"Facile", "Easy"},
    /* 18 */ {"Moyen", "Average"},
    /* 19 */ {"Difficile", "Hard"},
    /* 20 */ {"Diabolique", "Diabolic"},
    /* 21 */
    {"Appuyer sur la touche F1 pour passer en Anglais, F2 pour le Français",
     "Press on the F1 key for english or F2 for french"},
    /* 22 */ {"Affiche possibilités", "Show possible candidates"},
    /* 23 */ {"Résolution interrompu!", "Solver stopped!"},
    /* 24 */ {},
    /* 25 */ {},
    /* 26 */ {},
    /* 27 */ {},
    /* 28 */ {},
    /* 29 */ {},
    /* 30 */
    {"Japonaise au chapeau par l'équipe SuDoKu", "Japonese women with a hat by the SuDoKu team"},
    /* 31 */ {"Auteur", "Author"},
    /* 32 */ {"Désolé, plus de suggestion à faire!", "Sorry, no suggestion anymore to provide!"},
    /* 33 */ {" Singleton nu L", "Naked single L"},
    /* 34 */ {" Singleton caché L", "Hidden single L"},
}};

/// In the order of Notice.
constexpr std::array<Text, 21> notices{{
    {"SuDoKu doit s'arrêter (%1)", "SuDoKu has to stop (%1)"},
    {"SuDoKu doit s'arrêter (%1). La grille est sauvée dans %2",
     "SuDoKu has to stop (%1). The grid was saved in %2"},
    {"SuDoKu doit s'arrêter (%1). La grille n'a pas pu être sauvée (%2)",
     "SuDoKu has to stop (%1). The grid could not be saved (%2)"},
    {"ligne %1, colonne %2", "row %1, column %2"},
    {"vide", "empty"},
    {"Grille", "Puzzle"},
    {"Candidats", "Candidates"},
    {"Niveau", "Level"},
    {"Suggestion", "Hint"},
    {"donné", "given"},
    {"faux", "wrong"},
    {"placé", "placed"},
    {"réduit", "reduced"},
    {"motif", "pattern"},
    {"second motif", "second pattern"},
    {"ligne %1", "row %1"},
    {"colonne %1", "column %1"},
    {"Commandes", "Commands"},
    {"Options", "Options"},
    {"l'équipe SuDoKu", "the SuDoKu team"},
    {"Copyright © l'équipe SuDoKu %1", "Copyright © the SuDoKu team %1"},
}};

void fill_in(std::string& text, std::string_view place, std::string_view value) {
  if (const auto at = text.find(place); at != std::string::npos)
    text.replace(at, place.size(), value);
}

}  // namespace

std::array<std::string, 35> messages_in(std::string_view language) {
  std::array<std::string, 35> table;
  for (std::size_t i = 0; i < table.size(); ++i) table[i] = messages[i].in(language);
  return table;
}

std::string notice(Notice which, std::string_view language, std::string_view first,
                   std::string_view second) {
  std::string text(notices.at(static_cast<std::size_t>(which)).in(language));
  fill_in(text, "%2", second);
  fill_in(text, "%1", first);
  return text;
}

}  // namespace sdk
