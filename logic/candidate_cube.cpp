// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "logic/candidate_cube.hpp"

namespace sdk {

namespace {

/// The place of the cell in its box.
int place_in_box(Cell cell) { return (cell.row - 1) % 3 * 3 + (cell.column - 1) % 3 + 1; }

}  // namespace

CandidateCube::CandidateCube(const Square<NineSet>& digits, const Square<std::uint8_t>& values)
    : digits_(digits), values_(values) {
  for (int row = 1; row <= 9; ++row)
    for (int column = 1; column <= 9; ++column) {
      set_count({row, column}, digits(row, column).count());
      list({row, column});
    }
}

void CandidateCube::list(Cell cell) {
  const int box = cell.box(), place = place_in_box(cell), number = cell.number();
  for (const int digit : digits(cell)) {
    places_in(UnitKind::row, cell.row, digit).insert(cell.column);
    places_in(UnitKind::column, cell.column, digit).insert(cell.row);
    places_in(UnitKind::box, box, digit).insert(place);
    cells_[index(digit)].insert(number);
  }
}

bool CandidateCube::is_complete() const {
  for (int number = 1; number <= 81; ++number)
    if (values_[number] == 0) return false;
  return true;
}

std::optional<Cell> CandidateCube::dead_cell() const {
  for (int number = 1; number <= 81; ++number)
    if (values_[number] == 0 && counts_[number] == 0) return cell_at(number);
  return std::nullopt;
}

CellSet CandidateCube::cells_counting(int count) const {
  CellSet cells;
  for (int number = 1; number <= 81; ++number)
    if (counts_[number] == count) cells.insert(number);
  return cells;
}

void CandidateCube::remove(Cell cell, int digit) {
  digits_(cell.row, cell.column).erase(digit);
  places_in(UnitKind::row, cell.row, digit).erase(cell.column);
  places_in(UnitKind::column, cell.column, digit).erase(cell.row);
  places_in(UnitKind::box, cell.box(), digit).erase(place_in_box(cell));
  cells_[index(digit)].erase(cell);
}

void CandidateCube::clear(Cell cell) {
  for (const int digit : digits(cell)) remove(cell, digit);
  set_count(cell, 0);
}

}  // namespace sdk
