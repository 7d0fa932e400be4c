// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The techniques that remove candidates. Each takes no argument, applies the first pattern of its
/// scan that removes something, and returns true; or it changes nothing and returns false. Marks
/// are given only while `ModePasAPas` is true; removals are the same either way. Rows, columns,
/// digits and places in a unit are 1..9, cell numbers 1..81.
#pragma once

#include "board/bool16.hpp"

namespace sdk {

/// A digit whose places in a box lie on one line leaves the rest of that line.
Bool16 pointing_rows();
Bool16 pointing_columns();

/// A digit whose places on a line lie in one box leaves the rest of that box.
Bool16 box_line_rows();
Bool16 box_line_columns();

/// Two cells of a unit with the same two candidates: both digits leave the other cells.
Bool16 naked_pairs();
/// Two digits with the same two places in a unit: every other digit leaves those cells.
Bool16 hidden_pairs();

/// Three (four) cells of a unit that hold only three (four) digits: those leave the other cells.
Bool16 naked_triples();
Bool16 naked_quads();
/// Three (four) digits with only three (four) places in a unit: other digits leave those cells.
Bool16 hidden_triples();
Bool16 hidden_quads();

/// Four corners that must not end as a rectangle of two digits. Relies on the puzzle having one
/// solution, and does not ask that the rectangle lie in two boxes.
Bool16 rectangles_uniques();
/// The same for three solved corners and an open one, by the pairs that the solved cells had.
Bool16 rectangle_evitable();

/// A digit with the same two places in two lines leaves the rest of the two crossing lines.
Bool16 x_wing();

/// A digit whose places in three (four) lines lie on three (four) crossing lines leaves the rest of
/// those.
Bool16 espadon();
Bool16 meduse();
/// What swordfish and jellyfish do with a pattern: the digit leaves the columns outside the rows,
/// the crossings are marked, the candidates are recomputed.
void espadon_lignes(int digit, int row1, int column1, int row2, int column2, int row3, int column3);
void meduse_lignes(int digit, int row1, int column1, int row2, int column2, int row3, int column3,
                   int row4, int column4);
/// The mirror: the digit leaves the rows outside the columns.
void espadon_colonnes(int digit, int row1, int column1, int row2, int column2, int row3,
                      int column3);
void meduse_colonnes(int digit, int row1, int column1, int row2, int column2, int row3, int column3,
                     int row4, int column4);

/// A cell of two candidates that sees two others which share a third digit with it.
Bool16 aile_xy();
/// The same around a cell of three candidates.
Bool16 aile_xyz();

/// An X-wing with extra places in its base lines, all in the box of the cell that loses the digit.
Bool16 aile_x_aileron();
/// What it does with a pattern on two base rows, and on two base columns: marks, the removal at the
/// target, the recompute.
void aileron_lignes(int digit, int row1, int column1, int row2, int column2, int target_row,
                    int target_column);
void aileron_colonnes(int digit, int row1, int column1, int row2, int column2, int target_row,
                      int target_column);

/// Rebuilds `LienFort` and `LienFaible`: cells that see each other and both hold a digit are
/// linked, strongly when they are its only two places in a unit, else weakly.
void construit_liens();

/// Two cells with the same two candidates whose ends of a strong link keep one of them from both.
/// Reads `LienFort`.
Bool16 aile_w();

/// Two colours along the strong links of a digit. Reads `LienFort`.
Bool16 coloriage();
/// Colours all that is linked to a coloured cell, depth first, each cell opposite to the one
/// before.
void colorie(int cell, int digit);
/// Uncoloured cells that see both colours lose the digit; tells whether any did.
Bool16 piege_couleurs(int digit);
/// When two cells of one colour see each other, all cells of that colour lose the digit; tells
/// whether there were two.
Bool16 enveloppe_couleurs(int digit);
/// Marks every empty cell by its colour; uncoloured cells lose their mark.
void affiche_couleurs();
/// Every cell is uncoloured again.
void efface_couleurs();

}  // namespace sdk
