// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The geometry of the grid: cells, units, boxes and who sees whom. Rows, columns, boxes and places
/// in a unit are 1..9; cells are numbered 1..81 row by row; boxes are numbered row by row from the
/// top left.
#pragma once

#include <array>

#include "board/nine_set.hpp"

namespace sdk {

/// The box of a cell, 1..9.
constexpr int no_boite(int row, int column) { return 3 * ((row - 1) / 3) + 1 + (column - 1) / 3; }

/// The lines of a box; 0 for a box outside 1..9.
constexpr int first_row(int box) { return box < 1 || box > 9 ? 0 : (box - 1) / 3 * 3 + 1; }
constexpr int middle_row(int box) { return box < 1 || box > 9 ? 0 : first_row(box) + 1; }
constexpr int last_row(int box) { return box < 1 || box > 9 ? 0 : first_row(box) + 2; }
constexpr int first_column(int box) { return box < 1 || box > 9 ? 0 : (box - 1) % 3 * 3 + 1; }
constexpr int middle_column(int box) { return box < 1 || box > 9 ? 0 : first_column(box) + 1; }
constexpr int last_column(int box) { return box < 1 || box > 9 ? 0 : first_column(box) + 2; }

/// The same for the box of a cell.
constexpr int first_row(int row, int column) { return first_row(no_boite(row, column)); }
constexpr int last_row(int row, int column) { return last_row(no_boite(row, column)); }
constexpr int first_column(int row, int column) { return first_column(no_boite(row, column)); }
constexpr int last_column(int row, int column) { return last_column(no_boite(row, column)); }

struct Cell {
  int row, column;

  constexpr int number() const { return (row - 1) * 9 + column; }
  constexpr int box() const { return no_boite(row, column); }
  constexpr bool operator==(const Cell&) const = default;
};

/// The cell with a number 1..81.
constexpr Cell cell_at(int number) { return {(number - 1) / 9 + 1, (number - 1) % 9 + 1}; }

/// Whether two cells share their box, row or column; a cell sees itself.
constexpr bool se_voient(int row1, int column1, int row2, int column2) {
  return no_boite(row1, column1) == no_boite(row2, column2) || row1 == row2 || column1 == column2;
}

/// The same for cell numbers.
constexpr bool se_voient_num(int cell1, int cell2) {
  const Cell a = cell_at(cell1), b = cell_at(cell2);
  return se_voient(a.row, a.column, b.row, b.column);
}

enum class UnitKind { row, column, box };

/// Nine cells, in the order that every scan of a unit keeps: along a line, or row by row in a box.
struct Unit {
  UnitKind kind;
  int number;

  constexpr Cell cell(int place) const {
    if (kind == UnitKind::row) return {number, place};
    if (kind == UnitKind::column) return {place, number};
    return {first_row(number) + (place - 1) / 3, first_column(number) + (place - 1) % 3};
  }
  constexpr bool contains(Cell cell) const {
    if (kind == UnitKind::row) return cell.row == number;
    if (kind == UnitKind::column) return cell.column == number;
    return cell.box() == number;
  }
  constexpr bool operator==(const Unit&) const = default;
};

/// Rows, then columns, then boxes: the order in which techniques scan units.
inline constexpr std::array<Unit, 27> all_units = [] {
  std::array<Unit, 27> units{};
  for (int n = 1; n <= 9; ++n) {
    units[static_cast<std::size_t>(n - 1)] = {UnitKind::row, n};
    units[static_cast<std::size_t>(n + 8)] = {UnitKind::column, n};
    units[static_cast<std::size_t>(n + 17)] = {UnitKind::box, n};
  }
  return units;
}();

/// The row, the column and the box of a cell.
constexpr std::array<Unit, 3> units_of(Cell cell) {
  return {
      {{UnitKind::row, cell.row}, {UnitKind::column, cell.column}, {UnitKind::box, cell.box()}}};
}

/// Columns for rows, rows for columns.
constexpr UnitKind crossing(UnitKind line) {
  return line == UnitKind::row ? UnitKind::column : UnitKind::row;
}

/// The three lines of a kind that cross a box run from here.
constexpr int first_line(UnitKind line, int box) {
  return line == UnitKind::row ? first_row(box) : first_column(box);
}

/// The places, on any line of the kind that crosses the box, that lie in the box.
constexpr NineSet places_in_box(UnitKind line, int box) {
  const int first = first_line(crossing(line), box);
  return {first, first + 1, first + 2};
}

}  // namespace sdk
