// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Sets of cells. Cells are numbered 0..80, row by row.
#pragma once

#include <bit>
#include <cstdint>

#include "table.hpp"

namespace zolv {

/// Three rows of nine cells: bit 9 r + c is row r (0..2) and column c (0..8) of the band.
using Band = std::uint32_t;

/// A set of cells. The fourth band stays empty: with it, every operation below is one instruction
/// on a vector of four.
class Cells {
  // Before the operators: clang 14 evaluates them at compile time only with this definition seen.
  template <class Operation>
  constexpr Cells& apply(const Cells& other, Operation operation) {
    for (int b = 0; b < 4; ++b) bands_[b] = operation(bands_[b], other.bands_[b]);
    return *this;
  }

 public:
  constexpr Cells() = default;
  constexpr Cells(Band top, Band middle, Band bottom) : bands_{top, middle, bottom} {}

  /// The set that has `band` in each of the three bands.
  static constexpr Cells in_every_band(Band band) { return {band, band, band}; }
  static constexpr Cells all() { return in_every_band((Band{1} << 27) - 1); }
  static constexpr Cells only(int cell) {
    Cells set;
    set.bands_[cell / 27] = Band{1} << cell % 27;
    return set;
  }

  constexpr bool operator==(const Cells&) const = default;
  constexpr bool empty() const { return *this == Cells(); }
  constexpr bool contains(int cell) const { return bands_[cell / 27] >> cell % 27 & 1; }
  /// `b` is 0..2.
  constexpr Band band(int b) const { return bands_[b]; }
  constexpr int count() const {
    return std::popcount(bands_[0]) + std::popcount(bands_[1]) + std::popcount(bands_[2]);
  }
  /// The lowest cell of a set that is not empty.
  constexpr int first() const {
    int b = 0;
    while (bands_[b] == 0) ++b;
    return 27 * b + std::countr_zero(bands_[b]);
  }
  constexpr void remove_first() {
    int b = 0;
    while (bands_[b] == 0) ++b;
    bands_[b] &= bands_[b] - 1;
  }

  constexpr Cells& operator&=(const Cells& o) {
    return apply(o, [](Band a, Band b) { return a & b; });
  }
  constexpr Cells& operator|=(const Cells& o) {
    return apply(o, [](Band a, Band b) { return a | b; });
  }
  /// Set difference.
  constexpr Cells& operator-=(const Cells& o) {
    return apply(o, [](Band a, Band b) { return a & ~b; });
  }
  friend constexpr Cells operator&(Cells a, const Cells& b) { return a &= b; }
  friend constexpr Cells operator|(Cells a, const Cells& b) { return a |= b; }
  friend constexpr Cells operator-(Cells a, const Cells& b) { return a -= b; }

  /// The same arithmetic within each band; what it gives need not be a set of cells.
  friend constexpr Cells plus(Cells a, const Cells& o) {
    return a.apply(o, [](Band x, Band y) { return x + y; });
  }
  friend constexpr Cells minus(Cells a, const Cells& o) {
    return a.apply(o, [](Band x, Band y) { return x - y; });
  }
  friend constexpr Cells operator<<(Cells a, int n) {
    return a.apply(a, [n](Band x, Band) { return x << n; });
  }
  friend constexpr Cells operator>>(Cells a, int n) {
    return a.apply(a, [n](Band x, Band) { return x >> n; });
  }

 private:
  Table<Band, 4> bands_;
};

}  // namespace zolv
