// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Naked triples and quads: n cells of a unit that hold only n digits share these out among
// themselves.

#include <algorithm>

#include "pas_a_pas/helpers.hpp"
#include "pas_a_pas/techniques/combinations.hpp"
#include "pas_a_pas/techniques/techniques.hpp"
#include "pas_a_pas/view.hpp"

namespace sdk {

namespace {

/// The cell holds nothing but some of the digits.
bool holds_only(Cell cell, NineSet digits) {
  const int held = (solver.Candidats.digits(cell) & digits).count();
  return held != 0 && held == solver.Candidats.count(cell);
}

/// The places of the unit's cells that could belong to a pattern of this size.
NineSet places_of_few(Unit unit, int size) {
  NineSet places;
  for (int place = 1; place <= 9; ++place) {
    const int count = solver.Candidats.count(unit.cell(place));
    if (count >= 2 && count <= size) places.insert(place);
  }
  return places;
}

int count_pattern_cells(Unit unit, NineSet few, NineSet digits) {
  int count = 0;
  for (const int place : few) count += holds_only(unit.cell(place), digits);
  return count;
}

bool removes_something(Unit unit, NineSet digits) {
  for (const int digit : digits)
    for (const int place : solver.Candidats.places(unit, digit))
      if (!holds_only(unit.cell(place), digits)) return true;
  return false;
}

void remove_from_others(Unit unit, NineSet digits) {
  solver.step.unit = unit;
  solver.step.digits = digits;
  for (int place = 1; place <= 9; ++place) {
    const Cell cell = unit.cell(place);
    if (holds_only(cell, digits))
      support(cell, Role::pattern, digits);
    else if (!(solver.Candidats.digits(cell) & digits).empty())
      eliminate_shown(cell, digits);
  }
  maj_candidats();
  solver.SuggestionTrouvee = true;
}

// The unit's total of candidates falls exactly when a digit is removed; a pattern that removes
// nothing is passed over and leaves every mark as it was.
bool fires_in(Unit unit, int size) {
  const NineSet few = places_of_few(unit, size);
  if (few.count() < size) return false;
  for (const NineSet digits : combinations(size)) {
    if (count_pattern_cells(unit, few, digits) != size) continue;
    if (!removes_something(unit, digits)) continue;
    remove_from_others(unit, digits);
    return true;
  }
  return false;
}

bool fires(int size) {
  return std::ranges::any_of(all_units, [size](Unit unit) { return fires_in(unit, size); });
}

}  // namespace

Bool16 naked_triples() { return fires(3); }

Bool16 naked_quads() {
  solver.SuggestionTrouvee = false;
  return fires(4);
}

}  // namespace sdk
