// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// A grid of the core as Qt's item views and screen readers see it.
#pragma once

#include <QAbstractTableModel>
#include <optional>

#include "explanations/step_picture.hpp"
#include "screen/display_grid.hpp"
#include "ui/qt/cell_delegate.hpp"

namespace sdk {

class GridModel : public QAbstractTableModel {
 public:
  /// `grid` and `step`, the step that is shown, if any, must outlive the model.
  GridModel(const DisplayGrid& grid, const std::optional<StepPicture>& step, GridLook look,
            QObject* parent);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  /// The text to show, the two colours, and the accessible text of spoken_cell or, of the puzzle,
  /// of spoken_puzzle_cell; for a cell that a step shows or frames, that of the step's cell.
  QVariant data(const QModelIndex& index, int role) const override;
  /// The accessible names of rows and columns; their headers are not on screen.
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  /// Tells the views that any cell may have changed.
  void announce_change();

 private:
  QString spoken(int row, int column) const;

  const DisplayGrid& grid_;
  const std::optional<StepPicture>& step_;
  GridLook look_;
};

}  // namespace sdk
