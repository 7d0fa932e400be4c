// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "logic/position_check.hpp"

#include "board/grid_text.hpp"

namespace sdk {

namespace {

/// A digit that the cell has although a cell that it sees holds it; 0 when there is none.
int excluded_candidate(const CandidateCube& cube, Cell cell) {
  for (const int peer : peers_of(cell)) {
    const int value = cube.value(cell_at(peer));
    if (value != 0 && cube.has(cell, value)) return value;
  }
  return 0;
}

std::string cell_fault(const CandidateCube& cube, Cell cell) {
  const NineSet digits = cube.digits(cell);
  if (cube.value(cell) != 0 && !digits.empty()) return "is filled and has candidates";
  if (cube.count(cell) != digits.count()) return "has a count other than its number of flags";
  if (const int digit = excluded_candidate(cube, cell))
    return "has the candidate " + std::to_string(digit) + " and sees that value";
  for (int digit = 1; digit <= 9; ++digit)
    if (cube.cells_with(digit).contains(cell) != digits.contains(digit))
      return "disagrees with the cells of " + std::to_string(digit);
  return "";
}

/// The places of every digit in the unit agree with the flags of its cells.
bool places_agree(const CandidateCube& cube, Unit unit) {
  for (int place = 1; place <= 9; ++place)
    for (int digit = 1; digit <= 9; ++digit)
      if (cube.places(unit, digit).contains(place) != cube.has(unit.cell(place), digit))
        return false;
  return true;
}

}  // namespace

std::string position_fault(const Position& position) {
  const CandidateCube& cube = position.candidates;
  for (int number = 1; number <= 81; ++number) {
    const Cell cell = cell_at(number);
    if (const std::string fault = cell_fault(cube, cell); !fault.empty())
      return name_of(cell) + " " + fault;
  }
  for (const Unit unit : all_units)
    if (!places_agree(cube, unit)) return "the places in " + name_of(unit) + " differ";
  return "";
}

}  // namespace sdk
