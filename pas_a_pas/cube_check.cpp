// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "pas_a_pas/cube_check.hpp"

#include "pas_a_pas/tables.hpp"

namespace sdk {

namespace {

/// A digit that the cell has although a cell that it sees holds it; 0 when there is none.
int excluded_candidate(Cell cell) {
  for (const int peer : peers_of(cell)) {
    const int value = solver.Candidats.value(cell_at(peer));
    if (value != 0 && solver.Candidats.has(cell, value)) return value;
  }
  return 0;
}

std::string cell_fault(Cell cell) {
  const CandidateCube& cube = solver.Candidats;
  const NineSet digits = cube.digits(cell);
  if (cube.value(cell) != 0 && !digits.empty()) return "is filled and has candidates";
  if (cube.count(cell) != digits.count()) return "has a count other than its number of flags";
  if (const int digit = excluded_candidate(cell))
    return "has the candidate " + std::to_string(digit) + " and sees that value";
  for (int digit = 1; digit <= 9; ++digit)
    if (cube.cells_with(digit).contains(cell) != digits.contains(digit))
      return "disagrees with the cells of " + std::to_string(digit);
  return "";
}

/// The places of every digit in the unit agree with the flags of its cells.
bool places_agree(Unit unit) {
  for (int place = 1; place <= 9; ++place)
    for (int digit = 1; digit <= 9; ++digit)
      if (solver.Candidats.places(unit, digit).contains(place) !=
          solver.Candidats.has(unit.cell(place), digit))
        return false;
  return true;
}

}  // namespace

std::string candidats_fault() {
  for (int number = 1; number <= 81; ++number) {
    const Cell cell = cell_at(number);
    if (const std::string fault = cell_fault(cell); !fault.empty())
      return "r" + std::to_string(cell.row) + "c" + std::to_string(cell.column) + " " + fault;
  }
  for (const Unit unit : all_units)
    if (!places_agree(unit)) return "the places in unit " + std::to_string(unit.number) + " differ";
  return "";
}

}  // namespace sdk
