// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/cell_delegate.hpp"

#include <QPainter>
#include <QStyleOptionViewItem>

#include "ui/qt/cell_painter.hpp"

namespace sdk {

namespace {

// The cells are light in every theme, so these colours do not follow the palette.
constexpr QColor selection_tint(0x1c, 0x6d, 0xd0, 0x38);
constexpr QColor focused_border(0x1c, 0x6d, 0xd0);
constexpr QColor unfocused_border(0x80, 0x80, 0x80);
constexpr int border_width = 3;

bool contains(const CellRange& range, int row, int column) {
  return row >= range.first_row && row <= range.last_row && column >= range.first_column &&
         column <= range.last_column;
}

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
  paint_cell(*painter, option.rect, grid_.cell(index.row(), index.column()), look_.font_size);
  const bool focused = option.widget && option.widget->hasFocus();
  if (grid_.marks_current() && (focused || look_.marks_without_focus))
    paint_marks(*painter, option.rect, focused, index);
  painter->restore();
}

void CellDelegate::paint_marks(QPainter& painter, const QRect& square, bool focused,
                               const QModelIndex& index) const {
  const CellRange range = grid_.selection();
  const bool is_current =
      index.row() == grid_.current_row() && index.column() == grid_.current_column();
  if (!is_current && contains(range, index.row(), index.column()))
    painter.fillRect(square, selection_tint);
  if (is_current) paint_border(painter, square, focused ? focused_border : unfocused_border);
}

QSize CellDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const {
  return {cell_side, cell_side};
}

}  // namespace sdk
