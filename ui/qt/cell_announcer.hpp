// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// What a screen reader has to hear of a grid beside what Qt tells it.
#pragma once

#include <QStringList>

class QAccessibleInterface;
class QTableView;

namespace sdk {

/// Compares the cells' accessible texts with those told before, so that of a grid that is written
/// anew the cells are told that really changed. Does nothing while no screen reader runs.
class CellAnnouncer {
 public:
  /// `view` must outlive the announcer.
  explicit CellAnnouncer(QTableView& view) : view_(view) {}

  /// Tells which cells' texts changed since the last call, if the grid is on screen.
  void announce_changes();
  /// Tells that the current cell has the keyboard focus, if the grid has it.
  void announce_focus();

 private:
  QStringList accessible_texts() const;
  QAccessibleInterface* accessible_cell(int row, int column) const;

  QTableView& view_;
  QStringList told_;  ///< row by row; empty when nothing was told
};

}  // namespace sdk
