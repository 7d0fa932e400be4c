// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/cell_delegate.hpp"

#include <QPainter>
#include <QStyleOptionViewItem>

#include "ui/qt/cell_painter.hpp"

namespace sdk {

namespace {

// The cells are light in every theme, so these colours do not follow the palette.
constexpr QColor focused_border(0x1c, 0x6d, 0xd0);
constexpr QColor unfocused_border(0x80, 0x80, 0x80);
constexpr int border_width = 3;

/// A border of one colour with a white one inside, so that it stands out on any background.
void paint_border(QPainter& painter, const QRect& square, const QColor& colour) {
  painter.setBrush(Qt::NoBrush);
  for (int inset = 0; inset <= border_width; ++inset) {
    painter.setPen(inset < border_width ? colour : QColor(Qt::white));
    painter.drawRect(square.adjusted(inset, inset, -inset - 1, -inset - 1));
  }
}

}  // namespace

CellDelegate::CellDelegate(const DisplayGrid& grid, GridLook look, QObject* parent)
    : QAbstractItemDelegate(parent), grid_(grid), look_(look) {}

void CellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
  painter->save();
  const bool focused = option.widget && option.widget->hasFocus();
  const bool marked = grid_.marks_current() && (focused || look_.marks_without_focus);
  const bool current = is_current(index);
  DisplayCell cell = grid_.cell(index.row(), index.column());
  if (marked && !current && is_selected(index))
    cell.back_colour = selected_background(cell.back_colour);
  paint_cell(*painter, option.rect, cell, look_.font_size);
  if (marked && current)
    paint_border(*painter, option.rect, focused ? focused_border : unfocused_border);
  painter->restore();
}

bool CellDelegate::is_current(const QModelIndex& index) const {
  return index.row() == grid_.current_row() && index.column() == grid_.current_column();
}

bool CellDelegate::is_selected(const QModelIndex& index) const {
  const CellRange range = grid_.selection();
  return index.row() >= range.first_row && index.row() <= range.last_row &&
         index.column() >= range.first_column && index.column() <= range.last_column;
}

QSize CellDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const {
  return {cell_side, cell_side};
}

}  // namespace sdk
