// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// A 9x9 table.
#pragma once

#include <array>
#include <cassert>
#include <cstddef>

namespace sdk {

/// A 9x9 table addressed by row and column, both 1..9. Addressing outside is a programming error
/// that debug and sanitised builds stop at.
template <class T>
class Square {
 public:
  constexpr T& operator()(int row, int column) { return cells_[index(row, column)]; }
  constexpr const T& operator()(int row, int column) const { return cells_[index(row, column)]; }
  /// By the number of the cell, 1..81, row by row.
  constexpr T& operator[](int number) { return cells_[index(number)]; }
  constexpr const T& operator[](int number) const { return cells_[index(number)]; }
  constexpr bool operator==(const Square&) const = default;

 private:
  static constexpr std::size_t index(int row, int column) {
    assert(row >= 1 && row <= 9 && column >= 1 && column <= 9);
    return static_cast<std::size_t>((row - 1) * 9 + column - 1);
  }
  static constexpr std::size_t index(int number) {
    assert(number >= 1 && number <= 81);
    return static_cast<std::size_t>(number - 1);
  }

  std::array<T, 81> cells_{};
};

}  // namespace sdk
