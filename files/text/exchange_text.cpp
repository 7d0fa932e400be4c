// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "files/text/exchange_text.hpp"

#include <algorithm>

namespace sdk {

std::string grid_to_solve(std::string cell_texts) {
  std::ranges::replace(cell_texts, ' ', '0');
  return cell_texts;
}

std::string solver_input(std::string_view grid) {
  std::string text;
  for (const char c : grid) text += {c, ' '};
  return text;
}

std::optional<std::string_view> first_line(std::string_view output) {
  if (output.empty()) return std::nullopt;
  return output.substr(0, output.find_first_of("\r\n"));
}

SolverAnswer solver_answer(std::string line) {
  if (line.find('0') != std::string::npos) return NoSolution{};
  std::erase(line, ' ');
  const std::size_t digits = line.find_first_not_of("123456789");
  line.resize(std::min({digits, line.size(), std::size_t{81}}));
  if (line.size() < 81) return MissingDigit{line};
  return Solution{line};
}

}  // namespace sdk
