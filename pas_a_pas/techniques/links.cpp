// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The link tables.

#include "pas_a_pas/helpers.hpp"
#include "pas_a_pas/techniques/techniques.hpp"

namespace sdk {

namespace {

/// The other place of the digit in each unit of the cell where it has exactly two.
CellSet strong_partners(Cell cell, int digit) {
  CellSet partners;
  for (const Unit unit : {Unit{UnitKind::row, cell.row}, Unit{UnitKind::column, cell.column},
                          Unit{UnitKind::box, cell.box()}})
    if (digit_count(unit, digit) == 2)
      for (const int place : solver.Candidats.places(unit, digit))
        partners.insert(unit.cell(place));
  partners.erase(cell);
  return partners;
}

void link(int cell, int digit) {
  const CellSet linked = solver.Candidats.cells_with(digit) & peers_of(cell);
  const CellSet strong = strong_partners(cell_at(cell), digit);
  solver.LienFort.of(digit, cell) = strong;
  solver.LienFaible.of(digit, cell) = linked - strong;
}

}  // namespace

void construit_liens() {
  solver.LienFort = {};
  solver.LienFaible = {};
  for (int digit = 1; digit <= 9; ++digit)
    for (const int cell : solver.Candidats.cells_with(digit)) link(cell, digit);
}

}  // namespace sdk
