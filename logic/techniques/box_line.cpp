// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Box/line reduction: a digit that a line has in one box only cannot stand elsewhere in that box.

#include <utility>

#include "logic/draft.hpp"
#include "logic/techniques/finders.hpp"

namespace sdk {

namespace {

/// All of the line's candidates of the digit lie in the box, and the box has more of them.
bool is_confined(const Position& position, Unit line, Unit box, int digit) {
  const int inside = digit_count_in_box(position, line, box.number, digit);
  return inside != 0 && inside == digit_count(position, line, digit) &&
         inside < digit_count(position, box, digit);
}

Deduction deduce(const Position& position, Unit line, Unit box, int digit) {
  Draft draft(position);
  draft.deduction.unit = line;
  draft.deduction.other_unit = box;
  draft.deduction.digits = {digit};
  draft.rest_on(line, digit);
  for (const int place : position.candidates.places(box, digit)) {
    const Cell cell = box.cell(place);
    if (line.contains(cell))
      draft.support(cell, Role::pattern, {digit});
    else
      draft.eliminate_shown(cell, {digit});
  }
  return std::move(draft).finished();
}

std::optional<Deduction> find_in(const Position& position, UnitKind kind, Unit box, int digit) {
  const int first = first_line(kind, box.number);
  for (int number = first; number <= first + 2; ++number) {
    const Unit line{kind, number};
    if (is_confined(position, line, box, digit)) return deduce(position, line, box, digit);
  }
  return std::nullopt;
}

std::optional<Deduction> find(const Position& position, UnitKind kind) {
  for (int box = 1; box <= 9; ++box)
    for (int digit = 1; digit <= 9; ++digit)
      if (auto found = find_in(position, kind, {UnitKind::box, box}, digit)) return found;
  return std::nullopt;
}

}  // namespace

std::optional<Deduction> find_box_line_rows(const Position& position) {
  return find(position, UnitKind::row);
}

std::optional<Deduction> find_box_line_columns(const Position& position) {
  return find(position, UnitKind::column);
}

}  // namespace sdk
