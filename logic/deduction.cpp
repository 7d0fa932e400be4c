// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "logic/deduction.hpp"

#include <algorithm>

namespace sdk {

bool Deduction::removes_something() const {
  return std::ranges::any_of(removed, [](const CellSet& losers) { return !losers.empty(); });
}

}  // namespace sdk
