// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// A step of a hint as a drawing that a front end paints or writes.
#pragma once

#include <vector>

#include "board/square.hpp"
#include "logic/run.hpp"

namespace sdk {

/// A cell as it stood before the step.
struct PictureCell {
  int value = 0;         ///< 1..9; 0 while it is empty
  NineSet candidates{};  ///< none in a cell that has a value
  Mark mark = Mark::none;
  NineSet pattern{};  ///< those that the step rests on, or that is offered: candidates that stay
  NineSet removed{};  ///< those of its candidates that the step removes
  bool operator==(const PictureCell&) const = default;
};

/// A thin line between a candidate of one cell and the same digit in another.
struct PictureLink {
  Placement from, to;
  bool operator==(const PictureLink&) const = default;
};

/// Rows and columns are 1..9.
struct StepPicture {
  Square<PictureCell> cells;
  /// How a wing's cells hang together, and the strong links of colouring. No two join the same.
  std::vector<PictureLink> links;
  /// A fish's base lines in ascending order, then those that cross them.
  std::vector<Unit> lines;
  bool operator==(const StepPicture&) const = default;
};

/// What the step does and what it rests on. A cell has the mark that the hint draws; where that has
/// none, a cell of the pattern gets the one of its role, and a cell that loses something
/// Mark::removed. A step that ends a hint without an offer has the cell
/// that is dead, if any, and nothing else.
StepPicture picture_of(const Event& event);

}  // namespace sdk
