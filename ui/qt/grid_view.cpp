// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/grid_view.hpp"

#include <QHeaderView>
#include <QPainter>
#include <QScopedValueRollback>
#include <algorithm>
#include <optional>
#include <utility>

#include "ui/qt/cell_painter.hpp"
#include "ui/qt/step_painter.hpp"

namespace sdk {

namespace {

void set_up_header(QHeaderView& header) {
  header.hide();
  header.setMinimumSectionSize(cell_side);
  header.setDefaultSectionSize(cell_side);
  header.setSectionResizeMode(QHeaderView::Fixed);
}

/// A cell by row and column.
struct Corner {
  int row, column;
};

/// The corner of `range` across from a corner of it.
Corner across(const CellRange& range, int row, int column) {
  return {row == range.first_row ? range.last_row : range.first_row,
          column == range.first_column ? range.last_column : range.first_column};
}

CellRange bounds_of(const QItemSelection& selection) {
  CellRange bounds{DisplayGrid::size, DisplayGrid::size, -1, -1};
  for (const QItemSelectionRange& range : selection)
    bounds = {std::min(bounds.first_row, range.top()), std::min(bounds.first_column, range.left()),
              std::max(bounds.last_row, range.bottom()),
              std::max(bounds.last_column, range.right())};
  return bounds;
}

}  // namespace

GridView::GridView(DisplayGrid& grid, GridLook look, QWidget* parent)
    : QTableView(parent),
      grid_(grid),
      step_look_(look.step),
      model_(grid, step_, look, nullptr),
      update_(*this, [this] { follow_grid(); }),
      announcer_(*this),
      tell_focus_(*this, [this] { announcer_.announce_focus(); }) {
  set_up_table();
  setModel(&model_);
  setItemDelegate(new CellDelegate(grid, step_, look, this));
  grid_.set_listener(this);
  update_.ask();
}

GridView::~GridView() { grid_.set_listener(nullptr); }

void GridView::set_up_table() {
  set_up_header(*horizontalHeader());
  set_up_header(*verticalHeader());
  setShowGrid(false);
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setAutoScroll(false);
  setSelectionMode(ContiguousSelection);
}

void GridView::set_accessible_name(const QString& name) {
  if (name == accessibleName()) return;
  setAccessibleName(name);
  cells_changed_ = true;
  update_.ask();
}

void GridView::show_step(const std::optional<StepPicture>& step) {
  if (step == step_) return;
  step_ = step;
  cells_changed_ = true;
  update_.ask();
}

void GridView::paintEvent(QPaintEvent* event) {
  QTableView::paintEvent(event);
  if (!step_ || step_look_ != StepLook::cells) return;
  QPainter painter(viewport());
  paint_step_links(painter, viewport()->rect(), *step_);
}

void GridView::cell_changed(int, int) {
  cells_changed_ = true;
  update_.ask();
}

void GridView::selection_changed() { update_.ask(); }

void GridView::appearance_changed() { update_.ask(); }

void GridView::refresh() {
  update_.make_now();
  viewport()->repaint();
}

void GridView::follow_grid() {
  set_tab_stop();
  setUpdatesEnabled(grid_.visible());
  select_as_grid();
  if (std::exchange(cells_changed_, false)) announce_cells();
  viewport()->update();
}

void GridView::announce_cells() {
  model_.announce_change();
  announcer_.announce_changes();
}

void GridView::select_as_grid() {
  const QScopedValueRollback following(following_grid_, true);
  const CellRange range = grid_.selection();
  selectionModel()->setCurrentIndex(model_.index(grid_.current_row(), grid_.current_column()),
                                    QItemSelectionModel::NoUpdate);
  selectionModel()->select(QItemSelection(model_.index(range.first_row, range.first_column),
                                          model_.index(range.last_row, range.last_column)),
                           QItemSelectionModel::ClearAndSelect);
}

void GridView::set_tab_stop() {
  const bool tab_stop = focusPolicy() & Qt::TabFocus;
  if (tab_stop != grid_.tab_stop()) setFocusPolicy(Qt::FocusPolicy(focusPolicy() ^ Qt::TabFocus));
}

void GridView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  // The table tells screen readers that the new current cell has the focus.
  if (hasFocus())
    QTableView::currentChanged(current, previous);
  else
    QAbstractItemView::currentChanged(current, previous);  // NOLINT(bugprone-parent-virtual-call)
  follow_view();
}

void GridView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
  QTableView::selectionChanged(selected, deselected);
  follow_view();
}

void GridView::follow_view() {
  const QModelIndex current = currentIndex();
  if (following_grid_ || !current.isValid()) return;
  if (!selectionModel()->isSelected(current))
    return grid_.make_current(current.row(), current.column());
  const Corner other =
      across(bounds_of(selectionModel()->selection()), current.row(), current.column());
  grid_.select(current.row(), current.column(), other.row, other.column);
}

void GridView::go_to(const QModelIndex& index, bool extend) {
  if (!index.isValid()) return;
  const Corner other = extend
                           ? across(grid_.selection(), grid_.current_row(), grid_.current_column())
                           : Corner{index.row(), index.column()};
  grid_.select(index.row(), index.column(), other.row, other.column);
  update_.make_now();
}

void GridView::focusInEvent(QFocusEvent* event) {
  QTableView::focusInEvent(event);
  tell_focus_.ask();  // after Qt told that the grid as a whole got it
}

}  // namespace sdk
