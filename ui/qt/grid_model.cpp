// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/grid_model.hpp"

#include "grid/globals.hpp"
#include "ui/messages.hpp"
#include "ui/qt/cell_painter.hpp"

namespace sdk {

namespace {

/// The digits of a cell with single blanks between them; what else a text holds is decoration.
QString spoken_content(const std::string& text) {
  QString content = to_qstring(text);
  content.replace('.', ' ').replace(',', ' ');
  content = content.simplified();
  return content.isEmpty() ? QString::fromStdString(notice(Notice::empty, globals.Langue))
                           : content;
}

QString spoken(const DisplayGrid& grid, int row, int column) {
  const std::string place =
      notice(Notice::cell, globals.Langue, std::to_string(row + 1), std::to_string(column + 1));
  return QString::fromStdString(place) + ": " + spoken_content(grid.text(row, column));
}

}  // namespace

GridModel::GridModel(const DisplayGrid& grid, QObject* parent)
    : QAbstractTableModel(parent), grid_(grid) {}

int GridModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : DisplayGrid::size;
}

int GridModel::columnCount(const QModelIndex& parent) const { return rowCount(parent); }

QVariant GridModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const DisplayCell& cell = grid_.cell(index.row(), index.column());
  switch (role) {
    case Qt::DisplayRole:
      return to_qstring(cell.text);
    case Qt::ForegroundRole:
      return to_qcolor(cell.text_colour);
    case Qt::BackgroundRole:
      return to_qcolor(cell.back_colour);
    case Qt::AccessibleTextRole:
      return spoken(grid_, index.row(), index.column());
    default:
      return {};
  }
}

void GridModel::announce_change() {
  emit dataChanged(index(0, 0), index(DisplayGrid::size - 1, DisplayGrid::size - 1));
}

}  // namespace sdk
