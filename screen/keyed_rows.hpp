// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Tables that have a row for every value of an enum.
#pragma once

#include <cstddef>
#include <iterator>

namespace sdk {

/// Whether every value of an enum whose last one is `last` has its row, at its own place. Where a
/// static_assert says so, row_of cannot miss.
template <class Rows, class Row, class Key>
constexpr bool has_row_for_each(const Rows& rows, Key Row::*key, Key last) {
  if (std::size(rows) != static_cast<std::size_t>(last) + 1) return false;
  std::size_t place = 0;
  for (const Row& row : rows)
    if (static_cast<std::size_t>(row.*key) != place++) return false;
  return true;
}

/// The row of a key in a table that has_row_for_each.
template <class Rows, class Key>
constexpr const auto& row_of(const Rows& rows, Key key) {
  return rows[static_cast<std::size_t>(key)];
}

}  // namespace sdk
