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

}  // namespace sdk
