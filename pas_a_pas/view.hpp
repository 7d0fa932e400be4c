// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The candidates in `MSR`, and the marks that show the player what a technique did.
#pragma once

#include <vector>

#include "logic/deduction.hpp"
#include "screen/colours.hpp"

namespace sdk {

/// The colours that trace_candidat is called with.
namespace hook {
inline constexpr Colour removed = 0x0000FF;
inline constexpr Colour support = 0xFF0000;
}  // namespace hook

/// Shows every cell's candidates, three lines of three, or its value.
void affiche_candidats();
/// Shows every cell of two candidates as "3 , 8".
void show_pairs();
/// Empties every cell and takes its mark away.
void efface_candidats();
/// Turns the text of every cell that has candidates black; marks stay.
void marque_candidats();
/// Gives the cell (1-based) the look of mode 0, 3, 4, 5 or 6. Others do nothing.
void marque_case(int row, int column, int mode);
inline void marque_case(int row, int column, Mark mark) {
  marque_case(row, column, static_cast<int>(mark));
}
/// The background that marque_case gives; white for a mark without a look.
Colour mark_background(Mark mark);
/// Does nothing: the place where a single candidate of a cell could be coloured.
void trace_candidat(int row, int column, int digit, Colour colour);

/// Gives the marks, and hands the candidates that are pointed out to trace_candidat.
void draw(const std::vector<Highlight>& highlights);

}  // namespace sdk
