// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The band below the grids: options, level list, count and the language hint.
#pragma once

#include <QWidget>
#include <optional>
#include <vector>

#include "ui/main_window.hpp"

class QCheckBox;
class QComboBox;
class QLabel;

namespace sdk {

class OptionBar : public QWidget {
  Q_OBJECT

 public:
  explicit OptionBar(QWidget* parent);

  /// Shows texts, ticks, levels and visibility as `window` has them.
  void show_state(const MainWindow& window);

  /// What is free of `room`, which is in the parent's coordinates and covers this bar to its right:
  /// right of all that the bar shows, or of what it shows below the check boxes. Costs a layout
  /// after a change of texts.
  QRect free_room(QRect room, bool below_boxes);

 signals:
  void ticked(Control box, bool on);
  void level_chosen(int item);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  struct Box {
    Control control;
    QCheckBox* widget;
  };

  QLayout* make_boxes();
  int right_of_boxes() const;
  QCheckBox* make_box(Control control);
  QLayout* make_level_row();
  void take_colours();
  void show_box(const MainWindow& window, const Box& box);
  void show_levels(const MainWindow& window);
  void tell_placeholder();

  std::vector<Box> boxes_;
  QComboBox* levels_ = nullptr;
  QLabel* count_ = nullptr;
  QLabel* hint_ = nullptr;
};

}  // namespace sdk
