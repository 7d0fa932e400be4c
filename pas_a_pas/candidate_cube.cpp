// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "pas_a_pas/candidate_cube.hpp"

namespace sdk {

void CandidateCube::reset() {
  for (int cell = 1; cell <= 81; ++cell) {
    const auto [row, column] = cell_at(cell);
    digits_(row, column) = NineSet::all();
    values_(row, column) = 0;
    counts_(row, column) = 9;
  }
  for (auto& units : places_)
    for (auto& unit : units) unit.fill(NineSet::all());
  cells_.fill(all_cells);
}

void CandidateCube::fill(Cell cell, int value) {
  clear(cell);
  set_value(cell, value);
}

int CandidateCube::operator()(int row, int column, int layer) const {
  const Cell cell{row, column};
  if (layer == 10) return value(cell);
  if (layer == 11) return count(cell);
  return has(cell, layer);
}

CellSet CandidateCube::cells_counting(int count) const {
  CellSet cells;
  for (int cell = 1; cell <= 81; ++cell)
    if (this->count(cell_at(cell)) == count) cells.insert(cell);
  return cells;
}

void CandidateCube::remove(Cell cell, int digit) {
  const int box = cell.box();
  digits_(cell.row, cell.column).erase(digit);
  places_in(UnitKind::row, cell.row, digit).erase(cell.column);
  places_in(UnitKind::column, cell.column, digit).erase(cell.row);
  places_in(UnitKind::box, box, digit)
      .erase((cell.row - first_row(box)) * 3 + cell.column - first_column(box) + 1);
  cells_[index(digit)].erase(cell);
}

void CandidateCube::clear(Cell cell) {
  for (const int digit : digits(cell)) remove(cell, digit);
  set_count(cell, 0);
}

}  // namespace sdk
