// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The names of the main window's controls, as the code of every folder uses them.
#pragma once

namespace sdk {

enum class Control {
  Command1,   ///< new puzzle
  Command2,   ///< clear the grid
  Command3,   ///< quit
  Command4,   ///< print
  Command5,   ///< about box
  Command6,   ///< load a puzzle file
  Command7,   ///< show bad values
  Command8,   ///< hint
  sauve,      ///< save the puzzle
  Bouton_GO,  ///< solve
  aide,       ///< help
  Check1,     ///< verification on the fly
  Check2,     ///< show the candidates
  Check3,     ///< keep the initial grid intact
  Niveau,     ///< level list
  Label,      ///< count of filled cells
  Label3,     ///< title and credit
  MSF,        ///< the puzzle
  MSR,        ///< the candidates
  rect,       ///< frame around MSF
  rect2,      ///< frame around MSR
};

inline constexpr int control_count = static_cast<int>(Control::rect2) + 1;

}  // namespace sdk
