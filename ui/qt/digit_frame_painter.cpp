// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/digit_frame_painter.hpp"

#include <QPainter>

namespace sdk {

namespace {

// The cells are light in every theme, so these colours do not follow the palette.
constexpr QColor clash_colour(0xc0, 0, 0);
constexpr QColor equal_colour(0, 0x66, 0x70);

constexpr int width = 2;
constexpr int inset = 2;            ///< clear of the lines between the boxes
constexpr int inset_in_border = 4;  ///< inside the border and its white line
constexpr int radius = 7;

}  // namespace

QColor frame_colour(DigitFrame frame) {
  return frame == DigitFrame::clash ? clash_colour : equal_colour;
}

void paint_digit_frame(QPainter& painter, const QRect& square, DigitFrame frame, bool in_border) {
  if (frame == DigitFrame::none) return;
  const double in = (in_border ? inset_in_border : inset) + width / 2.0;
  const double round = frame == DigitFrame::equal ? radius : 0;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(frame_colour(frame), width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(QRectF(square).adjusted(in, in, -in, -in), round, round);
  painter.restore();
}

}  // namespace sdk
