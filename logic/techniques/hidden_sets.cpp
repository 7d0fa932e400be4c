// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Hidden triples and quads: n digits with only n places in a unit leave no room there for others.

#include <utility>

#include "logic/draft.hpp"
#include "logic/techniques/combinations.hpp"
#include "logic/techniques/finders.hpp"
#include "logic/techniques/scans.hpp"

namespace sdk {

namespace {

/// Where the digits can go in the unit; none when one of them has no place at all.
NineSet places_of_all(const Position& position, Unit unit, NineSet digits) {
  NineSet places;
  for (const int digit : digits) {
    const NineSet own = position.candidates.places(unit, digit);
    if (own.empty()) return {};
    places |= own;
  }
  return places;
}

bool hold_others(const Position& position, Unit unit, NineSet places, NineSet digits) {
  for (const int place : places)
    if (!digits.contains_all(position.candidates.digits(unit.cell(place)))) return true;
  return false;
}

// As with the hidden pair, the cells are only ever marked as support.
Deduction deduce(const Position& position, Unit unit, NineSet places, NineSet digits) {
  Draft draft(position);
  draft.deduction.unit = unit;
  draft.deduction.digits = digits;
  for (const int digit : digits) draft.rest_on(unit, digit);
  for (const int place : places) {
    draft.support(unit.cell(place), Role::pattern, digits);
    draft.eliminate(unit.cell(place), NineSet::all() - digits);
  }
  return std::move(draft).finished();
}

/// The digits that have a few places in the unit, as a member of a pattern has.
NineSet digits_of_few_places(const Position& position, Unit unit, int size) {
  NineSet digits;
  for (int digit = 1; digit <= 9; ++digit) {
    const int places = digit_count(position, unit, digit);
    if (places >= 1 && places <= size) digits.insert(digit);
  }
  return digits;
}

// The unit's total of candidates falls exactly when a digit is removed, so a pattern that removes
// nothing is passed over.
std::optional<Deduction> find_in(const Position& position, Unit unit, int size) {
  const NineSet few = digits_of_few_places(position, unit, size);
  if (few.count() < size) return std::nullopt;
  for (const NineSet digits : combinations(size)) {
    if (!few.contains_all(digits)) continue;
    const NineSet places = places_of_all(position, unit, digits);
    if (places.count() == size && hold_others(position, unit, places, digits))
      return deduce(position, unit, places, digits);
  }
  return std::nullopt;
}

std::optional<Deduction> find(const Position& position, int size) {
  return find_in_units([&](Unit unit) { return find_in(position, unit, size); });
}

}  // namespace

std::optional<Deduction> find_hidden_triple(const Position& position) { return find(position, 3); }

std::optional<Deduction> find_hidden_quad(const Position& position) { return find(position, 4); }

}  // namespace sdk
