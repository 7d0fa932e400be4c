// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Where a box and a line cross: a digit of a band of three boxes stands once in each of its rows
/// and once in each of its boxes, which leaves six ways for the three crossings that hold it.
#pragma once

#include <array>

#include "cells.hpp"

namespace zolv {

/// For the nine crossings of three lines (bits 3 l to 3 l + 2: those of line l) where a digit can
/// stand: those that one of the six ways passes through.
inline constexpr auto crossings_in_use = [] {
  constexpr int ways[6][3] = {{0, 1, 2}, {0, 2, 1}, {1, 0, 2}, {1, 2, 0}, {2, 0, 1}, {2, 1, 0}};
  std::array<unsigned, 512> in_use{};
  for (unsigned possible = 0; possible < 512; ++possible)
    for (const auto& way : ways) {
      const unsigned crossings = 1u << way[0] | 8u << way[1] | 64u << way[2];
      if ((possible & crossings) == crossings) in_use[possible] |= crossings;
    }
  return in_use;
}();

/// The crossings of a row of nine cells with its three boxes, three bits.
inline constexpr auto crossings_of_row = [] {
  std::array<unsigned, 512> crossings{};
  for (unsigned row = 0; row < 512; ++row)
    crossings[row] = (row & 7 ? 1u : 0u) | (row >> 3 & 7 ? 2u : 0u) | (row >> 6 ? 4u : 0u);
  return crossings;
}();

/// The cells of a band that its crossings in use hold, for the crossings where a digit can stand.
inline constexpr auto band_in_use = [] {
  std::array<Band, 512> cells{};
  for (unsigned possible = 0; possible < 512; ++possible)
    for (int crossing = 0; crossing < 9; ++crossing)
      if (crossings_in_use[possible] >> crossing & 1) cells[possible] |= Band{7} << 3 * crossing;
  return cells;
}();

inline Band in_use_by_rows(Band band) {
  const unsigned possible = crossings_of_row[band & 0x1FF] |
                            crossings_of_row[band >> 9 & 0x1FF] << 3 |
                            crossings_of_row[band >> 18] << 6;
  return band & band_in_use[possible];
}

/// The cells of `places`, where one digit can stand, but for those that the crossings of columns
/// and boxes exclude.
inline Cells in_use_by_columns(const Cells& places) {
  Table<Band, 3> seen, kept;
  for (int b = 0; b < 3; ++b)
    seen[b] = (places.band(b) | places.band(b) >> 9 | places.band(b) >> 18) & 0x1FF;
  for (int stack = 0; stack < 9; stack += 3) {
    const Band in_use = crossings_in_use[(seen[0] >> stack & 7) | (seen[1] >> stack & 7) << 3 |
                                         (seen[2] >> stack & 7) << 6];
    for (int b = 0; b < 3; ++b) kept[b] |= (in_use >> 3 * b & 7) << stack;
  }
  return places & Cells(kept[0] * 0x40201, kept[1] * 0x40201, kept[2] * 0x40201);
}

/// The cells of `places`, where one digit can stand, but for those that a box and a line that cross
/// exclude.
inline Cells in_use_by_lines(const Cells& places) {
  return in_use_by_columns({in_use_by_rows(places.band(0)), in_use_by_rows(places.band(1)),
                            in_use_by_rows(places.band(2))});
}

}  // namespace zolv
