// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The two techniques that place a digit. Rows, columns and digits are 1..9.
#pragma once

#include "board/bool16.hpp"
#include "logic/deduction.hpp"

namespace sdk {

/// The first cell, row by row, with exactly one candidate is handed to place_singleton_nu; false
/// when there is none.
Bool16 singleton_nu();
/// The first digit with exactly one place in a unit is handed to place_singleton_cache: rows, then
/// columns, then boxes, the digit before the unit's number. False when there is none.
Bool16 singleton_cache();

/// Enters the digit in `Candidats` and, in a hint run only, marks the cell and asks the player. Yes
/// writes the digit into `MSF` and has suggestion run again; No leaves the grid as it is.
void place_singleton_nu(int row, int column, int digit);
/// The same, but it marks and asks in every run.
void place_singleton_cache(int row, int column, int digit);

/// Hands the single that the deduction places to the one of these two that it belongs to.
void place(const Deduction& single);

}  // namespace sdk
