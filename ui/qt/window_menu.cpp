// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The menu of the cell in the window.

#include "ui/qt/cell_menu.hpp"
#include "ui/qt/main_frame.hpp"

namespace sdk {

/// What the menu offers is done as by the grid's keys and by the buttons. The candidates have none.
void MainFrame::make_menu() {
  auto* menu = new CellMenu(this);
  msr_->setContextMenuPolicy(Qt::PreventContextMenu);
  connect(msf_, &GridView::menu_asked, this, [this, menu](const QRect& place, bool by_key) {
    menu->show_state(window_);
    menu->open(place, by_key);
  });
  connect(menu, &CellMenu::key_chosen, msf_, &GridView::key_pressed);
  connect(menu, &CellMenu::undo_chosen, commands_, &CommandBar::undo_clicked);
  connect(menu, &CellMenu::redo_chosen, commands_, &CommandBar::redo_clicked);
}

}  // namespace sdk
