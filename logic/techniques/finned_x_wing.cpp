// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Finned X-wing: an X-wing with extra places, the fins, on its base lines. A cell of a cover line
// in whose box all fins lie loses the digit: either a fin is true and sees it, or the X-wing holds.
// One corner may be missing.

#include "logic/techniques/finned_x_wing.hpp"

#include <utility>

#include "logic/draft.hpp"
#include "logic/techniques/finders.hpp"

namespace sdk {

namespace {

/// The places of the digit on a base line outside the cover lines.
NineSet fins_on(const Position& position, const FinnedWing& wing, std::size_t line) {
  return position.candidates.places(wing.base_line(line), wing.digit) -
         NineSet{wing.cover_lines[0], wing.cover_lines[1]};
}

bool has_fins(const Position& position, const FinnedWing& wing) {
  return !fins_on(position, wing, 0).empty() || !fins_on(position, wing, 1).empty();
}

/// The target sees every place of the digit on the base line.
bool sees_whole_line(const Position& position, const FinnedWing& wing, std::size_t line,
                     Cell target) {
  return (cells_with(position, wing.base_line(line), wing.digit) - peers_of(target)).empty();
}

/// The deduction rests on both base lines, or on one that a missing corner leaves to the target's
/// sight alone.
void rest_on_needed(Draft& draft, const Position& position, const FinnedWing& wing, Cell target) {
  for (const std::size_t line : {0u, 1u})
    if (sees_whole_line(position, wing, line, target))
      return draft.rest_on(wing.base_line(line), wing.digit);
  for (const std::size_t line : {0u, 1u}) draft.rest_on(wing.base_line(line), wing.digit);
}

void show_fins(Draft& draft, const Position& position, const FinnedWing& wing) {
  for (const std::size_t line : {0u, 1u})
    for (const int place : fins_on(position, wing, line)) {
      const Cell fin = wing.base_line(line).cell(place);
      if (draft.digits_left(fin).contains(wing.digit))
        draft.support(fin, Role::fin, {wing.digit}, Mark::second);
    }
}

}  // namespace

Deduction deduce_from(const Position& position, const FinnedWing& wing, Cell target) {
  Draft draft(position);
  draft.deduction.rule = has_fins(position, wing) ? Rule::with_fin : Rule::without_fin;
  draft.deduction.unit = wing.base_line(0);
  draft.deduction.other_unit = wing.base_line(1);
  draft.deduction.digits = {wing.digit};
  rest_on_needed(draft, position, wing, target);
  for (const std::size_t line : {0u, 1u})
    for (const std::size_t cover : {0u, 1u})
      draft.support(wing.corner(line, cover), Role::pattern, {wing.digit});
  draft.eliminate_shown(target, {wing.digit});
  show_fins(draft, position, wing);
  return std::move(draft).finished();
}

namespace {

/// The boxes that the fins lie in.
NineSet fin_boxes(const Position& position, const FinnedWing& wing) {
  NineSet boxes;
  for (const std::size_t line : {0u, 1u})
    for (const int place : fins_on(position, wing, line))
      boxes.insert(wing.base_line(line).cell(place).box());
  return boxes;
}

/// The first target on one of the cover lines.
std::optional<Deduction> find_on_cover(const Position& position, const FinnedWing& wing,
                                       std::size_t cover, NineSet boxes) {
  const Unit cover_line = wing.cover_line(cover);
  const NineSet places = position.candidates.places(cover_line, wing.digit);
  if (places.count() < 2) return std::nullopt;
  for (const int place : places - NineSet{wing.base_lines[0], wing.base_lines[1]}) {
    const Cell target = cover_line.cell(place);
    if (NineSet{target.box()}.contains_all(boxes)) return deduce_from(position, wing, target);
  }
  return std::nullopt;
}

std::optional<Deduction> find_with(const Position& position, const FinnedWing& wing) {
  const NineSet boxes = fin_boxes(position, wing);
  if (boxes.count() > 1) return std::nullopt;
  if (auto found = find_on_cover(position, wing, 0, boxes)) return found;
  return find_on_cover(position, wing, 1, boxes);
}

/// Three corners hold the digit at least, so each cover line meets it on one of the base lines.
std::optional<Deduction> find_between(const Position& position, UnitKind base, int digit, int line1,
                                      int line2) {
  const NineSet places1 = position.candidates.places({base, line1}, digit);
  const NineSet places2 = position.candidates.places({base, line2}, digit);
  if (places1.count() < 2 || places2.count() < 2) return std::nullopt;
  for (const int cover1 : places1 | places2)
    for (const int cover2 : places1 | places2) {
      const NineSet covers{cover1, cover2};
      if (cover1 >= cover2 || (places1 & covers).count() + (places2 & covers).count() < 3) continue;
      if (auto found = find_with(position, {base, digit, {line1, line2}, {cover1, cover2}}))
        return found;
    }
  return std::nullopt;
}

std::optional<Deduction> find_on(const Position& position, UnitKind base) {
  for (int digit = 1; digit <= 9; ++digit)
    for (int line1 = 1; line1 <= 8; ++line1)
      for (int line2 = line1 + 1; line2 <= 9; ++line2)
        if (auto found = find_between(position, base, digit, line1, line2)) return found;
  return std::nullopt;
}

}  // namespace

std::optional<Deduction> find_finned_x_wing(const Position& position) {
  if (auto found = find_on(position, UnitKind::row)) return found;
  return find_on(position, UnitKind::column);
}

}  // namespace sdk
