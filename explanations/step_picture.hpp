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
  int value = 0;  ///< 1..9; 0 while it is empty
  NineSet candidates;
  Mark mark = Mark::none;
  NineSet pattern;  ///< those of its candidates that the step rests on, or that is offered
  NineSet removed;  ///< those of its candidates that the step removes
  bool operator==(const PictureCell&) const = default;
};

/// A thin line between the same digit's, or two cells', candidates; a digit is 1..9.
struct PictureLink {
  Placement from, to;
  bool operator==(const PictureLink&) const = default;
};

/// Rows and columns are 1..9.
struct StepPicture {
  Square<PictureCell> cells;
  std::vector<PictureLink> links;  ///< of a chain
  std::vector<Unit> lines;         ///< of a fish
  bool operator==(const StepPicture&) const = default;
};

/// What the step does and what it rests on. A step that ends a hint without an offer has the cell
/// that is dead, if any, and nothing else.
StepPicture picture_of(const Event& event);

}  // namespace sdk
