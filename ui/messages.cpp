// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/messages.hpp"

#include "game/message.hpp"
#include "screen/keyed_rows.hpp"

namespace sdk {

namespace {

struct Text {
  std::string_view french, english;

  std::string_view in(std::string_view language) const {
    return language == "Fr" ? french : english;
  }
};

struct MessageText {
  Message message;
  Text text;
};

constexpr MessageText message_texts[] = {
    {Message::new_puzzle, {"Nouvelle grille", "New puzzle"}},
    {Message::clear_grid, {"Efface la grille", "Clean the grid"}},
    {Message::load_puzzle, {"Charger une grille", "Load puzzle"}},
    {Message::save_puzzle, {"Sauver la grille", "Save puzzle"}},
    {Message::solve_puzzle, {"Résoudre la grille", "Solve puzzle"}},
    {Message::print_puzzle, {"Imprimer la grille", "Print puzzle"}},
    {Message::about, {"Information", "About"}},
    {Message::help, {"Aide", "Help"}},
    {Message::quit, {"Quitter", "Quit"}},
    {Message::show_bad_values, {"Indiquer les valeurs fausses", "Show bad values"}},
    {Message::keep_initial_grid, {"Protéger la grille initiale", "Keep intact the initial grid"}},
    {Message::verify_on_the_fly, {"Vérification pas à pas", "Verification on the fly"}},
    {Message::really_quit, {"Voulez-vous vraiment quitter ", "Really want to quit "}},
    {Message::impossible, {"Grille impossible à résoudre", "Impossible to solve this puzzle"}},
    {Message::completed, {"Grille terminée!!", "Puzzle completed!! "}},
    {Message::credit, {" proposé par l'équipe SuDoKu", " proposed by the SuDoKu team"}},
    {Message::newbie, {"Débutant", "Newbie"}},
    {Message::easy, {"Facile", "Easy"}},
    {Message::average, {"Moyen", "Average"}},
    {Message::hard, {"Difficile", "Hard"}},
    {Message::diabolic, {"Diabolique", "Diabolic"}},
    {Message::language_hint,
     {"Appuyer sur la touche F1 pour passer en Anglais, F2 pour le Français",
      "Press on the F1 key for english or F2 for french"}},
    {Message::show_candidates, {"Affiche possibilités", "Show possible candidates"}},
    {Message::search_stopped, {"Résolution interrompu!", "Solver stopped!"}},
    {Message::picture_credit,
     {"Japonaise au chapeau par l'équipe SuDoKu", "Japonese women with a hat by the SuDoKu team"}},
    {Message::author, {"Auteur", "Author"}},
    {Message::no_suggestion,
     {"Désolé, plus de suggestion à faire!", "Sorry, no suggestion anymore to provide!"}},
    {Message::naked_single, {" Singleton nu L", "Naked single L"}},
    {Message::hidden_single, {" Singleton caché L", "Hidden single L"}},
};

struct NoticeText {
  Notice notice;
  Text text;
};

constexpr NoticeText notice_texts[] = {
    {Notice::fatal, {"SuDoKu doit s'arrêter (%1)", "SuDoKu has to stop (%1)"}},
    {Notice::fatal_saved,
     {"SuDoKu doit s'arrêter (%1). La grille a été sauvée dans %2",
      "SuDoKu has to stop (%1). The grid was saved in %2"}},
    {Notice::fatal_not_saved,
     {"SuDoKu doit s'arrêter (%1). La grille n'a pas pu être sauvée (%2)",
      "SuDoKu has to stop (%1). The grid could not be saved (%2)"}},
    {Notice::empty_file, {"le fichier est vide", "the file is empty"}},
    {Notice::cell, {"ligne %1, colonne %2", "row %1, column %2"}},
    {Notice::empty, {"vide", "empty"}},
    {Notice::puzzle, {"Grille", "Puzzle"}},
    {Notice::candidates, {"Candidats", "Candidates"}},
    {Notice::level, {"Niveau", "Level"}},
    {Notice::hint, {"Suggestion", "Hint"}},
    {Notice::undo, {"Annuler", "Undo"}},
    {Notice::redo, {"Rétablir", "Redo"}},
    {Notice::cell_menu, {"Menu de la case", "Cell menu"}},
    {Notice::erase, {"Effacer", "Erase"}},
    {Notice::copy, {"Copier", "Copy"}},
    {Notice::select_all, {"Tout sélectionner", "Select all"}},
    {Notice::given, {"donné", "given"}},
    {Notice::wrong, {"faux", "wrong"}},
    {Notice::clashing, {"en conflit", "clashes"}},
    {Notice::placed, {"placé", "placed"}},
    {Notice::reduced, {"perd un candidat", "loses a candidate"}},
    {Notice::pattern, {"appui", "supports the hint"}},
    {Notice::second_pattern, {"second rôle", "second role"}},
    {Notice::dead, {"il ne reste aucun chiffre", "no digit is left"}},
    {Notice::loses, {"perd %1", "loses %1"}},
    {Notice::bold, {"en gras %1", "bold %1"}},
    {Notice::row, {"ligne %1", "row %1"}},
    {Notice::column, {"colonne %1", "column %1"}},
    {Notice::commands, {"Commandes", "Commands"}},
    {Notice::options, {"Options", "Options"}},
    {Notice::explanation, {"Explication", "Explanation"}},
    {Notice::searching, {"Recherche en cours… Échap l'arrête.", "Searching… Escape stops it."}},
    {Notice::previous_step, {"Étape précédente", "Previous step"}},
    {Notice::next_step, {"Étape suivante", "Next step"}},
    {Notice::rescued_grids, {"Grilles récupérées", "Rescued grids"}},
    {Notice::is_folder, {"%1 est un dossier, pas un fichier.", "%1 is a folder, not a file."}},
    {Notice::no_file, {"Il n'y a pas de fichier %1.", "There is no file %1."}},
    {Notice::unreadable_file,
     {"Vous n'avez pas le droit de lire %1.", "You are not allowed to read %1."}},
    {Notice::no_folder, {"Il n'y a pas de dossier %1.", "There is no folder %1."}},
    {Notice::closed_folder,
     {"Vous n'avez pas le droit de créer un fichier dans %1.",
      "You are not allowed to make a file in %1."}},
    {Notice::closed_file,
     {"Vous n'avez pas le droit de modifier %1.", "You are not allowed to change %1."}},
    {Notice::print_to_file, {"Imprimer dans un fichier PDF", "Print to a PDF file"}},
    {Notice::pdf_files, {"Documents PDF (.pdf)", "PDF documents (.pdf)"}},
    {Notice::author, {"l'équipe SuDoKu", "the SuDoKu team"}},
    {Notice::rights, {"Copyright © l'équipe SuDoKu %1", "Copyright © the SuDoKu team %1"}},
};
static_assert(has_row_for_each(notice_texts, &NoticeText::notice, Notice::rights));

void fill_in(std::string& text, std::string_view place, std::string_view value) {
  if (const auto at = text.find(place); at != std::string::npos)
    text.replace(at, place.size(), value);
}

}  // namespace

std::array<std::string, 35> messages_in(std::string_view language) {
  std::array<std::string, 35> table;
  for (const auto& [message, text] : message_texts) table[place_of(message)] = text.in(language);
  return table;
}

std::string notice(Notice which, std::string_view language, std::string_view first,
                   std::string_view second) {
  std::string text(row_of(notice_texts, which).text.in(language));
  fill_in(text, "%2", second);
  fill_in(text, "%1", first);
  return text;
}

}  // namespace sdk
