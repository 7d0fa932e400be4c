// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Values that are asked for by an `int`, as cells, digits and bands are numbered.
#pragma once

#include <cstddef>

namespace zolv {

/// `size` values, numbered from 0.
template <class T, std::size_t size>
struct Table {
  T values[size]{};

  constexpr T& operator[](int number) { return values[number]; }
  constexpr const T& operator[](int number) const { return values[number]; }
  constexpr T* begin() { return values; }
  constexpr T* end() { return values + size; }
  constexpr const T* begin() const { return values; }
  constexpr const T* end() const { return values + size; }
  constexpr bool operator==(const Table&) const = default;
};

}  // namespace zolv
