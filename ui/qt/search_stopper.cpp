// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/search_stopper.hpp"

#include <utility>

#include "ui/main_window.hpp"
#include "ui/qt/program_guard.hpp"

namespace sdk {

DuringSearch during_search(Control button) {
  switch (button) {
    case Control::Command1:  // new
    case Control::Command2:  // clear
    case Control::Command4:  // print
    case Control::Command6:  // load
    case Control::Command7:  // show bad values
    case Control::Command8:  // hint
    case Control::sauve:
      return DuringSearch::stops_it;
    case Control::Bouton_GO:
      return DuringSearch::nothing;
    default:
      return DuringSearch::acts;
  }
}

void SearchStopper::run(const std::function<void()>& command, DuringSearch during) {
  if (window_.searches_running == 0 || during == DuringSearch::acts) return run_now(command);
  if (during == DuringSearch::nothing) return;
  waiting_ = command;
  guard_.run([this] { window_.preview_key(key::escape); });
}

void SearchStopper::run_now(const std::function<void()>& command) {
  ++running_;
  guard_.run(command);
  --running_;
  // Not before the command that searched has said how its search ended.
  while (running_ == 0 && waiting_) run_now(std::exchange(waiting_, nullptr));
}

}  // namespace sdk
