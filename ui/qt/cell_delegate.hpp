// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Paints the cells of a grid on screen: what is in them, and what is current and selected.
#pragma once

#include <QAbstractItemDelegate>

#include "screen/display_grid.hpp"

namespace sdk {

/// How one of the two grids is shown.
struct GridLook {
  int font_size;             ///< of a cell that has none of its own, in points
  bool marks_without_focus;  ///< the current cell and the selection are marked at any time
};

class CellDelegate : public QAbstractItemDelegate {
 public:
  /// `grid` must outlive the delegate.
  CellDelegate(const DisplayGrid& grid, GridLook look, QObject* parent);

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 private:
  bool is_current(const QModelIndex& index) const;
  bool is_selected(const QModelIndex& index) const;

  const DisplayGrid& grid_;
  GridLook look_;
};

}  // namespace sdk
