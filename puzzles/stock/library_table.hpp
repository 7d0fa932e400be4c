// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The forty stored puzzles, eight a level.
#pragma once

#include <array>
#include <string_view>

namespace sdk {

/// One stored puzzle: two texts of 81 characters, row-major. `mask` holds "1" for a given and "0"
/// for an empty cell, `solution` the digits of a complete valid grid.
struct LibraryEntry {
  std::string_view mask;
  std::string_view solution;
};

/// Entry number n is at index n - 1; level v (0..4) owns the eight entries from number 8v + 1.
/// Entry 33 has several solutions; every other entry's mask leaves exactly one.
extern const std::array<LibraryEntry, 40> BibliothequeGrilles;

}  // namespace sdk
