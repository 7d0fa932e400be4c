// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// A search lets events run and works on the fields of the game. Commands that change them, or read
/// them, wait here until it is over.
#pragma once

#include <functional>

#include "screen/controls.hpp"

namespace sdk {

class MainWindow;
class ProgramGuard;

/// What a command does while a search runs.
enum class DuringSearch {
  acts,      ///< it does not touch the grid
  stops_it,  ///< stops the search as Escape does and acts once that is over
  nothing,   ///< what it asks for is already being done
};

/// What a press of `button` does.
DuringSearch during_search(Control button);

/// Runs the player's commands. Of those that wait only the last one is run.
class SearchStopper {
 public:
  /// Both must outlive the stopper.
  SearchStopper(MainWindow& window, ProgramGuard& guard) : window_(window), guard_(guard) {}

  /// Runs `command`, or has it wait. All that searches must be run here.
  void run(const std::function<void()>& command, DuringSearch during);

 private:
  void run_now(const std::function<void()>& command);

  MainWindow& window_;
  ProgramGuard& guard_;
  int running_ = 0;  ///< commands within commands
  std::function<void()> waiting_;
};

}  // namespace sdk
