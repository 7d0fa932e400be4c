// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The facts that sentences have in common, told the same way everywhere. None begins with a
/// capital letter, and only removals() ends with a full stop.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "explanations/words.hpp"
#include "logic/deduction.hpp"

namespace sdk {

/// "r1c1 and r2c5 can only be 5 or 9; r4c4 only 2 or 5": cells that can hold the same are told
/// together.
std::string can_only_be(const Words& words, const std::vector<CellHolds>& facts);

/// Of one digit: "in row 2, the 5 can only go in r2c3 or r2c8; in row 6, only in r6c3".
std::string in_their_units(const Words& words, const std::vector<DigitInUnit>& facts);

/// Of one unit: "in row 2, the 5 and 7 can only go in r2c3 or r2c8; the 8 only in r2c8".
std::string in_one_unit(const Words& words, const std::vector<DigitInUnit>& facts);

/// Of a deduction that removes one digit: "r4c4 sees a 5 in r1c4 or r7c6; r5c5 sees a 5 in ...".
/// `seen` gives for each target the cells one of which is the digit. More than three targets that
/// are told together are not named when what is to be removed, which is told next, names just them.
std::string who_sees(const Words& words, const Deduction& deduction, const CellSet& targets,
                     const std::function<CellSet(int)>& seen);

/// "To remove: 3 from r1c5 and r1c7; 8 and 9 from r1c5."
std::string removals(const Words& words, const Deduction& deduction);

/// All cells that lose a digit, and all digits that a cell loses.
CellSet losers(const Deduction& deduction);
NineSet removed_digits(const Deduction& deduction);

/// The n-th of the digits, n from 1, which must be there.
int nth(NineSet digits, int n);

/// The text, which begins with a word, with a capital letter.
std::string capital(std::string text);

}  // namespace sdk
