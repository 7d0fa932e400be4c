// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The about box on screen.
#pragma once

#include <QDialog>

#include "ui/about.hpp"

class QLayout;

namespace sdk {

class AboutLabel;

/// Shows the box as it is when the dialog is made. It never closes by itself: it tells what the
/// player does, and whoever made it deletes it.
class AboutDialog : public QDialog {
  Q_OBJECT

 public:
  AboutDialog(const About& about, QWidget* parent);

 signals:
  void clicked(AboutControl control);
  /// A key or a mouse button was pressed in the box, or its frame's close button; a click and a
  /// double click begin with such a press.
  void dismissed();

 protected:
  void showEvent(QShowEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  QLayout* make_picture();
  QLayout* make_credits();
  /// `label` as the widget of that control.
  AboutLabel* put(AboutLabel* label, AboutControl control);
  AboutLabel* make_text(AboutControl control, int points);
  /// `label` with the text of its control.
  void write(AboutLabel& label, AboutControl control, const QFont& font);
  AboutLabel* make_link();

  const About& about_;
};

}  // namespace sdk
