// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/cell_announcer.hpp"

#include <QAccessible>
#include <QTableView>
#include <utility>

namespace sdk {

namespace {

void tell(QAccessibleInterface* cell, QAccessible::Event what) {
  QAccessibleEvent event(cell, what);
  QAccessible::updateAccessibility(&event);
}

}  // namespace

QStringList CellAnnouncer::accessible_texts() const {
  const QAbstractItemModel& model = *view_.model();
  QStringList texts;
  for (int row = 0; row < model.rowCount(); ++row)
    for (int column = 0; column < model.columnCount(); ++column)
      texts.push_back(model.data(model.index(row, column), Qt::AccessibleTextRole).toString());
  return texts;
}

QAccessibleInterface* CellAnnouncer::accessible_cell(int row, int column) const {
  return QAccessible::queryAccessibleInterface(&view_)->tableInterface()->cellAt(row, column);
}

void CellAnnouncer::announce_changes() {
  if (!QAccessible::isActive()) return told_.clear();
  const QStringList before = std::exchange(told_, accessible_texts());
  if (!view_.isVisible()) return;
  const int columns = view_.model()->columnCount();
  for (int i = 0; i < before.size(); ++i)
    if (before[i] != told_[i])
      tell(accessible_cell(i / columns, i % columns), QAccessible::NameChanged);
}

void CellAnnouncer::announce_focus() {
  const QModelIndex current = view_.currentIndex();
  if (!QAccessible::isActive() || !view_.hasFocus() || !current.isValid()) return;
  tell(accessible_cell(current.row(), current.column()), QAccessible::Focus);
}

}  // namespace sdk
