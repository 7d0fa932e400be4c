// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "files/text/puzzle_file_text.hpp"

#include <algorithm>
#include <iterator>

namespace sdk {

std::string grid_to_save(std::string cell_texts) {
  std::ranges::replace(cell_texts, '0', ' ');
  return cell_texts;
}

std::string puzzle_file_text(std::string_view grid) {
  std::string text;
  for (std::size_t k = 0; k < 81; ++k) {
    text += ' ';
    text += k >= grid.size() ? ' ' : grid[k] == ' ' ? '.' : grid[k];
    if (k % 9 == 8) text += "\r\n";
  }
  return text;
}

std::optional<std::string> grid_of_file(std::string bytes) {
  if (bytes.empty()) return std::nullopt;
  std::erase_if(bytes, [](char c) { return c == ' ' || c == '\r' || c == '\n'; });
  std::ranges::replace(bytes, '.', ' ');
  return bytes;
}

int givens_of(std::string_view grid) {
  const std::string_view cells = grid.substr(0, 81);
  return static_cast<int>(std::ssize(cells) - std::ranges::count(cells, ' '));
}

}  // namespace sdk
