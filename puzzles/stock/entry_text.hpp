// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Stored puzzles as text: as a puzzle to play, and as lines of a file that collects entries.
#pragma once

#include <cstdint>
#include <string>

#include "board/square.hpp"
#include "puzzles/stock/library_table.hpp"

namespace sdk {

/// The puzzle as the player first sees it: 81 characters, row-major, the digit of each given and
/// "." for each empty cell.
std::string puzzle_text(const LibraryEntry& entry);

/// The mask of a puzzle whose empty cells are 0: 81 characters, row-major, "1" for a given and "0"
/// for an empty cell.
std::string mask_text(const Square<std::int16_t>& givens);

/// An entry as three lines, each ended by CR LF: its mask, its solution and an empty one.
std::string entry_lines(const LibraryEntry& entry);

}  // namespace sdk
