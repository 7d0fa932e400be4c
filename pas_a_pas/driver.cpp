// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "pas_a_pas/driver.hpp"

#include <utility>

#include "board/grid_text.hpp"
#include "game/window.hpp"
#include "pas_a_pas/singles.hpp"
#include "pas_a_pas/tables.hpp"
#include "pas_a_pas/techniques.hpp"
#include "pas_a_pas/view.hpp"

namespace sdk {

namespace {

Square<std::int16_t> displayed_values() {
  const DisplayGrid& grid = sudoku().MSF;
  Square<std::int16_t> values;
  for (int row = 1; row <= 9; ++row)
    for (int column = 1; column <= 9; ++column)
      values(row, column) = numeric_prefix(grid.text(row - 1, column - 1));
  return values;
}

}  // namespace

void init_candidats() {
  efface_candidats();
  Position start = open_position(displayed_values());
  Candidats = start.candidates;
  Paires = start.pairs;
  for (int row = 1; row <= 9; ++row)
    for (int column = 1; column <= 9; ++column)
      solver.GrilleDepart(row, column) = static_cast<std::uint8_t>(Candidats.value({row, column}));
}

void maj_candidats() {
  recompute(solver.position);
  show_pairs();
}

Bool16 grille_finie() {
  if (!Candidats.is_complete()) return false;
  affiche_candidats();
  solver.GrilleFinie = true;
  return true;
}

Bool16 case_morte() {
  const std::optional<Cell> dead = Candidats.dead_cell();
  if (!dead) return false;
  if (!solver.SansMarqueMorte) {
    marque_case(dead->row, dead->column, Mark::removed);
    affiche_candidats();
  }
  return true;
}

int nieme_candidat(int row, int column, int n) {
  return nth_candidate(solver.position, {row, column}, n);
}

namespace {

/// The tables become what the run found before the event.
void enter_round(const Event& event) {
  solver.position = event.before;
  show_pairs();
}

void end_completed() {
  grille_finie();
  Window& window = sudoku();
  window.tell_hint();
  window.show_message(Message::completed, Icon::exclamation);
  window.MSF.refresh();
  window.trace_ligne();
}

void show_round() {
  if (globals.ModePasAPas) affiche_candidats();
}

void end_exhausted() {
  Window& window = sudoku();
  affiche_candidats();
  window.trace_ligne();
  window.set_focus(Control::MSF);
  window.Lire_Grille_Initiale(0, 0);
  window.tell_hint();
  window.show_message(Message::no_suggestion, Icon::exclamation);
  window.trace_ligne();
  window.set_focus(Control::MSF);
}

/// Does what the techniques do that the run asked up to the event.
void lower_flags(const Event& event) {
  for (const Technique& technique : techniques) {
    lower_flag(technique);
    if (&technique == event.deduction.technique) return;
  }
}

/// What the event means to the marks, the tables and the player.
void act_on(const Event& event) {
  switch (event.kind) {
    case EventKind::removal:
      show_round();
      lower_flags(event);
      return perform(event.deduction);
    case EventKind::offer:
      show_round();
      return place(event.deduction);
    case EventKind::completed:
      return end_completed();
    case EventKind::dead:
      case_morte();
      return sudoku().tell_hint();
    case EventKind::exhausted:
      lower_flags(event);
      return end_exhausted();
  }
}

void run() {
  init_candidats();
  efface_couleurs();
  sudoku().forget_hint();  // its steps are about to go
  Run& hint = solver.hint.emplace(solver.position);
  while (!hint.is_over()) {
    const Event& event = hint.next();
    enter_round(event);
    act_on(event);
  }
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
