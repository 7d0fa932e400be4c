// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/step_painter.hpp"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "pas_a_pas/view.hpp"
#include "ui/qt/cell_painter.hpp"
#include "ui/qt/contrast.hpp"

namespace sdk {

namespace {

// The cells are light in every theme, so these colours do not follow the palette.
constexpr QColor bystander(0x60, 0x60, 0x60);
constexpr QColor link_colour(0x10, 0x38, 0xa8, 0xd0);
constexpr QColor box_line(0, 0, 0);
constexpr QColor frame_edge(0x30, 0x30, 0x30);
constexpr int value_font_size = 20;

/// While it lives the painter's units are those of the cell painter, from the corner of `area`,
/// which has that many cells in a row.
class CellUnits {
 public:
  CellUnits(QPainter& painter, const QRect& area, int cells) : painter_(painter) {
    painter.save();
    painter.translate(area.topLeft());
    painter.scale(area.width() / double(cells * cell_side),
                  area.height() / double(cells * cell_side));
  }
  ~CellUnits() { painter_.restore(); }
  CellUnits(const CellUnits&) = delete;
  CellUnits& operator=(const CellUnits&) = delete;

 private:
  QPainter& painter_;
};

QColor back_of(const PictureCell& cell) {
  return to_qcolor(mark_background(cell.value ? Mark::value : cell.mark));
}

/// Struck out from the lower left to the upper right, so that no digit is taken for another one.
void strike(QPainter& painter, const QRect& place) {
  const QPointF reach(7, -4.5);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(Qt::black, 1.2));
  const QPointF middle = QRectF(place).center();
  painter.drawLine(middle - reach, middle + reach);
  painter.restore();
}

void paint_digit(QPainter& painter, const PictureCell& cell, int digit) {
  const QRect place = candidate_place(QRect(0, 0, cell_side, cell_side), digit);
  const bool told = cell.pattern.contains(digit), lost = cell.removed.contains(digit);
  QFont font = font_of_size(candidates_font_size);
  font.setBold(told);
  painter.setFont(font);
  painter.setPen(told || lost ? QColor(Qt::black)
                              : legible(bystander, back_of(cell), small_text_contrast));
  painter.drawText(place, Qt::AlignCenter, QString::number(digit));
  if (lost) strike(painter, place);
}

void paint_value(QPainter& painter, int value) {
  painter.setFont(font_of_size(value_font_size));
  painter.setPen(bystander);
  painter.drawText(QRect(0, 0, cell_side, cell_side), Qt::AlignCenter, QString::number(value));
}

QPointF middle_of(const Placement& placement) {
  const auto [cell, digit] = placement;
  const QRect square((cell.column - 1) * cell_side, (cell.row - 1) * cell_side, cell_side,
                     cell_side);
  return QRectF(candidate_place(square, digit)).center();
}

/// From `from` towards `to`, past the digit that stands at `from`.
QPointF beside(QPointF from, QPointF to) {
  constexpr double digit_radius = 8;
  const QLineF way(from, to);
  return way.pointAt(std::min(digit_radius / std::max(way.length(), 1.0), 0.5));
}

/// Bent, or a link along a row would strike out all digits between its ends.
QPainterPath path_of(const PictureLink& link) {
  constexpr double most_bent = 24;
  const QLineF way(middle_of(link.from), middle_of(link.to));
  const QLineF across = way.normalVector().unitVector();
  const double bend = std::min(way.length() / 5, most_bent);
  const QPointF middle = way.center() + (across.p2() - across.p1()) * bend;
  QPainterPath path(beside(way.p1(), middle));
  path.quadTo(middle, beside(way.p2(), middle));
  return path;
}

QRectF bounds_of(const Unit& unit) {
  const Cell first = unit.cell(1), last = unit.cell(9);
  return QRectF((first.column - 1) * cell_side, (first.row - 1) * cell_side,
                (last.column - first.column + 1) * cell_side,
                (last.row - first.row + 1) * cell_side);
}

void paint_box_lines(QPainter& painter) {
  constexpr int side = DisplayGrid::size * cell_side, width = 2;
  for (int cells = 0; cells <= DisplayGrid::size; cells += 3) {
    const int from = std::clamp(cells * cell_side - width / 2, 0, side - width);
    painter.fillRect(from, 0, width, side, box_line);
    painter.fillRect(0, from, side, width, box_line);
  }
}

}  // namespace

void paint_step_cell(QPainter& painter, const QRect& square, const PictureCell& cell) {
  const CellUnits units(painter, square, 1);
  paint_background(painter, QRect(0, 0, cell_side, cell_side), back_of(cell));
  if (cell.value) return paint_value(painter, cell.value);
  for (const int digit : cell.candidates) paint_digit(painter, cell, digit);
}

void paint_step_links(QPainter& painter, const QRect& area, const StepPicture& step) {
  constexpr double thin = 1.5, inset = 3;
  const CellUnits units(painter, area, DisplayGrid::size);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(link_colour, thin));
  painter.setBrush(Qt::NoBrush);
  for (const Unit& line : step.lines)
    painter.drawRoundedRect(bounds_of(line).adjusted(inset, inset, -inset, -inset), inset, inset);
  for (const PictureLink& link : step.links) painter.drawPath(path_of(link));
}

void paint_step(QPainter& painter, const QRect& area, const StepPicture& step) {
  {
    const CellUnits units(painter, area, DisplayGrid::size);
    for (int number = 1; number <= 81; ++number) {
      const auto [row, column] = cell_at(number);
      paint_step_cell(painter,
                      QRect((column - 1) * cell_side, (row - 1) * cell_side, cell_side, cell_side),
                      step.cells(row, column));
    }
    paint_box_lines(painter);
  }
  paint_step_links(painter, area, step);
}

void paint_step_frame(QPainter& painter, const QRect& square, Mark mark) {
  // Inside the border of the current cell.
  constexpr int inset = 4, width = 5;
  if (mark == Mark::none) return;
  painter.setBrush(Qt::NoBrush);
  for (int line = 0; line < width; ++line) {
    const bool edge = line == 0 || line == width - 1;
    painter.setPen(edge ? frame_edge : to_qcolor(mark_background(mark)));
    const int in = inset + line;
    painter.drawRect(square.adjusted(in, in, -in - 1, -in - 1));
  }
}

}  // namespace sdk
