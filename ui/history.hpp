// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The steps of a game that can be taken back, and done again.
#pragma once

#include <deque>

#include "ui/game_state.hpp"

namespace sdk {

/// Knows the present state of the game and as many steps as there were. A step is a change of some
/// cell's text; what else changes between two steps comes and goes with them.
class History {
 public:
  /// A game begins: there is no step.
  void begin(GameState now);
  /// Hears how the game is now. Returns whether that is a step; what was undone is then gone.
  bool note(GameState now);

  /// The game as it was heard of last.
  const GameState& present() const { return present_; }
  bool can_undo() const { return !done_.empty(); }
  bool can_redo() const { return !undone_.empty(); }
  /// Takes the last step back and returns the game as it was; it is the present one now. Only when
  /// can_undo().
  const GameState& undo() { return turn(done_, undone_); }
  /// Does the step again that was undone last. Only when can_redo().
  const GameState& redo() { return turn(undone_, done_); }

 private:
  using States = std::deque<GameState>;

  const GameState& turn(States& from, States& to);

  GameState present_;
  States done_;    ///< how the game was before each step, the last step at the back
  States undone_;  ///< how it was after each step that was undone
};

}  // namespace sdk
