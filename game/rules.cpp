// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The rule checks, and the procedures that carry a grid between the display and the integer grids.

#include <string>

#include "board/clashes.hpp"
#include "board/grid_text.hpp"
#include "board/search.hpp"
#include "game/window.hpp"

namespace sdk {

void Window::Extraire_Ligne_Colonne() { SearchCursor{NumCase, Ligne, Colonne}.locate(); }

Bool16 Window::Valide() const { return !has_clash(Grille, {Ligne, Colonne}); }

void Window::for_each_clash(const std::function<void()>& act) {
  for (const int number : all_cells) {
    const Cell cell = cell_at(number);
    if (Grille(cell.row, cell.column) == 0) continue;
    Ligne = static_cast<std::int16_t>(cell.row);
    Colonne = static_cast<std::int16_t>(cell.column);
    if (!Valide()) act();
  }
}

void Window::verify_valide() {
  GrilleValide = true;
  for_each_clash([this] {
    GrilleValide = false;
    desktop_.set_pointer(Pointer::arrow);
  });
}

void Window::Lire_Grille_Initiale(std::int16_t row0, std::int16_t column0) {
  HiddenWhileWorking hidden(MSF);
  ++grid_fills;
  for (int r = 1; r <= 9; ++r)
    for (int c = 1; c <= 9; ++c)
      Grille(r, c) = GrilleInitiale(r, c) = numeric_prefix(MSF.text(r - 1, c - 1));
  active();
  for_each_clash([&] {
    MSF.make_current(row0, column0);
    MSF.set_text_colour(colour::red);
    globals.GrilleOk = false;
    desktop_.set_pointer(Pointer::arrow);
  });
}

void Window::CreateGrille() {
  {
    HiddenWhileWorking hidden(MSF);
    for (int i = 1; i <= 9; ++i)
      for (int j = 1; j <= 9; ++j) {
        MSF.make_current(i - 1, j - 1);
        MSF.set_text_colour(colour::black);
        MSF.set_text(std::string(character(ChaineGrille, Cell{i, j}.number())));
        MSF.set_back_colour(MSF.current().text == " " ? colour::white : globals.CouleurDonnees);
      }
  }
  refresh();
  trace_ligne();
}

void Window::Afficher_resGrille() {
  {
    HiddenWhileWorking hidden(MSF);
    ChaineGrille.clear();
    for (int r = 1; r <= 9; ++r)
      for (int c = 1; c <= 9; ++c) {
        MSF.make_current(r - 1, c - 1);
        if (GrilleInitiale(r, c) == 0) MSF.set_text_colour(colour::green);
        if (Grille(r, c) == 0) continue;
        MSF.set_text(std::to_string(Grille(r, c)));
        ChaineGrille += MSF.current().text;
      }
  }
  refresh();
  trace_ligne();
  maj_indices();
}

void Window::maj_indices() {
  int filled = 0;
  for (int r = 0; r < DisplayGrid::size; ++r)
    for (int c = 0; c < DisplayGrid::size; ++c) filled += MSF.is_filled(r, c);
  forget_outdated_hint();
  show_count(filled);
  if (filled < 81) return;
  verify_valide();
  show_message(GrilleValide ? Message::completed : Message::impossible, Icon::exclamation);
  MSF.refresh();
  trace_ligne();
}

namespace {

Colour verdict(const DisplayCell& cell, std::string_view solution) {
  if (solution != cell.text) return colour::red;
  return cell.is_given() ? colour::black : colour::green;
}

}  // namespace

void Window::essai() {
  {
    HiddenWhileWorking hidden(MSF);
    for (int i = 1; i <= 9; ++i)
      for (int j = 1; j <= 9; ++j) {
        MSF.make_current(i - 1, j - 1);
        MSF.set_verdict(verdict(MSF.current(), character(ChaineSolution, Cell{i, j}.number())));
      }
  }
  MSF.refresh();
  trace_ligne();
}

}  // namespace sdk
