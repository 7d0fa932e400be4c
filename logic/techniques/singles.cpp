// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Naked and hidden singles: the two techniques that place a digit.

#include <utility>

#include "logic/draft.hpp"
#include "logic/techniques/finders.hpp"

namespace sdk {

namespace {

Draft begin_draft(const Position& position, Cell cell, int digit) {
  Draft draft(position);
  draft.deduction.digits = {digit};
  draft.deduction.placement = Placement{cell, digit};
  draft.support(cell, Role::pattern, {});
  return draft;
}

Deduction place_in_unit(const Position& position, Cell cell, int digit, Unit unit) {
  Draft draft = begin_draft(position, cell, digit);
  draft.deduction.unit = unit;
  draft.rest_on(unit, digit);
  return std::move(draft).finished();
}

std::optional<Deduction> find_only_place(const Position& position, UnitKind kind) {
  for (int digit = 1; digit <= 9; ++digit)
    for (int number = 1; number <= 9; ++number) {
      const Unit unit{kind, number};
      const NineSet places = position.candidates.places(unit, digit);
      if (places.count() == 1)
        return place_in_unit(position, unit.cell(places.first()), digit, unit);
    }
  return std::nullopt;
}

}  // namespace

std::optional<Deduction> find_naked_single(const Position& position) {
  const CellSet cells = position.candidates.cells_counting(1);
  if (cells.empty()) return std::nullopt;
  const Cell cell = cell_at(*cells.begin());
  Draft draft = begin_draft(position, cell, nth_candidate(position, cell, 1));
  draft.rest_on(cell);
  return std::move(draft).finished();
}

std::optional<Deduction> find_hidden_single(const Position& position) {
  for (const UnitKind kind : {UnitKind::row, UnitKind::column, UnitKind::box})
    if (auto found = find_only_place(position, kind)) return found;
  return std::nullopt;
}

}  // namespace sdk
