// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// A question that leaves a part of its window in use.
#pragma once

#include <QMessageBox>
#include <QObject>
#include <vector>

namespace sdk {

/// A modal box would block its whole window. This one is not modal; instead the window's input is
/// stopped while it is open, but for one part. Tab leads from the box to that part and back, and a
/// click on anything else brings the box to the front.
class QuestionGate {
 public:
  /// `open_part` of `window` stays in use. Both must outlive the gate.
  QuestionGate(QWidget& window, QWidget& open_part) : window_(window), open_part_(open_part) {}

  /// Shows the box, which belongs to the window, and returns what it was answered; 0 when the
  /// program is ending. The keyboard focus of the window is then where it was before.
  int ask(QMessageBox& box);
  bool is_asking() const { return box_ != nullptr; }

  /// To be asked of every event of the program before its receiver sees it; one that is stopped
  /// must go no further.
  bool stops(QObject* receiver, QEvent* event) {
    return box_ && stops_while_asking(receiver, event);
  }

  /// Gives the keyboard back to the box.
  void return_to_box() { box_->activateWindow(); }

 private:
  bool stops_while_asking(QObject* receiver, QEvent* event);
  bool is_open(const QWidget* widget) const;
  bool stops_in_window(QWidget& widget, const QEvent& event);
  bool moves_focus(QWidget& widget, const QEvent& event);
  std::vector<QWidget*> tab_order() const;

  QWidget& window_;
  QWidget& open_part_;
  QMessageBox* box_ = nullptr;
};

}  // namespace sdk
