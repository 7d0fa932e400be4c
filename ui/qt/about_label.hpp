// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The parts of the about box.
#pragma once

#include <QLabel>
#include <QSvgRenderer>

namespace sdk {

/// A label that can be clicked. A press on it never reaches the window behind.
class AboutLabel : public QLabel {
  Q_OBJECT

 public:
  AboutLabel();

 signals:
  /// The left button went down and up on the label.
  void clicked();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
};

/// A label that looks and is told like a link.
class LinkLabel : public AboutLabel {
  Q_OBJECT

 public:
  LinkLabel();
};

/// The picture, sharp on every screen.
class PictureLabel : public AboutLabel {
  Q_OBJECT

 public:
  PictureLabel();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QSvgRenderer picture_;
};

}  // namespace sdk
