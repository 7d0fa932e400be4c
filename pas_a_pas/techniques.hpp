// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The techniques that remove candidates, as procedures over the solver's tables. A procedure named
/// after a technique applies the first pattern of its scan that removes something, and returns
/// true; or it removes and marks nothing and returns false. Techniques mark only while
/// `ModePasAPas` is true; what they remove is the same either way. Rows, columns and digits
/// are 1..9, cell numbers 1..81.
#pragma once

#include "board/bool16.hpp"
#include "logic/techniques.hpp"

namespace sdk {

/// What a technique found on the present tables: shows what the deduction highlights while
/// `ModePasAPas` is true, takes its candidates away, and ends as its technique does.
void perform(const Deduction& deduction);

/// What `SuggestionTrouvee` becomes when the technique is asked, whether or not it finds anything.
void lower_flag(const Technique& technique);

/// Asks the technique, and performs what it finds.
Bool16 find_and_perform(const Technique& technique);

Bool16 rectangles_uniques();
Bool16 rectangle_evitable();

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

Bool16 aile_xy();
Bool16 aile_xyz();

Bool16 aile_x_aileron();
/// What it does with a pattern on two base rows, and on two base columns: marks, the removal at the
/// target, the recompute.
void aileron_lignes(int digit, int row1, int column1, int row2, int column2, int target_row,
                    int target_column);
void aileron_colonnes(int digit, int row1, int column1, int row2, int column2, int target_row,
                      int target_column);

/// Rebuilds `LienFort` and `LienFaible`.
void construit_liens();

/// Reads `LienFort`.
Bool16 aile_w();

/// Reads `LienFort`; leaves `Couleur` without colours.
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
