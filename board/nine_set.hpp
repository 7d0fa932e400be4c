// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// A set of numbers 1..9: the digits of a cell, or the places of a digit in a unit.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <initializer_list>

namespace sdk {

namespace nine_set_detail {

/// How many bits the numbers 0..511 have: a look-up, since not every processor counts bits.
inline constexpr std::array<std::uint8_t, 512> bit_counts = [] {
  std::array<std::uint8_t, 512> counts{};
  for (unsigned n = 0; n < counts.size(); ++n)
    counts[n] = static_cast<std::uint8_t>(std::popcount(n));
  return counts;
}();

}  // namespace nine_set_detail

/// Range-for visits the numbers in ascending order. 0 is in no set.
class NineSet {
 public:
  class Iterator {
   public:
    constexpr explicit Iterator(unsigned rest) : rest_(rest) {}
    constexpr int operator*() const { return std::countr_zero(rest_); }
    constexpr Iterator& operator++() {
      rest_ &= rest_ - 1;
      return *this;
    }
    constexpr bool operator==(const Iterator&) const = default;

   private:
    unsigned rest_;
  };

  constexpr NineSet() = default;
  constexpr NineSet(std::initializer_list<int> numbers) {
    for (const int n : numbers) insert(n);
  }
  static constexpr NineSet all() { return {1, 2, 3, 4, 5, 6, 7, 8, 9}; }

  constexpr bool contains(int n) const { return (bits_ >> n & 1) != 0; }
  constexpr bool contains_all(NineSet other) const { return (other.bits_ & ~bits_) == 0; }
  constexpr bool empty() const { return bits_ == 0; }
  constexpr int count() const { return nine_set_detail::bit_counts[index()]; }
  /// The smallest number; the set must not be empty.
  constexpr int first() const { return std::countr_zero(bits_); }
  /// Below 512 and different for every set: an index for tables of all sets.
  constexpr std::size_t index() const { return bits_ >> 1; }

  constexpr void insert(int n) { bits_ |= static_cast<std::uint16_t>(1u << n); }
  constexpr void erase(int n) { bits_ &= static_cast<std::uint16_t>(~(1u << n)); }

  constexpr Iterator begin() const { return Iterator(bits_); }
  constexpr Iterator end() const { return Iterator(0); }

  constexpr bool operator==(const NineSet&) const = default;
  friend constexpr NineSet operator&(NineSet a, NineSet b) { return NineSet(a.bits_ & b.bits_); }
  friend constexpr NineSet operator|(NineSet a, NineSet b) { return NineSet(a.bits_ | b.bits_); }
  constexpr NineSet& operator|=(NineSet other) { return *this = *this | other; }
  constexpr NineSet& operator&=(NineSet other) { return *this = *this & other; }
  /// What is in a and not in b.
  friend constexpr NineSet operator-(NineSet a, NineSet b) { return NineSet(a.bits_ & ~b.bits_); }

 private:
  constexpr explicit NineSet(unsigned bits) : bits_(static_cast<std::uint16_t>(bits)) {}

  std::uint16_t bits_ = 0;  ///< bit n stands for the number n
};

}  // namespace sdk
