// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Pointing: a digit that a box has on one line only cannot stand elsewhere on that line.

#include "pas_a_pas/helpers.hpp"
#include "pas_a_pas/techniques/techniques.hpp"
#include "pas_a_pas/view.hpp"

namespace sdk {

namespace {

/// All of the box's candidates of the digit lie on the line, and the line has more of them.
bool points_along(Unit box, Unit line, int digit) {
  const int inside = digit_count_in_box(line, box.number, digit);
  return inside > 0 && inside == digit_count(box, digit) && digit_count(line, digit) > inside;
}

using Removal = void (*)(Unit box, Unit line, int digit);

bool points_from(Unit box, int digit, UnitKind kind, Removal remove) {
  const int first = first_line(kind, box.number);
  for (int number = first; number <= first + 2; ++number) {
    const Unit line{kind, number};
    if (!points_along(box, line, digit)) continue;
    solver.step.unit = box;
    solver.step.other_unit = line;
    solver.step.digits = {digit};
    remove(box, line, digit);
    return true;
  }
  return false;
}

bool points(UnitKind kind, Removal remove) {
  for (int box = 1; box <= 9; ++box)
    for (int digit = 1; digit <= 9; ++digit)
      if (points_from({UnitKind::box, box}, digit, kind, remove)) return true;
  return false;
}

void remove_along_row(Unit box, Unit row, int digit) {
  for (const int column : solver.Candidats.places(row, digit)) {
    const Cell cell = row.cell(column);
    if (box.contains(cell))
      support(cell, Role::pattern, {digit});
    else
      eliminate_shown(cell, {digit});
  }
}

// Unlike the rows, columns are cleared without any mark, even in a hint run; that is meant.
void remove_along_column(Unit box, Unit column, int digit) {
  clear_column_outside_box(digit, column.number, box.number);
  for (const int row : solver.Candidats.places(column, digit))
    solver.step.cells_as(Role::pattern).insert(column.cell(row));
}

}  // namespace

Bool16 pointing_rows() { return points(UnitKind::row, remove_along_row); }

Bool16 pointing_columns() { return points(UnitKind::column, remove_along_column); }

}  // namespace sdk
