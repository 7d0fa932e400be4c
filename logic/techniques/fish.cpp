// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Swordfish and jellyfish: a digit whose places on n base lines all lie on n cover lines takes one
// place of the pattern on each of these, so it stands nowhere else on them.

#include "logic/techniques/fish.hpp"

#include <utility>

#include "logic/draft.hpp"
#include "logic/techniques/combinations.hpp"
#include "logic/techniques/finders.hpp"

namespace sdk {

namespace {

void show_crossings(Draft& draft, const Position& position, const Fish& fish) {
  for (const int line : fish.base_lines)
    for (const int cover : fish.cover_lines) {
      const Cell cell = fish.crossing_at(line, cover);
      if (position.candidates.has(cell, fish.digit))
        draft.support(cell, Role::pattern, {fish.digit});
    }
}

void clear_covers(Draft& draft, const Position& position, const Fish& fish) {
  for (const int line : NineSet::all() - fish.base_lines)
    for (const int cover : fish.cover_lines) {
      const Cell cell = fish.crossing_at(line, cover);
      if (position.candidates.has(cell, fish.digit)) draft.eliminate_shown(cell, {fish.digit});
    }
}

}  // namespace

Deduction deduce_from(const Position& position, const Fish& fish) {
  Draft draft(position);
  draft.deduction.unit = {fish.base, fish.base_lines.first()};
  draft.deduction.digits = {fish.digit};
  for (const int line : fish.base_lines) draft.rest_on({fish.base, line}, fish.digit);
  show_crossings(draft, position, fish);
  clear_covers(draft, position, fish);
  return std::move(draft).finished();
}

namespace {

/// The places of the digit on the lines together; none when a line has no place or more than
/// `most`.
NineSet places_on(const Position& position, UnitKind kind, NineSet lines, int digit, int most) {
  NineSet places;
  for (const int line : lines) {
    const NineSet own = position.candidates.places({kind, line}, digit);
    if (own.empty() || own.count() > most) return {};
    places |= own;
  }
  return places;
}

bool removes_something(const Position& position, const Fish& fish) {
  for (const int cover : fish.cover_lines) {
    const NineSet places = position.candidates.places({crossing(fish.base), cover}, fish.digit);
    if (!fish.base_lines.contains_all(places)) return true;
  }
  return false;
}

std::optional<Deduction> find_on(const Position& position, UnitKind base, NineSet base_lines,
                                 int digit) {
  const int size = base_lines.count();
  const NineSet places = places_on(position, base, base_lines, digit, size);
  if (places.empty() || places.count() > size) return std::nullopt;
  for (const NineSet cover_lines : combinations(size)) {
    const Fish fish{base, base_lines, cover_lines, digit};
    if (cover_lines.contains_all(places) && removes_something(position, fish))
      return deduce_from(position, fish);
  }
  return std::nullopt;
}

std::optional<Deduction> find_of(const Position& position, UnitKind base, int digit, int size) {
  for (const NineSet base_lines : combinations(size))
    if (auto found = find_on(position, base, base_lines, digit)) return found;
  return std::nullopt;
}

std::optional<Deduction> find(const Position& position, int size) {
  for (int digit = 1; digit <= 9; ++digit)
    for (const UnitKind base : {UnitKind::row, UnitKind::column})
      if (auto found = find_of(position, base, digit, size)) return found;
  return std::nullopt;
}

}  // namespace

std::optional<Deduction> find_swordfish(const Position& position) { return find(position, 3); }

std::optional<Deduction> find_jellyfish(const Position& position) { return find(position, 4); }

}  // namespace sdk
