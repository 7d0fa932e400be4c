// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tools/script/schedule.hpp"

#include <utility>

namespace sdk {

void Schedule::step(int depth) {
  const auto running = static_cast<std::size_t>(depth);
  while (searches_.size() < running) begin_search();
  Search& search = searches_[running - 1];
  ++search.steps;
  if (search.events.empty()) return;
  for (const Action& action : take_due(search)) {
    action();
    end_searches(depth);
  }
}

void Schedule::end_searches(int depth) {
  const auto running = static_cast<std::size_t>(depth);
  if (searches_.size() > running) searches_.resize(running);
}

void Schedule::open_question() {
  for (const Action& action : std::exchange(at_question_, {})) action();
}

void Schedule::begin_search() {
  Search search;
  search.events = std::exchange(waiting_, {});
  search.events.insert(search.events.end(), standing_.begin(), standing_.end());
  searches_.push_back(std::move(search));
}

std::vector<Action> Schedule::take_due(Search& search) {
  std::vector<Action> due;
  std::erase_if(search.events, [&](Event& event) {
    if (event.step != search.steps) return false;
    due.push_back(std::move(event.action));
    return true;
  });
  return due;
}

}  // namespace sdk
