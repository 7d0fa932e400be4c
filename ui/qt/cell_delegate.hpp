// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Paints the cells of a grid on screen: what is in them, and what is current and selected.
#pragma once

#include <QAbstractItemDelegate>

#include <optional>

#include "explanations/step_picture.hpp"
#include "screen/digit_frames.hpp"
#include "screen/display_grid.hpp"

namespace sdk {

/// What a grid makes of a step that is shown alone.
enum class StepLook {
  cells,   ///< the step's cells in place of its own
  frames,  ///< its own cells, those that are marked in the step in frames
};

/// How one of the two grids is shown.
struct GridLook {
  int font_size;             ///< of a cell that has none of its own, in points
  bool marks_without_focus;  ///< the current cell and the selection are marked at any time
  StepLook step;
  bool is_puzzle;  ///< its digits may clash, and be equal to the current cell's
};

class CellDelegate : public QAbstractItemDelegate {
 public:
  /// `grid` and `step`, the step that is shown, if any, must outlive the delegate.
  CellDelegate(const DisplayGrid& grid, const std::optional<StepPicture>& step, GridLook look,
               QObject* parent);

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 private:
  void paint_content(QPainter& painter, const QRect& square, const QModelIndex& index,
                     bool selected) const;
  DisplayCell seen_cell(const QModelIndex& index) const;
  DigitFrame frame_of(const QModelIndex& index) const;
  bool is_current(const QModelIndex& index) const;
  bool is_selected(const QModelIndex& index) const;

  const DisplayGrid& grid_;
  const std::optional<StepPicture>& step_;
  GridLook look_;
};

}  // namespace sdk
