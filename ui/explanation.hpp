// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The steps of the last hint, as the player reads them and leafs through them.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "explanations/step_picture.hpp"

namespace sdk {

class DisplayGrid;

/// Empty from the start; a hint that has come to its question or its end fills it, and it is empty
/// again once the grid is not the one that the hint was asked for. Steps are counted from 0.
class Explanation {
 public:
  /// Tells the steps of `solver.hint`, if there is one; it was asked for the puzzle that `grid`
  /// shows. None is chosen.
  void tell(const DisplayGrid& grid);
  void clear();
  /// Whether it is not empty but of another puzzle than `grid` shows.
  bool is_outdated(const DisplayGrid& grid) const;

  /// A text for each step, in their order: French for exactly "Fr", English for anything else.
  std::vector<std::string> texts(std::string_view language) const;
  std::size_t size() const;

  /// Chooses the step that is to be shown alone; none, or one that is not there: no step.
  void choose(std::optional<std::size_t> step);
  std::optional<std::size_t> chosen() const { return chosen_; }
  /// The chosen step as a drawing, if there is one.
  std::optional<StepPicture> picture() const;

  /// The question that the steps lead to is answered, and no step is chosen any more.
  void leave();
  /// What the player is to look at while no step is chosen, as a drawing: the offer until it is
  /// answered, or the cell that is dead.
  std::optional<StepPicture> outcome() const;
  /// The cell that the hint offers a digit for, if it does.
  std::optional<Cell> offered_cell() const;

  /// Empty when all of this holds together, and with what `grid` shows; else what does not.
  std::string fault(const DisplayGrid& grid) const;

 private:
  std::vector<std::string> puzzle_;  ///< the cells' texts, row by row; none while it is empty
  std::optional<std::size_t> chosen_;
  bool answered_ = false;  ///< only offers ask
};

}  // namespace sdk
