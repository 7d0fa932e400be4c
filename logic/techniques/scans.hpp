// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// What scans of several techniques share.
#pragma once

#include <optional>

#include "board/cells.hpp"
#include "logic/deduction.hpp"

namespace sdk {

/// Asks `find_in` about every unit, rows, then columns, then boxes, until one has something.
template <class FindIn>
std::optional<Deduction> find_in_units(FindIn find_in) {
  for (const Unit unit : all_units)
    if (auto found = find_in(unit)) return found;
  return std::nullopt;
}

}  // namespace sdk
