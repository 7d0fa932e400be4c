// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tests/files/text/grid_texts.hpp"

#include <algorithm>

namespace sdk::test {

const std::string solved_grid =
    "987654321135927468642138579426571983793482156518396742371865294269743815854219637";

std::string random_cells(std::mt19937& random) {
  std::string cells(81, '.');
  const unsigned share = random() % 11;
  for (char& cell : cells)
    if (random() % 10 < share) cell = static_cast<char>('1' + random() % 9);
  return cells;
}

std::string random_bytes(std::mt19937& random) {
  std::string bytes(1 + random() % 299, '\0');
  std::ranges::generate(bytes, [&] {
    return random() % 2 ? " .0123456789\r\n\t"[random() % 15] : static_cast<char>(random());
  });
  return bytes;
}

std::string with(std::string text, char before, char after) {
  std::ranges::replace(text, before, after);
  return text;
}

std::string repeated(std::string_view pattern, int times) {
  std::string result;
  for (int i = 0; i < times; ++i) result += pattern;
  return result;
}

}  // namespace sdk::test
