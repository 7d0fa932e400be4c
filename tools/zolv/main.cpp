// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Solves the grid that the game hands over in the file 00000.000 of the folder that the environment
// variable "tmp" names. Prints the full grid as 81 digits, or 0 when it has no solution.

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <system_error>

#include "solver.hpp"

namespace zolv {
namespace {

std::filesystem::path exchange_file() {
  const char* folder = std::getenv("tmp");
  if (folder == nullptr || *folder == '\0')
    throw std::runtime_error("the environment variable \"tmp\" names no folder");
  return std::filesystem::path(folder) / "00000.000";
}

std::string text_of(const std::filesystem::path& path) {
  errno = 0;
  std::ifstream file(path, std::ios::binary);
  if (!file)
    throw std::runtime_error(path.string() + ": " + std::generic_category().message(errno));
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

std::string without_blanks(std::string text) {
  std::erase_if(text, [](char c) { return c == ' ' || (c >= '\t' && c <= '\r'); });
  return text;
}

Grid grid_of(const std::string& cells) {
  Grid grid{};
  for (std::size_t k = 0; k < grid.size(); ++k) grid[k] = static_cast<std::uint8_t>(cells[k] - '0');
  return grid;
}

Grid read_grid(const std::filesystem::path& path) {
  const std::string cells = without_blanks(text_of(path));
  if (cells.size() != 81 || cells.find_first_not_of("0123456789") != std::string::npos)
    throw std::runtime_error(path.string() + ": not 81 cells, each 0 (empty) to 9");
  return grid_of(cells);
}

std::string answer(const Grid& givens) {
  const std::optional<Grid> solution = solve(givens);
  if (!solution) return "0";
  std::string digits;
  for (const std::uint8_t digit : *solution) digits += static_cast<char>('0' + digit);
  return digits;
}

void run() {
  std::cout << answer(read_grid(exchange_file())) << std::endl;
  if (!std::cout) throw std::runtime_error("the answer cannot be written");
}

}  // namespace
}  // namespace zolv

int main() {
  try {
    zolv::run();
    return EXIT_SUCCESS;
  } catch (const std::exception& error) {
    std::cerr << "zolv: " << error.what() << '\n';
    return EXIT_FAILURE;
  }
}
