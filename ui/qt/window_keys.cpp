// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The keys of the window, which it sees before its controls do.

#include <QApplication>
#include <QKeyEvent>

#include "ui/qt/key_codes.hpp"
#include "ui/qt/main_frame.hpp"

namespace sdk {

namespace {

/// The window that a widget belongs to; a list or a menu that is open belongs to its owner's.
const QWidget* window_of(const QWidget& widget) {
  const QWidget* window = widget.window();
  const bool open_list = window->windowType() == Qt::Popup && window->parentWidget();
  return open_list ? window->parentWidget()->window() : window;
}

/// Closes the list or menu that is open; false when there is none.
bool close_open_list() {
  QWidget* list = QApplication::activePopupWidget();
  return list && list->close();
}

}  // namespace

/// Sees every event of the program before its receiver does.
bool MainFrame::eventFilter(QObject* watched, QEvent* event) {
  if (small_screen_.scrolls_for(watched, event) || gate_.stops(watched, event)) return true;
  const bool is_key = event->type() == QEvent::KeyPress;
  if (!is_key && event->type() != QEvent::MouseButtonPress) return false;
  session_ends_ = false;  // the player goes on, so the end of the session was called off
  const auto* widget = qobject_cast<QWidget*>(watched);
  if (!is_key || !widget || window_of(*widget) != this) return false;
  const int code = key_code(*static_cast<QKeyEvent*>(event)).code;
  if (code != key::f1 && code != key::f2 && code != key::escape) return false;
  preview(code);
  return true;
}

/// An open list does not outlast the key: its texts may change under it, and Escape closes it.
void MainFrame::preview(int code) {
  const bool closed = close_open_list();
  const bool left = closed || (code == key::escape && explanation_->leave_step());
  if (!gate_.is_asking()) return guard_.run([&] { window_.preview_key(code); });
  if (code == key::escape && !left) gate_.return_to_box();
}

}  // namespace sdk
