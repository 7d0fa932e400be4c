// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The game as its program sets it up, with its window shown.
#pragma once

#include <QApplication>

#include "ui/qt/main_frame.hpp"
#include "ui/qt/qt_desktop.hpp"

namespace sdk::bench {

class Game {
 public:
  Game() : desktop_(guard_), window_(desktop_), frame_(window_, guard_) {
    desktop_.set_window(&frame_);
    window_.start("");
    frame_.show();
    QApplication::processEvents();
  }

  MainWindow& window() { return window_; }

 private:
  ProgramGuard guard_;
  QtDesktop desktop_;
  MainWindow window_;
  MainFrame frame_;
};

}  // namespace sdk::bench
