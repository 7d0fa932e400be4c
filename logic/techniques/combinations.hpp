// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// All choices of three or four numbers out of 1..9, in the order of nested loops.
#pragma once

#include <array>
#include <span>

#include "board/nine_set.hpp"

namespace sdk {

namespace combinations_detail {

/// The sets of `size` numbers, in the order of the lowest number, then the next one, and so on.
template <std::size_t total>
constexpr std::array<NineSet, total> of_size(int size) {
  std::array<NineSet, total> sets{};
  std::array<int, 4> chosen{1, 2, 3, 4};
  for (NineSet& set : sets) {
    for (int i = 0; i < size; ++i) set.insert(chosen[static_cast<std::size_t>(i)]);
    int i = size - 1;
    while (i > 0 && chosen[static_cast<std::size_t>(i)] == 10 - size + i) --i;
    ++chosen[static_cast<std::size_t>(i)];
    for (int k = i + 1; k < size; ++k)
      chosen[static_cast<std::size_t>(k)] = chosen[static_cast<std::size_t>(k - 1)] + 1;
  }
  return sets;
}

inline constexpr std::array<NineSet, 84> triples = of_size<84>(3);
inline constexpr std::array<NineSet, 126> quads = of_size<126>(4);

}  // namespace combinations_detail

/// All sets of `size` (3 or 4) numbers: {1,2,3}, {1,2,4}, ... {7,8,9}.
constexpr std::span<const NineSet> combinations(int size) {
  if (size == 3) return combinations_detail::triples;
  return combinations_detail::quads;
}

}  // namespace sdk
