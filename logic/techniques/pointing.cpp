// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Pointing: a digit that a box has on one line only cannot stand elsewhere on that line.

#include <utility>

#include "logic/draft.hpp"
#include "logic/techniques/finders.hpp"

namespace sdk {

namespace {

/// All of the box's candidates of the digit lie on the line, and the line has more of them.
bool points_along(const Position& position, Unit box, Unit line, int digit) {
  const int inside = digit_count_in_box(position, line, box.number, digit);
  return inside > 0 && inside == digit_count(position, box, digit) &&
         digit_count(position, line, digit) > inside;
}

void show_row(Draft& draft, const Position& position, Unit box, Unit row, int digit) {
  for (const int column : position.candidates.places(row, digit)) {
    const Cell cell = row.cell(column);
    if (box.contains(cell))
      draft.support(cell, Role::pattern, {digit});
    else
      draft.eliminate_shown(cell, {digit});
  }
}

// Unlike a row, a column is cleared without any mark, so that a hint does not show this step.
void clear_column(Draft& draft, const Position& position, Unit box, Unit column, int digit) {
  draft.clear_column_outside_box(digit, column.number, box.number);
  for (const int row :
       position.candidates.places(column, digit) & places_in_box(UnitKind::column, box.number))
    draft.deduction.cells_as(Role::pattern).insert(column.cell(row));
}

Deduction deduce(const Position& position, Unit box, Unit line, int digit) {
  Draft draft(position);
  draft.deduction.unit = box;
  draft.deduction.other_unit = line;
  draft.deduction.digits = {digit};
  draft.rest_on(box, digit);
  if (line.kind == UnitKind::row)
    show_row(draft, position, box, line, digit);
  else
    clear_column(draft, position, box, line, digit);
  return std::move(draft).finished();
}

std::optional<Deduction> find_from(const Position& position, Unit box, int digit, UnitKind kind) {
  const int first = first_line(kind, box.number);
  for (int number = first; number <= first + 2; ++number) {
    const Unit line{kind, number};
    if (points_along(position, box, line, digit)) return deduce(position, box, line, digit);
  }
  return std::nullopt;
}

std::optional<Deduction> find(const Position& position, UnitKind kind) {
  for (int box = 1; box <= 9; ++box)
    for (int digit = 1; digit <= 9; ++digit)
      if (auto found = find_from(position, {UnitKind::box, box}, digit, kind)) return found;
  return std::nullopt;
}

}  // namespace

std::optional<Deduction> find_pointing_rows(const Position& position) {
  return find(position, UnitKind::row);
}

std::optional<Deduction> find_pointing_columns(const Position& position) {
  return find(position, UnitKind::column);
}

}  // namespace sdk
