// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Files of drawn boards, one technique a file. boards/FORMAT.md describes them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "board/bool16.hpp"
#include "board/square.hpp"
#include "tests/pas_a_pas/drawn_cell.hpp"

namespace sdk::test {

struct BoardCase {
  std::string name;
  Square<DrawnCell> cells;
  bool fires = false;
};

struct BoardFile {
  std::string technique;
  Bool16 (*procedure)() = nullptr;
  bool recomputes = false;       ///< a call that fires ends by recomputing the candidates
  bool reads_links = false;      ///< the links are to be built before the call
  std::vector<BoardCase> cases;  ///< at least one
};

/// `file_name`, the last part of the file's path, begins with the technique's place. Throws
/// Malformed, with the file's name and the line in the text.
BoardFile parse_boards(std::string_view text, const std::string& file_name);

}  // namespace sdk::test
