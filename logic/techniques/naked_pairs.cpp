// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Naked pairs: two cells of a unit with the same two candidates share them out among themselves.

#include <utility>

#include "logic/draft.hpp"
#include "logic/techniques/finders.hpp"
#include "logic/techniques/scans.hpp"

namespace sdk {

namespace {

/// The places of the unit's cells whose stored count is 2.
NineSet places_of_two(const Position& position, Unit unit) {
  NineSet places;
  for (int place = 1; place <= 9; ++place)
    if (position.candidates.count(unit.cell(place)) == 2) places.insert(place);
  return places;
}

// The pair cells of a row or column are told by their places, those of a box by their content.
// There are exactly two, so both ways name the same cells and one loop serves all three scans.
Deduction deduce(const Position& position, Unit unit, NineSet pair_places, NineSet digits) {
  Draft draft(position);
  draft.deduction.unit = unit;
  draft.deduction.digits = digits;
  for (const int place : pair_places) draft.rest_on(unit.cell(place));
  for (int place = 1; place <= 9; ++place) {
    const Cell cell = unit.cell(place);
    if (pair_places.contains(place))
      draft.support(cell, Role::pattern, digits);
    else if (!(position.candidates.digits(cell) & digits).empty())
      draft.eliminate_shown(cell, digits);
  }
  return std::move(draft).finished();
}

std::optional<Deduction> find_of(const Position& position, Unit unit, NineSet twos, int a, int b) {
  const NineSet places_a = position.candidates.places(unit, a);
  const NineSet places_b = position.candidates.places(unit, b);
  const NineSet pair_places = twos & places_a & places_b;
  if (pair_places.count() != 2) return std::nullopt;
  if (places_a.count() < 3 && places_b.count() < 3) return std::nullopt;
  return deduce(position, unit, pair_places, {a, b});
}

std::optional<Deduction> find_in(const Position& position, Unit unit) {
  const NineSet twos = places_of_two(position, unit);
  if (twos.count() < 2) return std::nullopt;
  for (int a = 1; a <= 8; ++a)
    for (int b = a + 1; b <= 9; ++b)
      if (auto found = find_of(position, unit, twos, a, b)) return found;
  return std::nullopt;
}

}  // namespace

std::optional<Deduction> find_naked_pair(const Position& position) {
  return find_in_units([&](Unit unit) { return find_in(position, unit); });
}

}  // namespace sdk
