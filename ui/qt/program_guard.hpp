// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The one place where the end of the program leaves the core and reaches Qt's event loop.
#pragma once

#include <functional>
#include <optional>

namespace sdk {

/// No exception may travel through Qt's event loop, so every Qt handler that calls the core does it
/// inside run().
class ProgramGuard {
 public:
  /// Runs a handler. A ProgramEnd that it throws is kept, and every running event loop is told to
  /// return. Once the program has ended handlers are no longer run.
  void run(const std::function<void()>& handler);

  /// To be called in the core's frame after an event loop returned: throws ProgramEnd again when
  /// the player ended the program inside it.
  void rethrow() const;

  /// The exit status, once the program has ended.
  std::optional<int> status() const { return status_; }

 private:
  std::optional<int> status_;
};

}  // namespace sdk
