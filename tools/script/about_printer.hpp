// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The about box as text.
#pragma once

#include <iosfwd>

#include "ui/main_window.hpp"

namespace sdk {

/// Prints the box when it opens and a line when it closes. Of the rest of the window a script shows
/// what it is asked for.
class AboutPrinter final : public WindowListener {
 public:
  /// `out` must outlive the printer.
  explicit AboutPrinter(std::ostream& out) : out_(out) {}

  /// Becomes the listener of `window`; the printer must outlive its last event.
  void listen_to(MainWindow& window);

 private:
  void about_changed() override;

  std::ostream& out_;
  const MainWindow* window_ = nullptr;
};

}  // namespace sdk
