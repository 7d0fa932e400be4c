// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The rule checks, and the procedures that carry a grid between the display and the integer grids.

#include <string>

#include "board/grid_text.hpp"
#include "game/window.hpp"

namespace sdk {

void Window::Extraire_Ligne_Colonne() {
  Ligne = (NumCase - 1) / 9 + 1;
  Colonne = NumCase % 9;
  if (Colonne == 0) Colonne = 9;
}

namespace {

bool clashes_in_lines(const Square<std::int16_t>& grid, int row, int column) {
  const int value = grid(row, column);
  for (int k = 1; k <= 9; ++k) {
    if (k != column && grid(row, k) == value) return true;
    if (k != row && grid(k, column) == value) return true;
  }
  return false;
}

bool clashes_in_box(const Square<std::int16_t>& grid, int row, int column) {
  const int first_row = (row - 1) / 3 * 3 + 1;
  const int first_column = (column - 1) / 3 * 3 + 1;
  for (int r = first_row; r <= first_row + 2; ++r)
    for (int c = first_column; c <= first_column + 2; ++c)
      if (r != row && c != column && grid(r, c) == grid(row, column)) return true;
  return false;
}

}  // namespace

Bool16 Window::Valide() const {
  return !clashes_in_lines(Grille, Ligne, Colonne) && !clashes_in_box(Grille, Ligne, Colonne);
}

bool Window::clashes(int row, int column) {
  Ligne = static_cast<std::int16_t>(row);
  Colonne = static_cast<std::int16_t>(column);
  return !Valide();
}

void Window::verify_valide() {
  GrilleValide = true;
  for (int r = 1; r <= 9; ++r)
    for (int c = 1; c <= 9; ++c) {
      if (Grille(r, c) == 0 || !clashes(r, c)) continue;
      GrilleValide = false;
      desktop_.set_pointer(Pointer::arrow);
    }
}

void Window::Lire_Grille_Initiale(std::int16_t row0, std::int16_t column0) {
  HiddenWhileWorking hidden(MSF);
  ++grid_fills;
  for (int r = 1; r <= 9; ++r)
    for (int c = 1; c <= 9; ++c)
      Grille(r, c) = GrilleInitiale(r, c) = numeric_prefix(MSF.text(r - 1, c - 1));
  active();
  for (int r = 1; r <= 9; ++r)
    for (int c = 1; c <= 9; ++c) {
      if (Grille(r, c) == 0 || !clashes(r, c)) continue;
      MSF.make_current(row0, column0);
      MSF.set_text_colour(colour::red);
      globals.GrilleOk = false;
      desktop_.set_pointer(Pointer::arrow);
    }
}

void Window::CreateGrille() {
  {
    HiddenWhileWorking hidden(MSF);
    for (int i = 1; i <= 9; ++i)
      for (int j = 1; j <= 9; ++j) {
        MSF.make_current(i - 1, j - 1);
        MSF.set_text_colour(colour::black);
        MSF.set_text(std::string(character(ChaineGrille, (i - 1) * 9 + j)));
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
  show_count(filled);
  if (filled < 81) return;
  verify_valide();
  show_message(GrilleValide ? 14 : 13, Icon::exclamation);
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
        MSF.set_text_colour(verdict(MSF.current(), character(ChaineSolution, (i - 1) * 9 + j)));
      }
  }
  MSF.refresh();
  trace_ligne();
}

}  // namespace sdk
