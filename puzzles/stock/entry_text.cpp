// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "puzzles/stock/entry_text.hpp"

namespace sdk {

std::string puzzle_text(const LibraryEntry& entry) {
  std::string text(entry.solution);
  for (std::size_t k = 0; k < text.size(); ++k)
    if (entry.mask[k] == '0') text[k] = '.';
  return text;
}

std::string mask_text(const Square<std::int16_t>& givens) {
  std::string mask;
  for (int i = 1; i <= 9; ++i)
    for (int j = 1; j <= 9; ++j) mask += givens(i, j) != 0 ? '1' : '0';
  return mask;
}

std::string entry_lines(const LibraryEntry& entry) {
  return std::string(entry.mask).append("\r\n").append(entry.solution).append("\r\n\r\n");
}

}  // namespace sdk
