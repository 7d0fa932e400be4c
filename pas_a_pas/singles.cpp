// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "pas_a_pas/singles.hpp"

#include <string>

#include "game/window.hpp"
#include "pas_a_pas/driver.hpp"
#include "pas_a_pas/helpers.hpp"
#include "pas_a_pas/view.hpp"

namespace sdk {

namespace {

void enter(Cell cell, int digit) {
  solver.Candidats.set_value(cell, digit);
  solver.Candidats.remove(cell, digit);
}

void accept(Cell cell, int digit) {
  Window& window = sudoku();
  window.MSF.set_text(cell.row - 1, cell.column - 1, std::to_string(digit));
  window.maj_indices();
  window.trace_ligne();
  window.set_focus(Control::MSF);
  suggestion();
}

/// The unit, where one matters, has been entered before.
void describe(Single kind, Cell cell, int digit) {
  solver.step.variant = kind == Single::naked ? 1 : 2;
  solver.step.digits = {digit};
  solver.step.cells_as(Role::pattern).insert(cell);
}

void offer(Single kind, Cell cell, int digit) {
  describe(kind, cell, digit);
  marque_case(cell.row, cell.column, mark::support);
  sudoku().trace_ligne();
  if (solver.observer) solver.observer->offered(kind, cell, digit);
  const std::string question =
      text_of(kind == Single::naked ? Message::naked_single : Message::hidden_single) +
      std::to_string(cell.row) + " C" + std::to_string(cell.column) + " " + std::to_string(digit);
  const Answer answer =
      sudoku().desktop().message_box(question, Icon::none, Buttons::yes_no, globals.TitreFenetre);
  if (answer == Answer::yes) accept(cell, digit);
}

/// Places the digit where the unit has its only place for it.
bool place_in(Unit unit, int digit) {
  const NineSet places = solver.Candidats.places(unit, digit);
  if (places.count() != 1) return false;
  const Cell cell = unit.cell(places.first());
  solver.step = {};
  solver.step.unit = unit;
  place_singleton_cache(cell.row, cell.column, digit);
  return true;
}

bool place_in_units(UnitKind kind) {
  for (int digit = 1; digit <= 9; ++digit)
    for (int number = 1; number <= 9; ++number)
      if (place_in({kind, number}, digit)) return true;
  return false;
}

}  // namespace

Bool16 singleton_nu() {
  for (int row = 1; row <= 9; ++row)
    for (int column = 1; column <= 9; ++column) {
      if (solver.Candidats.count({row, column}) != 1) continue;
      solver.step = {};
      place_singleton_nu(row, column, nieme_candidat(row, column, 1));
      return true;
    }
  return false;
}

Bool16 singleton_cache() {
  return place_in_units(UnitKind::row) || place_in_units(UnitKind::column) ||
         place_in_units(UnitKind::box);
}

void place_singleton_nu(int row, int column, int digit) {
  enter({row, column}, digit);
  if (globals.ModePasAPas) offer(Single::naked, {row, column}, digit);
}

// Unlike a naked single, a hidden one is marked and offered whether or not a hint was asked for;
// that is meant.
void place_singleton_cache(int row, int column, int digit) {
  enter({row, column}, digit);
  offer(Single::hidden, {row, column}, digit);
}

}  // namespace sdk
