// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/long_search.hpp"

#include <chrono>
#include <utility>

namespace sdk {

LongSearch::LongSearch(std::function<void()> changed) : changed_(std::move(changed)) {
  using namespace std::chrono_literals;
  timer_.setSingleShot(true);
  timer_.setInterval(300ms);
  QObject::connect(&timer_, &QTimer::timeout, [this] { set_noticed(true); });
}

void LongSearch::set_searches(int running) {
  if (running == 0) {
    timer_.stop();
    set_noticed(false);
  } else if (!timer_.isActive() && !noticed_) {
    timer_.start();
  }
}

void LongSearch::set_noticed(bool noticed) {
  if (std::exchange(noticed_, noticed) != noticed) changed_();
}

}  // namespace sdk
