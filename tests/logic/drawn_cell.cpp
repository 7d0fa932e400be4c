// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tests/logic/drawn_cell.hpp"

namespace sdk::test {

namespace {

struct Prefix {
  char character;
  int mark;
};
constexpr std::array<Prefix, 4> prefixes{{{'~', 0}, {'!', 3}, {'*', 4}, {'+', 6}}};

/// Takes the prefix, if there is one, off the word.
std::optional<int> take_prefix(std::string_view& word) {
  for (const auto& [character, mark] : prefixes) {
    if (!word.starts_with(character)) continue;
    word.remove_prefix(1);
    return mark;
  }
  return std::nullopt;
}

void take_digit(std::string_view& word, DrawnCell& cell) {
  const int digit = digit_of(word.front());
  for (const int smaller : cell.digits)
    if (smaller >= digit) throw Malformed("the candidates do not ascend");
  word.remove_prefix(1);
  cell.digits.insert(digit);
  if (!word.starts_with('-')) return;
  word.remove_prefix(1);
  cell.removed.insert(digit);
}

void parse_candidates(std::string_view word, DrawnCell& cell) {
  if (word == "0") return;
  if (word.empty()) throw Malformed("a prefix stands alone");
  while (!word.empty()) take_digit(word, cell);
  cell.count = cell.digits.count();
  cell.pair = pair_of(cell.digits);
}

}  // namespace

int digit_of(char character) {
  if (character < '1' || character > '9')
    throw Malformed("'" + std::string(1, character) + "' is no digit from 1 to 9");
  return character - '0';
}

Pair pair_of(NineSet digits) {
  if (digits.count() != 2) return {};
  const int smaller = digits.first();
  digits.erase(smaller);
  return {static_cast<std::uint8_t>(smaller), static_cast<std::uint8_t>(digits.first())};
}

DrawnCell parse_cell(std::string_view word) {
  DrawnCell cell;
  cell.prefix = take_prefix(word);
  if (!word.starts_with('='))
    parse_candidates(word, cell);
  else if (word.size() == 2)
    cell.value = digit_of(word[1]);
  else
    throw Malformed("a value has exactly one digit");
  return cell;
}

std::string drawing(const DrawnCell& cell) {
  std::string text;
  for (const auto& [character, mark] : prefixes)
    if (cell.prefix == mark) text += character;
  if (cell.value != 0) return text + "=" + std::to_string(cell.value);
  if (cell.digits.empty()) return text + "0";
  for (const int digit : cell.digits) {
    text += std::to_string(digit);
    if (cell.removed.contains(digit)) text += '-';
  }
  return text;
}

}  // namespace sdk::test
