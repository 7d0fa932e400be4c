// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Box/line reduction: a digit that a line has in one box only cannot stand elsewhere in that box.

#include "pas_a_pas/helpers.hpp"
#include "pas_a_pas/techniques/techniques.hpp"
#include "pas_a_pas/view.hpp"

namespace sdk {

namespace {

/// All of the line's candidates of the digit lie in the box, and the box has more of them.
bool is_confined(Unit line, Unit box, int digit) {
  const int inside = digit_count_in_box(line, box.number, digit);
  return inside != 0 && inside == digit_count(line, digit) && inside < digit_count(box, digit);
}

void reduce(Unit line, Unit box, int digit) {
  solver.step.unit = line;
  solver.step.other_unit = box;
  solver.step.digits = {digit};
  for (const int place : solver.Candidats.places(box, digit)) {
    const Cell cell = box.cell(place);
    if (line.contains(cell))
      support(cell, Role::pattern, {digit});
    else
      eliminate_shown(cell, {digit});
  }
}

bool reduces(UnitKind kind, Unit box, int digit) {
  const int first = first_line(kind, box.number);
  for (int number = first; number <= first + 2; ++number) {
    if (!is_confined({kind, number}, box, digit)) continue;
    reduce({kind, number}, box, digit);
    return true;
  }
  return false;
}

bool reduces(UnitKind kind) {
  for (int box = 1; box <= 9; ++box)
    for (int digit = 1; digit <= 9; ++digit)
      if (reduces(kind, {UnitKind::box, box}, digit)) return true;
  return false;
}

}  // namespace

Bool16 box_line_rows() { return reduces(UnitKind::row); }

Bool16 box_line_columns() { return reduces(UnitKind::column); }

}  // namespace sdk
