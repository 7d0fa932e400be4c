// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/page_painter.hpp"

#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPainter>

#include "ui/qt/cell_painter.hpp"

namespace sdk {

namespace {

constexpr double twips_per_inch = 1440;
constexpr int twips_per_point = 20;

/// Paints each kind of drawing; the painter's unit is the twip.
struct DrawingPainter {
  QPainter& painter;

  void operator()(const TextDrawing& text) const {
    QFont font(QString::fromStdString(text.font));
    font.setPixelSize(text.size * twips_per_point);
    painter.setFont(font);
    painter.setPen(Qt::black);
    painter.drawText(QPointF(text.x, text.y + QFontMetricsF(font).ascent()),
                     QString::fromStdString(text.text));
  }

  void operator()(const PictureDrawing& picture) const {
    constexpr double side = DisplayGrid::size * cell_side;
    painter.save();
    painter.translate(picture.x, picture.y);
    painter.scale(picture.width / side, picture.height / side);
    paint_puzzle(painter, picture.cells);
    painter.restore();
  }

  void operator()(const LineDrawing& line) const {
    painter.setPen(QPen(Qt::black, line.width, Qt::SolidLine, Qt::SquareCap));
    painter.drawLine(QPointF(line.x1, line.y1), QPointF(line.x2, line.y2));
  }
};

}  // namespace

void paint_drawings(QPainter& painter, const Page& page) {
  for (const Drawing& drawing : page) std::visit(DrawingPainter{painter}, drawing);
}

bool paint_page(QPagedPaintDevice& device, const Page& page) {
  QPainter painter;
  if (!painter.begin(&device)) return false;
  painter.scale(device.logicalDpiX() / twips_per_inch, device.logicalDpiY() / twips_per_inch);
  paint_drawings(painter, page);
  return painter.end();
}

}  // namespace sdk
