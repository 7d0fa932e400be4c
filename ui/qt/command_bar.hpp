// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The band above the grids: title and credit, and the row of buttons with their shortcuts. A
/// shortcut presses its button, so that of a hidden or disabled one does nothing.
#pragma once

#include <QWidget>
#include <vector>

#include "ui/main_window.hpp"

class QLabel;
class QToolButton;

namespace sdk {

class CommandBar : public QWidget {
  Q_OBJECT

 public:
  explicit CommandBar(QWidget* parent);

  /// Shows texts and visibility as `window` has them. A hidden button keeps its place.
  void show_state(const MainWindow& window);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 signals:
  void clicked(Control button);
  void undo_clicked();
  void redo_clicked();
  void focus_lost(Control button);

 private:
  struct Button {
    Control control;
    QToolButton* widget;
  };

  QLayout* make_buttons();
  QToolButton* make_command(Control control, const char* icon, const char* shortcut);
  QToolButton* make_button(const char* name, const char* icon);

  QLabel* title_;
  QToolButton* undo_ = nullptr;
  QToolButton* redo_ = nullptr;
  std::vector<Button> buttons_;
};

}  // namespace sdk
