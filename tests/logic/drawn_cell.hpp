// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// A cell of a drawn board: what it holds before the call of a technique, what it loses and how it
/// is marked afterwards. boards/FORMAT.md describes the drawing.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

#include "board/nine_set.hpp"

namespace sdk::test {

/// What is wrong with a drawing.
struct Malformed : std::runtime_error {
  using std::runtime_error::runtime_error;
};

using Pair = std::array<std::uint8_t, 2>;  ///< an entry of `Paires`

struct DrawnCell {
  NineSet digits;  ///< before the call
  NineSet removed;
  int value = 0;
  int count = 0;  ///< the stored count
  Pair pair{};
  int mark_before = 0;
  std::optional<int> prefix;  ///< the mark that the drawing asks for

  /// When `ModePasAPas` is true.
  int mark_after() const { return prefix.value_or(mark_before); }
  NineSet digits_after() const { return digits - removed; }
  bool operator==(const DrawnCell&) const = default;
};

/// Throws Malformed. The count and the pair follow from the drawn digits.
DrawnCell parse_cell(std::string_view word);
std::string drawing(const DrawnCell& cell);

/// A digit 1..9; throws Malformed for any other character.
int digit_of(char character);
/// The two digits, the smaller first; zeros when there are not exactly two.
Pair pair_of(NineSet digits);

}  // namespace sdk::test
