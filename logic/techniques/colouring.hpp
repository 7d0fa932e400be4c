// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The two colours of simple colouring, and what follows from them.
#pragma once

#include <array>
#include <optional>
#include <vector>

#include "logic/deduction.hpp"
#include "logic/position.hpp"

namespace sdk {

/// The two colours of a chain; read as the table of 1, -1 and 0 (uncoloured) by cell number.
class ColourTable {
 public:
  int operator()(int cell) const { return cells_[0].contains(cell) - cells_[1].contains(cell); }
  /// `colour` is 1 or -1; the cell must be uncoloured.
  void paint(int cell, int colour) { cells_[colour == 1 ? 0 : 1].insert(cell); }
  const CellSet& cells(int colour) const { return cells_[colour == 1 ? 0 : 1]; }
  /// The colours of these cells alone.
  ColourTable within(const CellSet& cells) const {
    ColourTable part;
    part.cells_ = {cells_[0] & cells, cells_[1] & cells};
    return part;
  }
  CellSet coloured() const { return cells_[0] | cells_[1]; }
  bool operator==(const ColourTable&) const = default;

 private:
  std::array<CellSet, 2> cells_{};
};

/// Colours all that is linked to a coloured cell, depth first, each cell opposite to the one
/// before.
void spread_colours(ColourTable& colours, const LinkTable& strong, int cell, int digit);

/// Uncoloured cells that see both colours lose the digit; nothing when there is none.
std::optional<Deduction> find_trap(const Position& position, const ColourTable& colours, int digit);
/// When two cells of one colour see each other, all cells of that colour lose the digit; nothing
/// when there are none such.
std::optional<Deduction> find_wrap(const Position& position, const ColourTable& colours, int digit);

/// Every empty cell marked by its colour; uncoloured cells lose their mark.
std::vector<Highlight> colour_marks(const Position& position, const ColourTable& colours);

}  // namespace sdk
