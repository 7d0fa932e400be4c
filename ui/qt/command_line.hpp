// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// What the program takes from its command line.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace sdk {

using ProgramArguments = std::vector<std::string>;  ///< without the program's own name

/// What goes to standard output in place of the game: for "--help" and "--version" alone.
std::optional<std::string> answer_without_game(const ProgramArguments& arguments);

/// The arguments joined by blanks, byte for byte: the name of a puzzle file, or nothing.
std::string command_line(const ProgramArguments& arguments);

/// The folder of the puzzle file that such a line names, relative to the current folder; nothing
/// when it names none.
std::filesystem::path folder_of_file(std::string command_line);

}  // namespace sdk
