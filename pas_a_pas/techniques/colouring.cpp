// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Simple colouring: along the strong links of a digit two colours alternate, and exactly one of
// them holds it. A cell that sees both cannot (trap); a colour that sees itself is false (wrap).

#include "game/globals.hpp"
#include "pas_a_pas/helpers.hpp"
#include "pas_a_pas/techniques/techniques.hpp"
#include "pas_a_pas/view.hpp"

namespace sdk {

void efface_couleurs() { solver.Couleur = {}; }

void colorie(int cell, int digit) {
  for (const int linked : solver.LienFort.of(digit, cell)) {
    if (solver.Couleur(linked) != 0) continue;
    solver.Couleur.paint(linked, -solver.Couleur(cell));
    colorie(linked, digit);
  }
}

Bool16 piege_couleurs(int digit) {
  bool removed = false;
  for (const int cell : solver.Candidats.cells_with(digit) - solver.Couleur.coloured()) {
    const CellSet& seen = peers_of(cell);
    if ((seen & solver.Couleur.cells(1)).empty() || (seen & solver.Couleur.cells(-1)).empty())
      continue;
    eliminate_shown(cell_at(cell), {digit});
    removed = true;
  }
  return removed;
}

namespace {

/// Unlike the trap, the wrap gives no marks of its own: the highlight shows the colours.
void remove_colour(int colour, int digit) {
  for (const int number : solver.Couleur.cells(colour)) {
    const Cell cell = cell_at(number);
    if (globals.ModePasAPas) trace_candidat(cell.row, cell.column, digit, hook::removed);
    eliminate(cell, {digit});
  }
}

}  // namespace

Bool16 enveloppe_couleurs(int digit) {
  for (const int cell : solver.Couleur.coloured()) {
    const int colour = solver.Couleur(cell);
    if ((peers_of(cell) & solver.Couleur.cells(colour)).empty()) continue;
    remove_colour(colour, digit);
    return true;
  }
  return false;
}

void affiche_couleurs() {
  for (int number = 1; number <= 81; ++number) {
    const Cell cell = cell_at(number);
    if (solver.Candidats.value(cell) != 0) continue;
    const int colour = solver.Couleur(number);
    const int mode = colour == 1 ? mark::support : colour == -1 ? mark::second : mark::none;
    marque_case(cell.row, cell.column, mode);
  }
}

namespace {

void describe(int digit, int rule) {
  solver.step.variant = rule;
  solver.step.digits = {digit};
  solver.step.cells_as(Role::first_colour) = solver.Couleur.cells(1);
  solver.step.cells_as(Role::second_colour) = solver.Couleur.cells(-1);
}

bool applies_rules(int digit) {
  const int rule = piege_couleurs(digit) ? 1 : enveloppe_couleurs(digit) ? 2 : 0;
  if (rule == 0) return false;
  describe(digit, rule);
  if (globals.ModePasAPas) affiche_couleurs();
  return true;
}

bool fires_from(int cell, int linked, int digit) {
  solver.Couleur.paint(cell, 1);
  solver.Couleur.paint(linked, -1);
  colorie(cell, digit);
  colorie(linked, digit);
  return applies_rules(digit);
}

/// A chain on which both rules failed has only one colouring, up to which colour is which: had it
/// two cells of one colour linked, the wrap would have applied. So its other links would fail as
/// well, and each chain is tried from its first link only.
bool fires_for(int digit) {
  efface_couleurs();
  CellSet tried;
  for (int cell = 1; cell <= 81; ++cell) {
    const CellSet& links = solver.LienFort.of(digit, cell);
    if (links.empty() || tried.contains(cell)) continue;
    const bool fired = fires_from(cell, *links.begin(), digit);
    tried = tried | solver.Couleur.coloured();
    efface_couleurs();
    if (fired) return true;
  }
  return false;
}

}  // namespace

Bool16 coloriage() {
  for (int digit = 1; digit <= 9; ++digit)
    if (fires_for(digit)) return true;
  return false;
}

}  // namespace sdk
