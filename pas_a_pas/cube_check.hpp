// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// What always holds of the candidates once they are recomputed.
#pragma once

#include <string>

namespace sdk {

/// Empty when `Candidats` is as every round of a run must find it: sets and flags agree, counts are
/// true, no filled cell has a candidate, and no cell has one whose value it sees. Else what is
/// wrong, and where.
std::string candidats_fault();

}  // namespace sdk
