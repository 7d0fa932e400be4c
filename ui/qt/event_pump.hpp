// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// When a long computation has to let events run.
#pragma once

#include <chrono>

namespace sdk {

/// Says yes about every 10 ms, at the cost of a countdown: the clock is only looked at now and
/// then, the more rarely the faster the questions come.
class EventPump {
 public:
  /// Counts the question and answers whether events are due.
  bool poll() { return --questions_left_ <= 0 && look_at_clock(); }

 private:
  using Clock = std::chrono::steady_clock;

  bool look_at_clock();

  int questions_left_ = 1;
  int questions_a_look_ = 1;
  Clock::time_point last_look_, last_yes_;
};

}  // namespace sdk
