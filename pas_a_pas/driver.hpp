// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The hint: one run after another over the candidates, until the player says No or a run ends.
#pragma once

#include <cstdint>

#include "board/bool16.hpp"

namespace sdk {

/// Runs the solver on the grid that `MSF` shows, up to one of its ends: the grid is complete
/// (`Messages`[14]), a cell is dead (marked, no message), a single is offered, or no technique
/// changes anything (`Messages`[32]). Called while it is at work, as an accepted offer does, it
/// only asks for one more run when the present one is over; so no number of placements deepens the
/// stack. The result has no meaning.
std::int16_t suggestion();

/// Fills `Candidats` and `GrilleDepart` from `MSF`, and empties `Paires` and `MSR`. A text that is
/// not a number is an empty cell. No candidate is removed yet.
void init_candidats();

/// The recompute: every cell whose stored count is not 0 loses what the values it sees exclude, or
/// everything when it has a value itself, and is counted afresh. A cell that is left with two
/// candidates enters `Paires` and shows them in `MSR` as "3 , 8".
void maj_candidats();

/// Whether no cell is empty. If so, redraws the candidates and sets `GrilleFinie`.
Bool16 grille_finie();

/// Whether an empty cell has no candidate. If so, marks the first one and redraws the candidates.
Bool16 case_morte();

/// The n-th candidate of the cell in ascending order; 0 when it has fewer. All are 1..9.
int nieme_candidat(int row, int column, int n);

}  // namespace sdk
