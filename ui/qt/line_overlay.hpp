// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The box lines on top of everything.
#pragma once

#include <QWidget>

#include "ui/main_window.hpp"

namespace sdk {

/// Covers the whole window, lets the mouse through and always shows MainWindow::lines.
class LineOverlay : public QWidget {
 public:
  /// `window` must outlive the overlay.
  LineOverlay(const MainWindow& window, QWidget* parent);

  /// To be called when the lines were drawn anew. Repaints nothing but them.
  void redraw();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const MainWindow& window_;
};

}  // namespace sdk
