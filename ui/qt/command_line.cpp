// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/command_line.hpp"

#include "ui/version.hpp"

namespace sdk {

namespace {

constexpr const char* usage =
    "usage: sudoku [PUZZLE.sdk]\n"
    "\n"
    "Sudoku, in French and English. PUZZLE.sdk is opened in place of a new puzzle.\n"
    "  --help     print this text\n"
    "  --version  print the name and the version\n";

}  // namespace

std::optional<std::string> answer_without_game(const ProgramArguments& arguments) {
  if (arguments == ProgramArguments{"--help"}) return usage;
  if (arguments == ProgramArguments{"--version"}) return std::string(program_title) + '\n';
  return std::nullopt;
}

std::string command_line(const ProgramArguments& arguments) {
  std::string line;
  for (const std::string& argument : arguments) line += (line.empty() ? "" : " ") + argument;
  return line;
}

std::filesystem::path folder_of_file(std::string command_line) {
  std::erase(command_line, '"');
  if (command_line.empty()) return {};
  std::error_code no_current_folder;
  return std::filesystem::absolute(command_line, no_current_folder).parent_path();
}

}  // namespace sdk
