// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// How the tools and tests follow a run of the step-by-step solver.
#pragma once

#include "board/cells.hpp"

namespace sdk {

struct Technique;

enum class Single { naked, hidden };
enum class RunEnd {
  completed,  ///< no cell is empty
  dead,       ///< an empty cell has no candidate
  exhausted,  ///< no technique changes anything
};

/// Every call comes while the solver's tables, the step's description included, are as the event
/// left them. An observer only looks.
class SolverObserver {
 public:
  virtual ~SolverObserver() = default;
  /// A round begins: the candidates are recomputed.
  virtual void recomputed() {}
  virtual void trying(const Technique&) {}
  virtual void tried(const Technique&, bool /*changed*/) {}
  /// The player is about to be asked.
  virtual void offered(Single, Cell, int /*digit*/) {}
  /// The run is over; its message, if it has one, is about to be shown.
  virtual void ended(RunEnd) {}
};

}  // namespace sdk
