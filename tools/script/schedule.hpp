// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// What is to happen while a search lets pending events run, and while a question is open.
#pragma once

#include <cstddef>
#include <vector>

#include "tools/script/arguments.hpp"

namespace sdk {

/// Steps are counted from 1, for each search by itself; depth 1 is a search that no other search
/// has started. One command may run any number of searches inside each other, and one after the
/// other at each depth only from commands of their own.
class Schedule {
 public:
  /// `action` happens at the given step of the next search that begins.
  void add(long step, Action action) { waiting_.push_back({step, std::move(action)}); }
  /// `action` happens at the given step of every search, after all else that happens there.
  void add_to_every_search(long step, Action action) {
    standing_.push_back({step, std::move(action)});
  }

  /// `action` happens while the next question is open, after all else that happens there.
  void add_to_question(Action action) { at_question_.push_back(std::move(action)); }

  /// One step of the search at `depth`: runs what is due.
  void step(int depth);
  /// Searches deeper than `depth` are over; what did not happen in them is dropped.
  void end_searches(int depth);
  /// A question is open: runs what is due.
  void open_question();

 private:
  struct Event {
    long step;
    Action action;
  };
  struct Search {
    long steps = 0;
    std::vector<Event> events;
  };

  void begin_search();
  static std::vector<Action> take_due(Search& search);

  std::vector<Event> waiting_, standing_;
  std::vector<Action> at_question_;
  std::vector<Search> searches_;  ///< running, outermost first
};

}  // namespace sdk
