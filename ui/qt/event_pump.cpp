// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/event_pump.hpp"

#include <algorithm>
#include <utility>

namespace sdk {

namespace {

using namespace std::chrono_literals;

constexpr auto longest_wait = 10ms;
constexpr auto between_looks = 50us;
constexpr int most_questions_a_look = 512;

}  // namespace

bool EventPump::look_at_clock() {
  const auto now = Clock::now();
  const bool fast = now - std::exchange(last_look_, now) < between_looks;
  questions_a_look_ = fast ? std::min(2 * questions_a_look_, most_questions_a_look) : 1;
  questions_left_ = questions_a_look_;
  if (now - last_yes_ < longest_wait) return false;
  last_yes_ = now;
  return true;
}

}  // namespace sdk
