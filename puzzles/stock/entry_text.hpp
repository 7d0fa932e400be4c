// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Texts made of one stored puzzle.
#pragma once

#include <string>

#include "puzzles/stock/library_table.hpp"

namespace sdk {

/// The puzzle as the player first sees it: 81 characters, row-major, the digit of each given and
/// "." for each empty cell.
std::string puzzle_text(const LibraryEntry& entry);

}  // namespace sdk
