// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Hidden pairs: two digits with the same two places in a unit leave no room there for others.

#include <algorithm>

#include "pas_a_pas/helpers.hpp"
#include "pas_a_pas/techniques/techniques.hpp"
#include "pas_a_pas/view.hpp"

namespace sdk {

namespace {

// Three things differ from the naked pair, and are meant: the cells are only ever marked as
// support, the candidates are recomputed after each cell, and what counts as success is that the
// unit's total of candidates fell. A cell that holds nothing but the pair is neither marked nor
// counted.
bool empties_pair_cells(Unit unit, NineSet places, NineSet digits) {
  const int before = candidate_total(unit);
  for (const int place : places) {
    const Cell cell = unit.cell(place);
    solver.step.cells_as(Role::pattern).insert(cell);
    if (solver.Candidats.count(cell) < 3) continue;
    support(cell, Role::pattern, digits);
    eliminate(cell, NineSet::all() - digits);
    maj_candidats();
  }
  return candidate_total(unit) < before;
}

bool pair_fires(Unit unit, int a, int b) {
  const NineSet places = solver.Candidats.places(unit, a);
  if (places.count() != 2 || places != solver.Candidats.places(unit, b)) return false;
  solver.step.unit = unit;
  solver.step.digits = {a, b};
  solver.step.cells_as(Role::pattern) = {};
  return empties_pair_cells(unit, places, {a, b});
}

bool fires_in(Unit unit) {
  for (int a = 1; a <= 8; ++a)
    for (int b = a + 1; b <= 9; ++b)
      if (pair_fires(unit, a, b)) return true;
  return false;
}

}  // namespace

Bool16 hidden_pairs() { return std::ranges::any_of(all_units, fires_in); }

}  // namespace sdk
