// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/spoken_cell.hpp"

#include <algorithm>
#include <optional>
#include <vector>

#include "game/window.hpp"
#include "logic/deduction.hpp"
#include "screen/digit_frames.hpp"
#include "ui/messages.hpp"

namespace sdk {

namespace {

bool is_digit(char c) { return c >= '0' && c <= '9'; }

bool shows_candidates(const std::string& text) { return text.find('\r') != std::string::npos; }

bool has_digit(const std::string& text) { return std::ranges::any_of(text, is_digit); }

/// What else such a text holds is decoration.
std::string digits_of(const std::string& text) {
  std::string digits;
  for (const char c : text)
    if (is_digit(c)) digits += digits.empty() ? std::string(1, c) : std::string(" ") + c;
  return digits;
}

std::string content_of(const std::string& text, std::string_view language) {
  const std::string content = shows_candidates(text) ? digits_of(text) : from_code_page(text);
  return content.empty() || content == " " ? notice(Notice::empty, language) : content;
}

std::optional<Notice> meaning_of_mark(const DisplayCell& cell) {
  switch (static_cast<Mark>(cell.mark)) {
    case Mark::removed:
      return has_digit(cell.text) ? Notice::reduced : Notice::dead;
    case Mark::support:
      return Notice::pattern;
    case Mark::second:
      return Notice::second_pattern;
    case Mark::value:  // stays when the value is erased
      return shows_candidates(cell.text) ? std::nullopt : std::optional(Notice::placed);
    default:
      return cell.is_given() ? std::optional(Notice::given) : std::nullopt;
  }
}

std::vector<Notice> states_of(const DisplayCell& cell, bool clashing) {
  std::vector<Notice> states;
  if (cell.is_wrong())
    states.push_back(Notice::wrong);
  else if (clashing)
    states.push_back(Notice::clashing);
  if (const auto meaning = meaning_of_mark(cell)) states.push_back(*meaning);
  return states;
}

/// What is said of every cell first; `row` and `column` are 0..8.
std::string beginning(int row, int column, std::string_view language) {
  return notice(Notice::cell, language, std::to_string(row + 1), std::to_string(column + 1)) + ": ";
}

std::string content_and_states(const DisplayCell& cell, bool clashing, std::string_view language) {
  std::string spoken = content_of(cell.text, language);
  for (const Notice state : states_of(cell, clashing)) spoken += ", " + notice(state, language);
  return spoken;
}

}  // namespace

std::string spoken_cell(const DisplayGrid& grid, int row, int column, std::string_view language) {
  return beginning(row, column, language) +
         content_and_states(grid.cell(row, column), false, language);
}

std::string spoken_puzzle_cell(const DisplayGrid& puzzle, int row, int column,
                               std::string_view language) {
  const Cell cell{row + 1, column + 1};
  return beginning(row, column, language) +
         content_and_states(as_seen(puzzle, cell), clashes(puzzle, cell), language);
}

namespace {

std::string list_of(NineSet digits) {
  std::string text;
  for (const int digit : digits) text += (text.empty() ? "" : " ") + std::to_string(digit);
  return text;
}

std::string content_of(const PictureCell& cell, std::string_view language) {
  if (cell.value != 0) return std::to_string(cell.value);
  return cell.candidates.empty() ? notice(Notice::empty, language) : list_of(cell.candidates);
}

/// A loss is told with its digits; what is marked as one and loses nothing is dead.
std::optional<Notice> meaning_of_mark(const PictureCell& cell) {
  if (cell.mark == Mark::support) return Notice::pattern;
  if (cell.mark == Mark::second) return Notice::second_pattern;
  if (cell.mark == Mark::removed && cell.removed.empty()) return Notice::dead;
  return std::nullopt;
}

}  // namespace

std::string spoken_cell(const PictureCell& cell, int row, int column, std::string_view language) {
  std::string spoken = beginning(row, column, language) + content_of(cell, language);
  const auto add = [&](Notice which, NineSet digits) {
    spoken += ", " + notice(which, language, list_of(digits));
  };
  if (!cell.removed.empty()) add(Notice::loses, cell.removed);
  if (const auto meaning = meaning_of_mark(cell)) add(*meaning, {});
  if (!cell.pattern.empty() && cell.pattern != cell.candidates) add(Notice::bold, cell.pattern);
  return spoken;
}

}  // namespace sdk
