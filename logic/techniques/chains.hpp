// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Strong links as premises.
#pragma once

#include "board/cell_set.hpp"
#include "logic/draft.hpp"
#include "logic/techniques/colouring.hpp"

namespace sdk {

/// The deduction rests on the first unit in which the two cells are the only places of the digit.
void rest_on_link(Draft& draft, const Position& position, int cell1, int cell2, int digit);

/// The deduction rests on every strong link between two of the cells.
void rest_on_links(Draft& draft, const Position& position, const CellSet& cells, int digit);

/// The cells of a shortest chain from the cell to one of the goals, both ends included, along
/// strong links between cells of different colours; none when no such chain joins them.
CellSet chain_between(const LinkTable& strong, const ColourTable& colours, int from,
                      const CellSet& goals, int digit);

}  // namespace sdk
