// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// A set of cells, by their numbers 1..81.
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <initializer_list>

#include "board/cells.hpp"

namespace sdk {

/// Range-for visits the cell numbers in ascending order, that is row by row.
class CellSet {
  using Words = std::array<std::uint64_t, 2>;

 public:
  class Iterator {
   public:
    constexpr explicit Iterator(Words rest) : rest_(rest) {}
    constexpr int operator*() const {
      return rest_[0] != 0 ? std::countr_zero(rest_[0]) : 64 + std::countr_zero(rest_[1]);
    }
    constexpr Iterator& operator++() {
      std::uint64_t& word = rest_[rest_[0] != 0 ? 0 : 1];
      word &= word - 1;
      return *this;
    }
    constexpr bool operator==(const Iterator&) const = default;

   private:
    Words rest_;
  };

  constexpr CellSet() = default;
  constexpr CellSet(std::initializer_list<int> cells) {
    for (const int cell : cells) insert(cell);
  }

  constexpr bool contains(int cell) const { return (word(cell) >> (cell & 63) & 1) != 0; }
  constexpr bool contains(Cell cell) const { return contains(cell.number()); }
  constexpr bool empty() const { return (words_[0] | words_[1]) == 0; }
  constexpr int count() const { return std::popcount(words_[0]) + std::popcount(words_[1]); }

  constexpr void insert(int cell) { word(cell) |= bit(cell); }
  constexpr void insert(Cell cell) { insert(cell.number()); }
  constexpr void erase(int cell) { word(cell) &= ~bit(cell); }
  constexpr void erase(Cell cell) { erase(cell.number()); }

  constexpr Iterator begin() const { return Iterator(words_); }
  constexpr Iterator end() const { return Iterator(Words{}); }

  constexpr bool operator==(const CellSet&) const = default;
  friend constexpr CellSet operator&(const CellSet& a, const CellSet& b) {
    return CellSet(Words{a.words_[0] & b.words_[0], a.words_[1] & b.words_[1]});
  }
  friend constexpr CellSet operator|(const CellSet& a, const CellSet& b) {
    return CellSet(Words{a.words_[0] | b.words_[0], a.words_[1] | b.words_[1]});
  }
  constexpr CellSet& operator|=(const CellSet& other) { return *this = *this | other; }
  constexpr CellSet& operator&=(const CellSet& other) { return *this = *this & other; }
  /// What is in exactly one of the two.
  friend constexpr CellSet operator^(const CellSet& a, const CellSet& b) {
    return CellSet(Words{a.words_[0] ^ b.words_[0], a.words_[1] ^ b.words_[1]});
  }
  /// What is in a and not in b.
  friend constexpr CellSet operator-(const CellSet& a, const CellSet& b) {
    return CellSet(Words{a.words_[0] & ~b.words_[0], a.words_[1] & ~b.words_[1]});
  }

 private:
  constexpr explicit CellSet(Words words) : words_(words) {}

  static constexpr std::uint64_t bit(int cell) { return std::uint64_t{1} << (cell & 63); }
  constexpr std::uint64_t& word(int cell) { return words_[static_cast<std::size_t>(cell >> 6)]; }
  constexpr std::uint64_t word(int cell) const {
    return words_[static_cast<std::size_t>(cell >> 6)];
  }

  Words words_{};
};

inline constexpr CellSet all_cells = [] {
  CellSet cells;
  for (int cell = 1; cell <= 81; ++cell) cells.insert(cell);
  return cells;
}();

/// The cells that each cell (1..81) sees, itself excepted.
inline constexpr std::array<CellSet, 82> peers = [] {
  std::array<CellSet, 82> table{};
  for (int i = 1; i <= 81; ++i)
    for (int j = 1; j <= 81; ++j)
      if (i != j && se_voient_num(i, j)) table[static_cast<std::size_t>(i)].insert(j);
  return table;
}();

constexpr const CellSet& peers_of(int cell) { return peers[static_cast<std::size_t>(cell)]; }
constexpr const CellSet& peers_of(Cell cell) { return peers_of(cell.number()); }

}  // namespace sdk
