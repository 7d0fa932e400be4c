// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The cells that are marked in the candidate grid while a hint goes on.
#pragma once

#include <string>

#include "logic/run.hpp"

namespace sdk {

class MarkedCells {
 public:
  /// Shows the candidates of the event's position, which marks every value as such, then draws what
  /// the event highlights.
  void draw(const Event& event);

  /// "3=<cells> 4=<cells> 6=<cells>", cells row by row with commas between them.
  std::string text() const;

 private:
  void draw(Cell cell, Mark mark);
  void draw_values(const CandidateCube& candidates);

  CellSet removed_, support_, second_;
};

}  // namespace sdk
