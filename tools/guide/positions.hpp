// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// A position for each technique, in which a hint comes to use it.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "board/cells.hpp"

namespace sdk {

/// The two candidates that a solved cell had before.
struct FormerPair {
  Cell cell;
  std::uint8_t smaller, larger;
};

struct GuidePosition {
  int place;              ///< of the technique, in the order of logic/techniques.hpp
  std::string_view grid;  ///< 81 characters row by row, "." an empty cell
  /// What a hint has forgotten, where the technique needs it.
  std::vector<FormerPair> former_pairs = {};
};

/// In that order; every technique that removes candidates has one.
const std::vector<GuidePosition>& positions();

}  // namespace sdk
