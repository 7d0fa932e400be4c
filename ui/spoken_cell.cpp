// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/spoken_cell.hpp"

#include <optional>
#include <vector>

#include "game/window.hpp"
#include "logic/deduction.hpp"
#include "ui/messages.hpp"

namespace sdk {

namespace {

bool is_digit(char c) { return c >= '0' && c <= '9'; }

bool shows_candidates(const std::string& text) { return text.find('\r') != std::string::npos; }

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
      return Notice::reduced;
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

std::vector<Notice> states_of(const DisplayCell& cell) {
  std::vector<Notice> states;
  if (cell.is_wrong()) states.push_back(Notice::wrong);
  if (const auto meaning = meaning_of_mark(cell)) states.push_back(*meaning);
  return states;
}

}  // namespace

std::string spoken_cell(const DisplayGrid& grid, int row, int column, std::string_view language) {
  const DisplayCell& cell = grid.cell(row, column);
  std::string spoken =
      notice(Notice::cell, language, std::to_string(row + 1), std::to_string(column + 1)) + ": " +
      content_of(cell.text, language);
  for (const Notice state : states_of(cell)) spoken += ", " + notice(state, language);
  return spoken;
}

}  // namespace sdk
