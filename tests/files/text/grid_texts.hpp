// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Grids as text, for the tests of what files hold.
#pragma once

#include <random>
#include <string>
#include <string_view>

namespace sdk::test {

/// A complete valid grid, 81 digits.
extern const std::string solved_grid;

/// 81 cells of which none up to all are filled, "." an empty one.
std::string random_cells(std::mt19937& random);

/// Anything from 1 to 299 bytes, mostly those that a grid is written with.
std::string random_bytes(std::mt19937& random);

/// `text` with one character in place of another.
std::string with(std::string text, char before, char after);

/// `pattern`, over and over.
std::string repeated(std::string_view pattern, int times);

}  // namespace sdk::test
