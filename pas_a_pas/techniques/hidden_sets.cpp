// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Hidden triples and quads: n digits with only n places in a unit leave no room there for others.

#include <algorithm>

#include "pas_a_pas/helpers.hpp"
#include "pas_a_pas/techniques/combinations.hpp"
#include "pas_a_pas/techniques/techniques.hpp"
#include "pas_a_pas/view.hpp"

namespace sdk {

namespace {

/// Where the digits can go in the unit; none when one of them has no place at all.
NineSet places_of_all(Unit unit, NineSet digits) {
  NineSet places;
  for (const int digit : digits) {
    const NineSet own = solver.Candidats.places(unit, digit);
    if (own.empty()) return {};
    places = places | own;
  }
  return places;
}

bool hold_others(Unit unit, NineSet places, NineSet digits) {
  for (const int place : places)
    if (!digits.contains_all(solver.Candidats.digits(unit.cell(place)))) return true;
  return false;
}

// As with the hidden pair, the cells are only ever marked as support.
void empty_of_others(Unit unit, NineSet places, NineSet digits) {
  solver.step.unit = unit;
  solver.step.digits = digits;
  for (const int place : places) {
    support(unit.cell(place), Role::pattern, digits);
    eliminate(unit.cell(place), NineSet::all() - digits);
  }
  maj_candidats();
}

// The unit's total of candidates falls exactly when a digit is removed; a pattern that removes
// nothing is passed over and leaves every mark as it was.
bool fires_in(Unit unit, int size) {
  for (const NineSet digits : combinations(size)) {
    const NineSet places = places_of_all(unit, digits);
    if (places.count() != size || !hold_others(unit, places, digits)) continue;
    empty_of_others(unit, places, digits);
    return true;
  }
  return false;
}

bool fires(int size) {
  return std::ranges::any_of(all_units, [size](Unit unit) { return fires_in(unit, size); });
}

}  // namespace

Bool16 hidden_triples() { return fires(3); }

// Unlike the triples, the quads keep track of `SuggestionTrouvee`; that is meant.
Bool16 hidden_quads() { return solver.SuggestionTrouvee = fires(4); }

}  // namespace sdk
