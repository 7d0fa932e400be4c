// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The keys and the mouse on a grid.

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>
#include <optional>

#include "ui/qt/grid_view.hpp"
#include "ui/qt/key_codes.hpp"

namespace sdk {

namespace {

bool is_tab(int qt_key) { return qt_key == Qt::Key_Tab || qt_key == Qt::Key_Backtab; }

bool is_menu_key(const QKeyEvent& event) {
  return event.key() == Qt::Key_Menu ||
         (event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier);
}

}  // namespace

std::optional<GridView::CursorAction> GridView::movement_of(int qt_key) {
  switch (qt_key) {
    case Qt::Key_Up:
      return MoveUp;
    case Qt::Key_Down:
      return MoveDown;
    case Qt::Key_Left:
      return MoveLeft;
    case Qt::Key_Right:
      return MoveRight;
    case Qt::Key_Home:
      return MoveHome;
    case Qt::Key_End:
      return MoveEnd;
    case Qt::Key_PageUp:
      return MovePageUp;
    case Qt::Key_PageDown:
      return MovePageDown;
    default:
      return std::nullopt;
  }
}

void GridView::keyPressEvent(QKeyEvent* event) {
  update_.make_now();
  if (is_tab(event->key())) return event->ignore();
  const bool extend = event->modifiers().testFlag(Qt::ShiftModifier);
  if (const auto action = movement_of(event->key()))
    return go_to(moveCursor(*action, event->modifiers()), extend);
  if (is_menu_key(*event)) return ask_for_menu_at_cell();
  const KeyCode key = key_code(*event);
  emit key_pressed(key.code, key.ctrl);
}

void GridView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  update_.make_now();
  go_to(indexAt(event->pos()), event->modifiers().testFlag(Qt::ShiftModifier));
  emit button_pressed_or_released();
}

void GridView::mouseMoveEvent(QMouseEvent* event) {
  if (!event->buttons().testFlag(Qt::LeftButton)) return;
  const QRect cells = viewport()->rect();
  go_to(indexAt({std::clamp(event->pos().x(), cells.left(), cells.right()),
                 std::clamp(event->pos().y(), cells.top(), cells.bottom())}),
        true);
}

void GridView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) emit button_pressed_or_released();
}

void GridView::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

/// Some systems ask for the menu by its key themselves, others only send the key.
void GridView::contextMenuEvent(QContextMenuEvent* event) {
  update_.make_now();
  if (event->reason() != QContextMenuEvent::Mouse) return ask_for_menu_at_cell();
  const QModelIndex cell = indexAt(event->pos());
  if (!selectionModel()->isSelected(cell)) go_to(cell, false);
  emit menu_asked(QRect(event->globalPos(), QSize(1, 1)), false);
}

void GridView::ask_for_menu_at_cell() {
  const QRect square = visualRect(currentIndex());
  emit menu_asked(QRect(viewport()->mapToGlobal(square.topLeft()), square.size()), true);
}

}  // namespace sdk
