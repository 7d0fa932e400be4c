// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "logic/links.hpp"

namespace sdk {

const LinkTable::Cells& LinkTable::cells() const {
  static const Cells none{};
  return cells_ ? *cells_ : none;
}

namespace {

/// The other place of the digit in each unit of the cell where it has exactly two.
CellSet strong_partners(const CandidateCube& candidates, Cell cell, int digit) {
  CellSet partners;
  for (const Unit unit : units_of(cell)) {
    const NineSet places = candidates.places(unit, digit);
    if (places.count() != 2) continue;
    for (const int place : places) partners.insert(unit.cell(place));
  }
  partners.erase(cell);
  return partners;
}

}  // namespace

Links links_of(const CandidateCube& candidates) {
  LinkTable::Cells strong{}, weak{};
  for (int digit = 1; digit <= 9; ++digit)
    for (const int cell : candidates.cells_with(digit)) {
      const std::size_t index = LinkTable::index(digit, cell);
      strong[index] = strong_partners(candidates, cell_at(cell), digit);
      weak[index] = (candidates.cells_with(digit) & peers_of(cell)) - strong[index];
    }
  return {LinkTable(strong), LinkTable(weak)};
}

}  // namespace sdk
