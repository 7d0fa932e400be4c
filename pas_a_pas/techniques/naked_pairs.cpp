// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Naked pairs: two cells of a unit with the same two candidates share them out among themselves.

#include <algorithm>

#include "pas_a_pas/helpers.hpp"
#include "pas_a_pas/techniques/techniques.hpp"
#include "pas_a_pas/view.hpp"

namespace sdk {

namespace {

/// The places of the unit's cells whose stored count is 2.
NineSet places_of_two(Unit unit) {
  NineSet places;
  for (int place = 1; place <= 9; ++place)
    if (solver.Candidats.count(unit.cell(place)) == 2) places.insert(place);
  return places;
}

// The pair cells of a row or column are told by their places, those of a box by their content.
// There are exactly two, so both ways name the same cells and one loop serves all three scans.
void remove_from_others(Unit unit, NineSet pair_places, NineSet digits) {
  solver.step.unit = unit;
  solver.step.digits = digits;
  for (int place = 1; place <= 9; ++place) {
    const Cell cell = unit.cell(place);
    if (pair_places.contains(place))
      support(cell, Role::pattern, digits);
    else if (!(solver.Candidats.digits(cell) & digits).empty())
      eliminate_shown(cell, digits);
  }
}

bool pair_fires(Unit unit, NineSet twos, int a, int b) {
  const NineSet places_a = solver.Candidats.places(unit, a);
  const NineSet places_b = solver.Candidats.places(unit, b);
  const NineSet pair_places = twos & places_a & places_b;
  if (pair_places.count() != 2) return false;
  if (places_a.count() < 3 && places_b.count() < 3) return false;
  remove_from_others(unit, pair_places, {a, b});
  return true;
}

bool fires_in(Unit unit) {
  const NineSet twos = places_of_two(unit);
  if (twos.count() < 2) return false;
  for (int a = 1; a <= 8; ++a)
    for (int b = a + 1; b <= 9; ++b)
      if (pair_fires(unit, twos, a, b)) return true;
  return false;
}

}  // namespace

Bool16 naked_pairs() { return std::ranges::any_of(all_units, fires_in); }

}  // namespace sdk
