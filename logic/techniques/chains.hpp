// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Strong links as premises.
#pragma once

#include "board/cell_set.hpp"
#include "logic/draft.hpp"

namespace sdk {

/// The deduction rests on the first unit in which the two cells are the only places of the digit.
void rest_on_link(Draft& draft, const Position& position, int cell1, int cell2, int digit);

/// The deduction rests on every strong link between two of the cells.
void rest_on_links(Draft& draft, const Position& position, const CellSet& cells, int digit);

/// The cells of a shortest chain of strong links from the cell to one of the goals, both ends
/// included; none when no chain joins them.
CellSet chain_between(const LinkTable& strong, int from, const CellSet& goals, int digit);

}  // namespace sdk
