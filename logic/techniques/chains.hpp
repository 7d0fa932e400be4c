// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Strong links as premises.
#pragma once

#include "board/cell_set.hpp"
#include "logic/draft.hpp"

namespace sdk {

/// The deduction rests on the first unit in which the two cells are the only places of the digit.
void rest_on_link(Draft& draft, const Position& position, int cell1, int cell2, int digit);

/// The deduction rests on a shortest chain of strong links from the cell to one of the goals; on
/// nothing when no chain joins them.
void rest_on_chain(Draft& draft, const Position& position, int from, const CellSet& goals,
                   int digit);

}  // namespace sdk
