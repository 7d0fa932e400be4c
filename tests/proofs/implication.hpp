// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Whether premises imply a conclusion, with nothing but: a cell holds exactly one digit, and cells
/// that see each other differ.
#pragma once

#include "tests/proofs/step.hpp"

namespace sdk::proofs {

/// Whether the cells that are named can be filled so that all premises are met and `cell` holds one
/// of the digits. A cell without a premise of its own may hold any digit; other cells do not count.
/// All ways are searched.
bool has_a_way(const Premises& premises, int cell, const Digits& digits);

/// Whether the candidate cannot be there.
bool is_excluded(const Premises& premises, const CellDigit& candidate);
/// Whether no other digit can be there.
bool is_forced(const Premises& premises, const CellDigit& placed);

}  // namespace sdk::proofs
