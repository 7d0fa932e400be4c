// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/grid_model.hpp"

#include "game/globals.hpp"
#include "ui/messages.hpp"
#include "ui/qt/cell_painter.hpp"
#include "ui/spoken_cell.hpp"

namespace sdk {

GridModel::GridModel(const DisplayGrid& grid, const std::optional<StepPicture>& step, GridLook look,
                     QObject* parent)
    : QAbstractTableModel(parent), grid_(grid), step_(step), look_(look) {}

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
      return spoken(index.row(), index.column());
    default:
      return {};
  }
}

QString GridModel::spoken(int row, int column) const {
  const PictureCell* shown = step_ ? &step_->cells(row + 1, column + 1) : nullptr;
  if (shown && (look_.step == StepLook::cells || shown->mark != Mark::none))
    return QString::fromStdString(spoken_cell(*shown, row, column, globals.Langue));
  if (look_.is_puzzle)
    return QString::fromStdString(spoken_puzzle_cell(grid_, row, column, globals.Langue));
  return QString::fromStdString(spoken_cell(grid_, row, column, globals.Langue));
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::AccessibleTextRole) return {};
  const Notice line = orientation == Qt::Vertical ? Notice::row : Notice::column;
  return QString::fromStdString(notice(line, globals.Langue, std::to_string(section + 1)));
}

void GridModel::announce_change() {
  emit dataChanged(index(0, 0), index(DisplayGrid::size - 1, DisplayGrid::size - 1));
}

}  // namespace sdk
