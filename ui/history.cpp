// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/history.hpp"

#include <cassert>
#include <utility>

namespace sdk {

void History::begin(GameState now) {
  done_.clear();
  undone_.clear();
  present_ = std::move(now);
}

bool History::note(GameState now) {
  const bool is_step = !now.has_texts_of(present_);
  if (is_step) {
    done_.push_back(std::move(present_));
    undone_.clear();
  }
  present_ = std::move(now);
  return is_step;
}

const GameState& History::turn(States& from, States& to) {
  assert(!from.empty());
  to.push_back(std::exchange(present_, std::move(from.back())));
  from.pop_back();
  return present_;
}

}  // namespace sdk
