// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Files of drawn boards, one technique a file. boards/FORMAT.md describes them.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "board/square.hpp"
#include "logic/technique.hpp"
#include "tests/logic/drawn_cell.hpp"

namespace sdk::test {

struct BoardCase {
  std::string name;
  Square<DrawnCell> cells;
  bool fires = false;
};

struct BoardFile {
  const Technique* technique = nullptr;
  bool recomputes = false;       ///< applying a pattern ends by recomputing the candidates
  std::vector<BoardCase> cases;  ///< at least one
};

/// `file_name`, the last part of the file's path, begins with the technique's place. Throws
/// Malformed, with the file's name and the line in the text.
BoardFile parse_boards(std::string_view text, const std::string& file_name);

/// The file at the path, or all of a folder. Throw Malformed, also for a file that cannot be read.
BoardFile read_boards(const std::filesystem::path& file);
std::vector<BoardFile> read_all_boards(const std::filesystem::path& folder);

}  // namespace sdk::test
