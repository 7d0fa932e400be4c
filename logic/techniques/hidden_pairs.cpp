// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Hidden pairs: two digits with the same two places in a unit leave no room there for others.

#include <utility>

#include "logic/draft.hpp"
#include "logic/techniques/finders.hpp"
#include "logic/techniques/scans.hpp"

namespace sdk {

namespace {

/// Leaves the cell nothing but `digits`, and recomputes.
void reduce(Position& position, Cell cell, NineSet digits) {
  for (const int digit : position.candidates.digits(cell) - digits)
    position.candidates.remove(cell, digit);
  recompute(position);
}

bool holds_more(const Position& position, Cell cell) {
  return position.candidates.count(cell) >= 3;
}

// Three things differ from the naked pair: the cells are only ever marked as support, the
// candidates are recomputed after each cell, and what counts as success is that the unit's total of
// candidates fell. So a cell that holds nothing but the pair is neither marked nor counted.
std::optional<Deduction> find_in_pair_cells(const Position& position, Unit unit, NineSet places,
                                            NineSet digits) {
  Draft draft(position);
  draft.deduction.unit = unit;
  draft.deduction.digits = digits;
  for (const int digit : digits) draft.rest_on(unit, digit);
  Position after = position;
  for (const int place : places) {
    const Cell cell = unit.cell(place);
    draft.deduction.cells_as(Role::pattern).insert(cell);
    if (!holds_more(after, cell)) continue;
    draft.support(cell, Role::pattern, digits);
    draft.eliminate(cell, NineSet::all() - digits);
    reduce(after, cell, digits);
  }
  if (candidate_total(after, unit) >= candidate_total(position, unit)) return std::nullopt;
  return std::move(draft).finished();
}

std::optional<Deduction> find_of(const Position& position, Unit unit, int a, int b) {
  const NineSet places = position.candidates.places(unit, a);
  if (places.count() != 2 || places != position.candidates.places(unit, b)) return std::nullopt;
  for (const int place : places)
    if (holds_more(position, unit.cell(place)))
      return find_in_pair_cells(position, unit, places, {a, b});
  return std::nullopt;
}

std::optional<Deduction> find_in(const Position& position, Unit unit) {
  for (int a = 1; a <= 8; ++a)
    for (int b = a + 1; b <= 9; ++b)
      if (auto found = find_of(position, unit, a, b)) return found;
  return std::nullopt;
}

}  // namespace

std::optional<Deduction> find_hidden_pair(const Position& position) {
  return find_in_units([&](Unit unit) { return find_in(position, unit); });
}

}  // namespace sdk
