// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The candidates in `MSR`, and the marks that show the player what a technique did.
#pragma once

#include "board/cells.hpp"
#include "pas_a_pas/step.hpp"
#include "screen/colours.hpp"

namespace sdk {

/// The looks of a cell of `MSR`.
namespace mark {
inline constexpr int none = 0;
inline constexpr int removed = 3;  ///< lost a candidate, or is dead
inline constexpr int support = 4;  ///< belongs to the pattern, or is offered
inline constexpr int value = 5;
inline constexpr int second = 6;  ///< pincers, fins, ends of a link, the second colour
}  // namespace mark

/// The colours that techniques pass to trace_candidat.
namespace hook {
inline constexpr Colour removed = 0x0000FF;
inline constexpr Colour support = 0xFF0000;
}  // namespace hook

/// Shows every cell's candidates, three lines of three, or its value.
void affiche_candidats();
/// Empties every cell and takes its mark away.
void efface_candidats();
/// Turns the text of every cell that has candidates black; marks stay.
void marque_candidats();
/// Gives the cell (1-based) the look of `mode`: 0, 3, 4, 5 or 6. Others do nothing.
void marque_case(int row, int column, int mode);
/// Does nothing: the place where a single candidate of a cell could be coloured.
void trace_candidat(int row, int column, int digit, Colour colour);

/// In a hint run, marks the cell and passes those of `digits` that it has to trace_candidat;
/// otherwise nothing.
void show(Cell cell, int mode, NineSet digits, Colour colour);
/// Enters the cell in the step under its role and shows it as a support of the removal.
void support(Cell cell, Role role, NineSet digits, int mode = mark::support);
/// Shows the cell as losing `digits`, then takes them away.
void eliminate_shown(Cell cell, NineSet digits);

}  // namespace sdk
