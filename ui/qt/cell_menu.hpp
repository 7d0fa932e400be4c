// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The menu of the current cell: a pad of the nine digits, erase, and what the edit menus of other
/// programs offer.
#pragma once

#include <QFrame>
#include <vector>

#include "ui/main_window.hpp"
#include "ui/qt/cell_menu_item.hpp"

class QGridLayout;

namespace sdk {

/// Only tells what was chosen, after it closed; cancelled, by Escape or a click beside it, it tells
/// nothing. Arrows move in it, Return and the space bar choose, and so do the keys that do the same
/// in the grid.
class CellMenu : public QFrame {
  Q_OBJECT

 public:
  explicit CellMenu(QWidget* parent);

  /// Shows names and what can be undone as `window` has them.
  void show_state(const MainWindow& window);
  /// Opens beside `place`, in pixels of the desktop, wholly on its screen. With `by_key` the first
  /// digit is chosen at once.
  void open(const QRect& place, bool by_key);

 signals:
  /// What the key `code` of the grid does was chosen, a code of sdk::key.
  void key_chosen(int code, bool ctrl);
  void undo_chosen();
  void redo_chosen();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  using Line = std::vector<CellMenuItem*>;

  void make_pad(QGridLayout& places);
  CellMenuItem* make_row(QGridLayout& places, const char* name, const char* keys);
  void add_line(QGridLayout& places);
  template <class Chosen>
  void on_choice(CellMenuItem& item, Chosen chosen);

  QPoint place_of_focus() const;
  bool move_focus(int qt_key);
  void move_along(int right);
  void move_down(int down);
  bool choose_by_key(const QKeyEvent& event);
  CellMenuItem* item_chosen_by(const QKeyEvent& event) const;

  std::vector<Line> lines_;  ///< the pad's rows, then one item in each
  CellMenuItem *erase_, *undo_, *redo_, *copy_, *select_all_;
  int column_ = 0;  ///< where the arrows come back to the pad
};

}  // namespace sdk
