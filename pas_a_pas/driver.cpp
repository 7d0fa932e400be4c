// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "pas_a_pas/driver.hpp"

#include <optional>
#include <utility>

#include "board/grid_text.hpp"
#include "game/window.hpp"
#include "pas_a_pas/helpers.hpp"
#include "pas_a_pas/order.hpp"
#include "pas_a_pas/singles.hpp"
#include "pas_a_pas/view.hpp"

namespace sdk {

void init_candidats() {
  efface_candidats();
  solver.Candidats.reset();
  solver.Paires = {};
  for (int row = 1; row <= 9; ++row)
    for (int column = 1; column <= 9; ++column) {
      const int value = numeric_prefix(sudoku().MSF.text(row - 1, column - 1));
      solver.GrilleDepart(row, column) = static_cast<std::uint8_t>(value);
      if (value != 0) solver.Candidats.fill({row, column}, value);
    }
}

Bool16 grille_finie() {
  for (int number = 1; number <= 81; ++number)
    if (solver.Candidats.value(cell_at(number)) == 0) return false;
  affiche_candidats();
  solver.GrilleFinie = true;
  return true;
}

namespace {

/// The first empty cell, row by row, that counts no candidate.
std::optional<Cell> dead_cell() {
  for (int number = 1; number <= 81; ++number) {
    const Cell cell = cell_at(number);
    if (solver.Candidats.count(cell) == 0 && solver.Candidats.value(cell) == 0) return cell;
  }
  return std::nullopt;
}

}  // namespace

Bool16 case_morte() {
  const std::optional<Cell> dead = dead_cell();
  if (!dead) return false;
  solver.step = {};
  solver.step.cells_as(Role::pattern).insert(*dead);
  if (!solver.SansMarqueMorte) {
    marque_case(dead->row, dead->column, mark::removed);
    affiche_candidats();
  }
  return true;
}

namespace {

void tell_end(RunEnd end) {
  if (solver.observer) solver.observer->ended(end);
}

/// Tries one technique; tells whether the driver is to start the next round.
bool fires(const Technique& technique) {
  solver.step = {};
  solver.step.place = technique.place;
  if (solver.observer) solver.observer->trying(technique);
  const bool changed = technique.procedure();
  if (solver.observer) solver.observer->tried(technique, changed);
  return changed;
}

bool some_technique_fires() {
  for (const Technique& technique : technique_order)
    if (fires(technique)) return true;
  return false;
}

void end_completed() {
  tell_end(RunEnd::completed);
  sudoku().show_message(Message::completed, Icon::exclamation);
  sudoku().MSF.refresh();
  sudoku().trace_ligne();
}

void end_exhausted() {
  Window& window = sudoku();
  affiche_candidats();
  window.trace_ligne();
  window.set_focus(Control::MSF);
  window.Lire_Grille_Initiale(0, 0);
  tell_end(RunEnd::exhausted);
  window.show_message(Message::no_suggestion, Icon::exclamation);
  window.trace_ligne();
  window.set_focus(Control::MSF);
}

void recompute() {
  maj_candidats();
  if (solver.observer) solver.observer->recomputed();
}

/// One round up to the techniques that only remove candidates; tells whether the run is over.
bool ends_before_techniques() {
  recompute();
  if (grille_finie()) {
    end_completed();
    return true;
  }
  if (case_morte()) {
    tell_end(RunEnd::dead);
    return true;
  }
  if (globals.ModePasAPas) affiche_candidats();
  return singleton_nu() || singleton_cache();
}

void run() {
  init_candidats();
  while (!ends_before_techniques())
    if (!some_technique_fires()) return end_exhausted();
}

/// suggestion is at work for as long as this lives; a run that is left by an exception leaves
/// nothing to be done.
class AtWork {
 public:
  AtWork() { solver.running = true; }
  ~AtWork() { solver.running = solver.run_wanted = false; }
  AtWork(const AtWork&) = delete;
  AtWork& operator=(const AtWork&) = delete;
};

}  // namespace

std::int16_t suggestion() {
  solver.run_wanted = true;
  if (solver.running) return 0;
  const AtWork at_work;
  while (std::exchange(solver.run_wanted, false)) run();
  return 0;
}

}  // namespace sdk
