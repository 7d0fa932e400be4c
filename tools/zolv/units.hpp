// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Rows, columns and boxes: for the cells where a digit can still stand, which of them are the only
/// ones of a unit. All units of a kind are looked at together, nine bits to a row.
#pragma once

#include <optional>

#include "cells.hpp"

namespace zolv {

/// Copies of the row `bits` (nine of them) in all nine rows, or of what they start with.
constexpr Cells in_every_row(Band bits) { return Cells::in_every_band(bits * 0x40201); }

/// All cells but those that share a unit with `cell`; `cell` itself stays.
constexpr Cells all_but_peers(int cell) {
  Cells kept = Cells::all();
  for (int other = 0; other < 81; ++other) {
    const bool row = other / 9 == cell / 9, column = other % 9 == cell % 9;
    const bool box = other / 27 == cell / 27 && other % 9 / 3 == cell % 9 / 3;
    if (other != cell && (row || column || box)) kept -= Cells::only(other);
  }
  return kept;
}

/// Bit 8 of every row that is not empty.
inline Cells filled_rows(const Cells& set) {
  constexpr Cells low = in_every_row(0xFF), high = in_every_row(0x100);
  return (plus(set & low, low) | set) & high;
}

/// The cells that are alone in their row. No row may be empty.
inline Cells alone_in_row(const Cells& set) {
  const Cells beyond_first = set & minus(set, in_every_row(1));
  const Cells crowded = filled_rows(beyond_first);
  return set - minus(crowded << 1, crowded >> 8);
}

/// The columns of each band with at least one cell of a set and with at least two, in the nine low
/// bits.
struct BandColumns {
  Cells one, two;
};

inline BandColumns band_columns(const Cells& set) {
  constexpr Cells row = Cells::in_every_band(0x1FF);
  const Cells upper = set & row, middle = set >> 9 & row, lower = set >> 18;
  const Cells either = upper | middle;
  return {either | lower, (upper & middle) | (either & lower)};
}

/// The columns of the whole grid with at least one cell and with at least two.
struct GridColumns {
  Band one, two;
};

inline GridColumns grid_columns(const BandColumns& bands) {
  const auto [one, two] = bands;
  const Band either = one.band(0) | one.band(1), both = one.band(0) & one.band(1);
  const Band twice_in_a_band = two.band(0) | two.band(1) | two.band(2);
  return {either | one.band(2), twice_in_a_band | both | (either & one.band(2))};
}

/// The boxes of each band with at least one cell and with at least two: bits 0, 3 and 6.
struct Boxes {
  Cells one, two;
};

inline Boxes boxes(const BandColumns& bands) {
  constexpr Cells left_columns = Cells::in_every_band(0b001001001);
  const auto [one, two] = bands;
  const Cells left = one & left_columns, middle = one >> 1 & left_columns,
              right = one >> 2 & left_columns, either = left | middle;
  const Cells twice_in_a_column = (two | two >> 1 | two >> 2) & left_columns;
  return {either | right, twice_in_a_column | (left & middle) | (either & right)};
}

/// The cells that are the only one of `set` in their row, column or box; nothing when some unit has
/// no cell of `set` at all.
inline std::optional<Cells> alone_in_unit(const Cells& set) {
  const BandColumns bands = band_columns(set);
  const GridColumns columns = grid_columns(bands);
  const Boxes box = boxes(bands);
  constexpr Cells every_box = Cells::in_every_band(0b001001001);
  if (filled_rows(set) != in_every_row(0x100) || columns.one != 0x1FF || box.one != every_box)
    return std::nullopt;
  const Cells single = every_box - box.two;
  const Cells single_rows = single | single << 1 | single << 2;
  return alone_in_row(set) | (set & in_every_row(0x1FF & ~columns.two)) |
         (set & (single_rows | single_rows << 9 | single_rows << 18));
}

}  // namespace zolv
