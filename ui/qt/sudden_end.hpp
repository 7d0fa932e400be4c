// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Ends of the program that the player did not ask for: signals, and the loss of the display.
#pragma once

#include <QSocketNotifier>
#include <functional>
#include <string>

namespace sdk {

/// While it lives, a signal that tells the program to end is taken in the event loop.
class EndSignals {
 public:
  /// `end(number, name)` is called with the signal, for instance 15 and "SIGTERM". One object in a
  /// program's life.
  explicit EndSignals(std::function<void(int, const std::string&)> end);

 private:
  void read();

  std::function<void(int, const std::string&)> end_;
  QSocketNotifier notifier_;
};

/// While it lives, `act` is called when the process exits all the same: Qt calls exit() when its
/// connection to the display breaks. One object at a time; `act` throws nothing.
class ExitWatch {
 public:
  explicit ExitWatch(std::function<void()> act);
  ~ExitWatch();
  ExitWatch(const ExitWatch&) = delete;
  ExitWatch& operator=(const ExitWatch&) = delete;
};

}  // namespace sdk
