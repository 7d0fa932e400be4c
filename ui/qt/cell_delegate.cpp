// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/cell_delegate.hpp"

#include <QPainter>
#include <QStyleOptionViewItem>

#include "ui/qt/cell_painter.hpp"
#include "ui/qt/digit_frame_painter.hpp"
#include "ui/qt/step_painter.hpp"

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

CellDelegate::CellDelegate(const DisplayGrid& grid, const std::optional<StepPicture>& step,
                           GridLook look, QObject* parent)
    : QAbstractItemDelegate(parent), grid_(grid), step_(step), look_(look) {}

void CellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
  painter->save();
  const bool focused = option.widget && option.widget->hasFocus();
  const bool marked = grid_.marks_current() && (focused || look_.marks_without_focus);
  const bool current = is_current(index);
  paint_content(*painter, option.rect, index, marked && !current && is_selected(index));
  if (look_.is_puzzle) paint_digit_frame(*painter, option.rect, frame_of(index), marked && current);
  if (marked && current)
    paint_border(*painter, option.rect, focused ? focused_border : unfocused_border);
  painter->restore();
}

void CellDelegate::paint_content(QPainter& painter, const QRect& square, const QModelIndex& index,
                                 bool selected) const {
  const PictureCell* shown = step_ ? &step_->cells(index.row() + 1, index.column() + 1) : nullptr;
  if (shown && look_.step == StepLook::cells) return paint_step_cell(painter, square, *shown);
  DisplayCell cell = seen_cell(index);
  if (selected) cell.back_colour = selected_background(cell.back_colour);
  paint_cell(painter, square, cell, look_.font_size);
  if (shown) paint_step_frame(painter, square, shown->mark);
}

DisplayCell CellDelegate::seen_cell(const QModelIndex& index) const {
  if (look_.is_puzzle) return as_seen(grid_, {index.row() + 1, index.column() + 1});
  return grid_.cell(index.row(), index.column());
}

DigitFrame CellDelegate::frame_of(const QModelIndex& index) const {
  return digit_frame(grid_, {index.row() + 1, index.column() + 1});
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
