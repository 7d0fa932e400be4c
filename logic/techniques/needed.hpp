// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Leaving out what a conclusion does not need.
#pragma once

#include "board/cell_set.hpp"

namespace sdk {

/// Cells none of which can be left out: in ascending order each of `cells` goes when the others
/// suffice. What suffices must go on to do so with more cells.
template <class Suffice>
CellSet needed_of(CellSet cells, Suffice suffice) {
  for (const int cell : CellSet(cells)) {
    const CellSet others = cells - CellSet{cell};
    if (suffice(others)) cells = others;
  }
  return cells;
}

}  // namespace sdk
