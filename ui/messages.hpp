// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Every text for the player, in French and English.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace sdk {

/// The table for `language`: French for exactly "Fr", English for anything else. Entries 24 to 29
/// are empty. UTF-8; blanks at either end belong to the texts.
std::array<std::string, 35> messages_in(std::string_view language);

/// What the program says beside that table. `%1` and `%2` stand for what is filled in.
enum class Notice {
  fatal,            ///< %1 what failed and why; there was no grid to save
  fatal_saved,      ///< %1 what failed and why, %2 the file the grid was saved in
  fatal_not_saved,  ///< %1 what failed and why, %2 why the grid could not be saved
  cell,             ///< accessible name of a cell: %1 row, %2 column, 1-based
  empty,            ///< accessible content of an empty cell
  puzzle,           ///< accessible name of `MSF`
  candidates,       ///< accessible name of `MSR`
  level,            ///< accessible name of `Niveau`
  hint,             ///< accessible name and tooltip of `Command8`
  author,           ///< who made the game
  rights,           ///< notice of rights: %1 the year
};

/// The notice in `language` (chosen as in messages_in), filled in.
std::string notice(Notice which, std::string_view language, std::string_view first = "",
                   std::string_view second = "");

}  // namespace sdk
