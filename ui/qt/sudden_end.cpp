// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/sudden_end.hpp"

#include <unistd.h>

#include <cstdlib>
#include <utility>

#include "files/platform.hpp"

namespace sdk {

EndSignals::EndSignals(std::function<void(int, const std::string&)> end)
    : end_(std::move(end)), notifier_(platform::open_end_signals(), QSocketNotifier::Read) {
  QObject::connect(&notifier_, &QSocketNotifier::activated, [this] { read(); });
}

void EndSignals::read() {
  unsigned char number = 0;
  if (::read(static_cast<int>(notifier_.socket()), &number, 1) == 1)
    end_(number, platform::signal_name(number));
}

namespace {

/// What is to be done at exit(), if anything.
std::function<void()> at_exit;

void act_at_exit() {
  if (const auto act = std::exchange(at_exit, nullptr)) act();
}

}  // namespace

ExitWatch::ExitWatch(std::function<void()> act) {
  static const int registered = std::atexit(act_at_exit);
  if (registered == 0) at_exit = std::move(act);
}

ExitWatch::~ExitWatch() { at_exit = nullptr; }

}  // namespace sdk
