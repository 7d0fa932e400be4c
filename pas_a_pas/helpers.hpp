// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// What every technique is written on: counts, primitives that remove candidates, the recompute.
/// Rows, columns, boxes and digits are 1..9. Counts of a digit look at the flags, counts of
/// candidates add the stored counts.
#pragma once

#include "pas_a_pas/tables.hpp"

namespace sdk {

/// In how many cells of the unit the digit is a candidate.
int digit_count(Unit unit, int digit);
/// The same within a box, on one of the lines that cross it.
int digit_count_in_box(Unit line, int box, int digit);
/// The sum of the stored counts of the unit's cells.
int candidate_total(Unit unit);
/// How many candidate flags the cell has.
int candidate_count(int row, int column);
/// The n-th candidate of the cell in ascending order; 0 when it has fewer.
int nieme_candidat(int row, int column, int n);

/// The digits are no candidates of the cell any more; the step lists those that were.
void eliminate(Cell cell, NineSet digits);
/// Every row outside the box loses the digit in the column.
void clear_column_outside_box(int digit, int column, int box);
/// All nine flags and the count of the cell become 0.
void clear_cell(int row, int column);

/// The recompute: every cell whose stored count is not 0 loses what the values it sees exclude, or
/// everything when it has a value itself, and is counted afresh. A cell that is left with two
/// candidates enters `Paires` and shows them in `MSR` as "3 , 8".
void maj_candidats();

}  // namespace sdk
