// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/cell_painter.hpp"

#include <QGuiApplication>
#include <QPainter>
#include <QPolygon>
#include <QStringList>

#include "ui/qt/contrast.hpp"

namespace sdk {

namespace {

constexpr QColor thin_line(0, 0, 0, 56);
constexpr int absent_candidate_alpha = 80;
// The cells are light in every theme, so this colour does not follow the palette.
constexpr QColor selection_tint(0x1c, 0x6d, 0xd0, 0x38);
constexpr int large_text_points = 18;

/// A candidate, or a pale dot in the middle of its place where there is none.
void paint_candidate(QPainter& painter, const QRect& place, const QString& entry, QColor colour) {
  constexpr QChar middle_dot(0xB7);
  const bool absent = entry == ".";
  if (absent) colour.setAlpha(absent_candidate_alpha);
  painter.setPen(colour);
  painter.drawText(place, Qt::AlignCenter, absent ? QString(middle_dot) : entry);
}

void paint_candidates(QPainter& painter, const QRect& square, const QStringList& lines,
                      const QColor& colour) {
  constexpr int entry_length = 3;
  for (int line = 0; line < lines.size(); ++line)
    for (int column = 0; column < 3; ++column)
      paint_candidate(painter, candidate_place(square, 3 * line + column + 1),
                      lines[line].mid(column * entry_length, entry_length).trimmed(), colour);
}

/// Tells a wrong value from a right one without its colour.
void paint_zigzag(QPainter& painter, const QRect& square, const QColor& colour) {
  constexpr int top = 41, left = 12, step = 4, steps = 7, height = 4;
  QPolygon zigzag;
  for (int i = 0; i <= steps; ++i)
    zigzag << QPoint(square.left() + left + i * step, square.top() + top + (i % 2) * height);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(colour, 2));
  painter.drawPolyline(zigzag);
  painter.restore();
}

void paint_text(QPainter& painter, const QRect& square, const DisplayCell& cell,
                const QColor& colour) {
  const QString text = to_qstring(cell.text);
  if (text.contains('\r')) return paint_candidates(painter, square, text.split('\r'), colour);
  painter.setPen(colour);
  painter.drawText(square, Qt::AlignCenter, text);
  if (cell.is_wrong()) paint_zigzag(painter, square, colour);
}

int font_size_of(const DisplayCell& cell, int grid_font_size) {
  return cell.font_size > 0 ? cell.font_size : grid_font_size;
}

}  // namespace

QColor to_qcolor(Colour colour) {
  return QColor(colour::red_of(colour), colour::green_of(colour), colour::blue_of(colour));
}

QString to_qstring(const std::string& cell_text) { return QString::fromLatin1(cell_text); }

QFont font_of_size(int points) {
  QFont font = QGuiApplication::font();
  font.setPixelSize(points * 4 / 3);
  return font;
}

QRect candidate_place(const QRect& square, int digit) {
  constexpr int margin = 2, side = (cell_side - 2 * margin) / 3;
  return QRect(square.left() + margin + (digit - 1) % 3 * side,
               square.top() + margin + (digit - 1) / 3 * side, side, side);
}

Colour selected_background(Colour back) {
  const auto mixed = [](int channel, int tint) {
    return static_cast<Colour>(channel + (tint - channel) * selection_tint.alpha() / 255);
  };
  return mixed(colour::red_of(back), selection_tint.red()) |
         mixed(colour::green_of(back), selection_tint.green()) << 8 |
         mixed(colour::blue_of(back), selection_tint.blue()) << 16;
}

QColor drawn_text_colour(const DisplayCell& cell, int grid_font_size) {
  const bool large = font_size_of(cell, grid_font_size) >= large_text_points;
  return legible(to_qcolor(cell.text_colour), to_qcolor(cell.back_colour),
                 large ? large_text_contrast : small_text_contrast);
}

void paint_background(QPainter& painter, const QRect& square, const QColor& back) {
  painter.fillRect(square, back);
  painter.fillRect(QRect(square.left(), square.bottom(), square.width(), 1), thin_line);
  painter.fillRect(QRect(square.right(), square.top(), 1, square.height() - 1), thin_line);
}

void paint_cell(QPainter& painter, const QRect& square, const DisplayCell& cell,
                int grid_font_size) {
  paint_background(painter, square, to_qcolor(cell.back_colour));
  if (cell.text == " ") return;
  painter.setFont(font_of_size(font_size_of(cell, grid_font_size)));
  paint_text(painter, square, cell, drawn_text_colour(cell, grid_font_size));
}

void paint_puzzle(QPainter& painter, const std::vector<DisplayCell>& cells) {
  QRect square(0, 0, cell_side, cell_side);
  for (const DisplayCell& cell : cells) {
    paint_cell(painter, square, cell, puzzle_font_size);
    square.translate(cell_side, 0);
    if (square.left() == DisplayGrid::size * cell_side) square.moveTo(0, square.top() + cell_side);
  }
}

}  // namespace sdk
