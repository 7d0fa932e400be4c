// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// X-wing: a digit with the same two places in two lines takes two opposite corners of that
// rectangle, so it stands nowhere else on the two lines that cross them.

#include <utility>

#include "logic/draft.hpp"
#include "logic/techniques/finders.hpp"

namespace sdk {

namespace {

/// The two base lines, and the places of the digit on both.
struct Wing {
  Unit base1, base2;
  NineSet places;
  int digit;

  Unit cover(int place) const { return {crossing(base1.kind), place}; }
};

bool removes_something(const Position& position, const Wing& wing) {
  for (const int place : wing.places)
    if (digit_count(position, wing.cover(place), wing.digit) >= 3) return true;
  return false;
}

void clear_covers(Draft& draft, const Position& position, const Wing& wing) {
  for (const int line : NineSet::all() - NineSet{wing.base1.number, wing.base2.number})
    for (const int place : wing.places) {
      const Cell cell = wing.cover(place).cell(line);
      if (position.candidates.has(cell, wing.digit)) draft.eliminate_shown(cell, {wing.digit});
    }
}

Deduction deduce(const Position& position, const Wing& wing) {
  Draft draft(position);
  draft.deduction.unit = wing.base1;
  draft.deduction.other_unit = wing.base2;
  draft.deduction.digits = {wing.digit};
  for (const int place : wing.places)
    for (const Unit base : {wing.base1, wing.base2})
      draft.support(base.cell(place), Role::pattern, {wing.digit});
  for (const Unit base : {wing.base1, wing.base2}) draft.rest_on(base, wing.digit);
  clear_covers(draft, position, wing);
  return std::move(draft).finished();
}

std::optional<Deduction> find_between(const Position& position, Unit base1, Unit base2, int digit) {
  const NineSet places = position.candidates.places(base1, digit);
  if (places.count() != 2 || places != position.candidates.places(base2, digit))
    return std::nullopt;
  const Wing wing{base1, base2, places, digit};
  if (!removes_something(position, wing)) return std::nullopt;
  return deduce(position, wing);
}

std::optional<Deduction> find_on(const Position& position, UnitKind base) {
  for (int digit = 1; digit <= 9; ++digit)
    for (int line1 = 1; line1 <= 8; ++line1)
      for (int line2 = line1 + 1; line2 <= 9; ++line2)
        if (auto found = find_between(position, {base, line1}, {base, line2}, digit)) return found;
  return std::nullopt;
}

}  // namespace

std::optional<Deduction> find_x_wing(const Position& position) {
  if (auto found = find_on(position, UnitKind::row)) return found;
  return find_on(position, UnitKind::column);
}

}  // namespace sdk
