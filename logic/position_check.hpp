// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// What always holds of a position once it is recomputed.
#pragma once

#include <string>

#include "logic/position.hpp"

namespace sdk {

/// Empty when the candidates are as every round of a run must find them: sets and flags agree,
/// counts are true, no filled cell has a candidate, and no cell has one whose value it sees. Else
/// what is wrong, and where.
std::string position_fault(const Position& position);

}  // namespace sdk
