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
  empty_file,       ///< why a file cannot be opened
  cell,             ///< accessible name of a cell: %1 row, %2 column, 1-based
  empty,            ///< accessible content of an empty cell
  puzzle,           ///< accessible name of `MSF`
  candidates,       ///< accessible name of `MSR`
  level,            ///< accessible name of `Niveau`
  hint,             ///< accessible name and tooltip of `Command8`
  undo,             ///< accessible name and tooltip of the button that takes a change back
  redo,             ///< the same, of the button that does it again
  cell_menu,        ///< accessible name of the menu of the current cell
  erase,            ///< item of that menu: empties the selected cells
  copy,             ///< the same: copies the rows of the selection
  select_all,       ///< the same: selects the whole grid
  given,            ///< accessible state of a cell: it belongs to the puzzle
  wrong,            ///< accessible state of a cell: its value is underlined in red
  clashing,         ///< accessible state of a cell that is not: its digit stands twice all the same
  placed,           ///< accessible state of a cell of `MSR`: a value, not its only candidate
  reduced,          ///< accessible state of a cell of `MSR`: a hint removed candidates
  pattern,          ///< accessible state of a cell of `MSR`: why a hint is right
  second_pattern,   ///< the same, of a cell marked apart from the others
  dead,             ///< accessible state of an empty cell of `MSR` without candidates
  loses,            ///< accessible state of a cell of a step: %1 the candidates that it loses
  bold,             ///< the same: %1 those of its candidates that the step rests on
  row,              ///< accessible name of a row: %1 the row, 1-based
  column,           ///< accessible name of a column: %1 the column, 1-based
  commands,         ///< accessible name of the buttons as a whole
  options,          ///< accessible name of the options as a whole
  explanation,      ///< accessible name of the steps of a hint
  searching,        ///< a search runs, and how to stop it
  previous_step,    ///< accessible name and tooltip of the button that goes back a step
  next_step,        ///< the same, of the button that goes on to the next one
  rescued_grids,    ///< name of the folder of the grids that the program saved unasked
  is_folder,        ///< why a dialog refuses %1: it is a folder
  no_file,          ///< the same: there is no file %1
  unreadable_file,  ///< the same: the player may not read %1
  no_folder,        ///< why a dialog refuses a file in %1: there is no such folder
  closed_folder,    ///< the same: the player may make no file in %1
  closed_file,      ///< why a dialog refuses %1: the player may not write it
  print_to_file,    ///< title of the dialog for the file that a page goes to
  pdf_files,        ///< the kind of that file
  author,           ///< who made the game
  rights,           ///< notice of rights: %1 the year
};

/// The notice in `language` (chosen as in messages_in), filled in.
std::string notice(Notice which, std::string_view language, std::string_view first = "",
                   std::string_view second = "");

}  // namespace sdk
