// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "pas_a_pas/helpers.hpp"

#include <string>

#include "game/window.hpp"

namespace sdk {

int digit_count(Unit unit, int digit) { return solver.Candidats.places(unit, digit).count(); }

int digit_count_in_box(Unit line, int box, int digit) {
  return (solver.Candidats.places(line, digit) & places_in_box(line.kind, box)).count();
}

int candidate_total(Unit unit) {
  int total = 0;
  for (int place = 1; place <= 9; ++place) total += solver.Candidats.count(unit.cell(place));
  return total;
}

int candidate_count(int row, int column) { return solver.Candidats.digits({row, column}).count(); }

int nieme_candidat(int row, int column, int n) {
  for (const int digit : solver.Candidats.digits({row, column}))
    if (--n == 0) return digit;
  return 0;
}

void eliminate(Cell cell, NineSet digits) {
  for (const int digit : digits& solver.Candidats.digits(cell)) {
    solver.Candidats.remove(cell, digit);
    solver.step.removed[static_cast<std::size_t>(digit)].insert(cell);
  }
}

void clear_column_outside_box(int digit, int column, int box) {
  for (const int row : NineSet::all() - places_in_box(UnitKind::column, box))
    eliminate({row, column}, {digit});
}

void clear_cell(int row, int column) { solver.Candidats.clear({row, column}); }

namespace {

/// The values that stand in each unit.
class Values {
 public:
  Values() {
    for (int number = 1; number <= 81; ++number) {
      const Cell cell = cell_at(number);
      const int value = solver.Candidats.value(cell);
      if (value == 0) continue;
      rows_[index(cell.row)].insert(value);
      columns_[index(cell.column)].insert(value);
      boxes_[index(cell.box())].insert(value);
    }
  }

  NineSet seen_from(Cell cell) const {
    return rows_[index(cell.row)] | columns_[index(cell.column)] | boxes_[index(cell.box())];
  }

 private:
  static std::size_t index(int n) { return static_cast<std::size_t>(n); }

  std::array<NineSet, 10> rows_{}, columns_{}, boxes_{};
};

void store_pair(Cell cell) {
  const int first = nieme_candidat(cell.row, cell.column, 1);
  const int second = nieme_candidat(cell.row, cell.column, 2);
  solver.Paires(cell.row, cell.column) = {static_cast<std::uint8_t>(first),
                                          static_cast<std::uint8_t>(second)};
  sudoku().MSR.set_text(cell.row - 1, cell.column - 1,
                        std::to_string(first) + " , " + std::to_string(second));
}

void recompute(Cell cell, const Values& values) {
  CandidateCube& cube = solver.Candidats;
  if (cube.value(cell) != 0) return clear_cell(cell.row, cell.column);
  for (const int digit : cube.digits(cell) & values.seen_from(cell)) cube.remove(cell, digit);
  cube.set_count(cell, cube.digits(cell).count());
  if (cube.count(cell) == 2) store_pair(cell);
}

}  // namespace

void maj_candidats() {
  const Values values;
  for (int number = 1; number <= 81; ++number)
    if (solver.Candidats.count(cell_at(number)) != 0) recompute(cell_at(number), values);
}

}  // namespace sdk
