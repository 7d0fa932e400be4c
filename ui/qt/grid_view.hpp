// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// One of the two grids on screen.
#pragma once

#include <QTableView>
#include <optional>

#include "screen/display_grid.hpp"
#include "ui/qt/cell_announcer.hpp"
#include "ui/qt/cell_delegate.hpp"
#include "ui/qt/deferred_call.hpp"
#include "ui/qt/grid_model.hpp"

namespace sdk {

/// The grid's current cell and selection are the view's, whichever of the two moves. Arrows, Page,
/// Home and End move them, extended by Shift and the mouse; so does the right mouse button outside
/// the selection. Tab leaves the grid; every other key is reported. While the core hides the grid,
/// repainting is suspended and nothing else.
class GridView : public QTableView, private DisplayGridListener {
  Q_OBJECT

 public:
  /// Becomes the listener of `grid`, which must outlive the view.
  GridView(DisplayGrid& grid, GridLook look, QWidget* parent);
  ~GridView() override;

  /// The grid's accessible name; the cells' accessible texts are taken to have changed with it.
  void set_accessible_name(const QString& name);
  /// Shows a step of a hint as the look tells; none: the grid's cells alone. The grid itself keeps
  /// what it holds.
  void show_step(const std::optional<StepPicture>& step);

 signals:
  /// A code of key_codes.hpp.
  void key_pressed(int code, bool ctrl);
  /// The left mouse button went down or up.
  void button_pressed_or_released();
  /// The right mouse button or the menu's key asks for the menu of the current cell, which is to
  /// open beside `place`, in pixels of the desktop.
  void menu_asked(const QRect& place, bool by_key);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

 private:
  void cell_changed(int row, int column) override;
  void selection_changed() override;
  void appearance_changed() override;
  void refresh() override;

  /// How a key moves the current cell, if it does.
  static std::optional<CursorAction> movement_of(int qt_key);

  void set_up_table();
  void go_to(const QModelIndex& index, bool extend);
  void ask_for_menu_at_cell();
  void follow_grid();
  void announce_cells();
  void select_as_grid();
  void follow_view();
  void set_tab_stop();

  DisplayGrid& grid_;
  StepLook step_look_;
  std::optional<StepPicture> step_;
  GridModel model_;
  DeferredCall update_;
  CellAnnouncer announcer_;
  DeferredCall tell_focus_;
  bool cells_changed_ = true;
  bool following_grid_ = false;
};

}  // namespace sdk
