// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/line_overlay.hpp"

#include <QPainter>
#include <QRegion>

#include "ui/qt/pixels.hpp"

namespace sdk {

namespace {

/// The pixels of a horizontal or vertical line, centred on its coordinates.
QRect area_of(const LineDrawing& line) {
  const QPoint from(pixels(line.x1), pixels(line.y1)), to(pixels(line.x2), pixels(line.y2));
  const int before = line.width / 2;
  if (from.y() == to.y()) return {from.x(), from.y() - before, to.x() - from.x(), line.width};
  return {from.x() - before, from.y(), line.width, to.y() - from.y()};
}

}  // namespace

LineOverlay::LineOverlay(const MainWindow& window, QWidget* parent)
    : QWidget(parent), window_(window) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

void LineOverlay::redraw() {
  QRegion areas;
  for (const LineDrawing& line : window_.lines()) areas += area_of(line);
  update(areas);
}

void LineOverlay::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  for (const LineDrawing& line : window_.lines()) painter.fillRect(area_of(line), Qt::black);
}

}  // namespace sdk
