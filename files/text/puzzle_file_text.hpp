// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The content of a puzzle file: nine lines of nine cells, a blank and a digit or "." each, ended
/// by CR LF. A grid's text is row-major, one byte a cell, a blank for an empty one.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace sdk {

/// The grid that a file keeps of the cells' texts, joined: the same with zeros as empty cells.
std::string grid_to_save(std::string cell_texts);

/// The 180 bytes of a grid's file. Characters beyond the 81st are dropped; those that a short text
/// lacks are blanks.
std::string puzzle_file_text(std::string_view grid);

/// The grid in a file's bytes: all lines joined whatever ends them, blanks dropped, "." an empty
/// cell, everything else a given. Any length. Nothing when the file is empty.
std::optional<std::string> grid_of_file(std::string bytes);

/// The number of filled cells among the first 81.
int givens_of(std::string_view grid);

}  // namespace sdk
