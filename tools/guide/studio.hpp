// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// A started game in its real window, which pictures are taken of.
#pragma once

#include <QImage>
#include <QMessageBox>
#include <QObject>
#include <QTimer>
#include <functional>
#include <string>
#include <string_view>

#include "ui/qt/main_frame.hpp"
#include "ui/qt/qt_desktop.hpp"

namespace sdk {

/// To be called before QApplication is made: no screen of the machine is needed, and the window is
/// seen whole.
void prepare_screen();

/// Pictures are sharp when printed: they have three pixels for each of the window's.
inline constexpr int picture_scale = 3;

/// The widget, whether or not anything covers it.
QImage picture_of(QWidget& widget);

/// Answers message boxes as soon as they are on screen.
class BoxAnswerer : public QObject {
 public:
  BoxAnswerer();
  /// Sees a box and gives the answer; while it is empty, offers are declined.
  std::function<QMessageBox::StandardButton(QMessageBox&)> answer;

 private:
  void look_for_box();

  QTimer timer_;
};

/// Rows and columns are 1..9; a grid is 81 characters row by row, "." an empty cell.
class Studio {
 public:
  /// `language` is "En" or "Fr".
  explicit Studio(const std::string& language);

  /// Puts a puzzle of that level (0..4) in the window; what it shows becomes the givens.
  void lay_out(std::string_view puzzle, int level = 1);
  /// Types a digit in a cell, which becomes the current one.
  void type(int row, int column, int digit);
  void select(int row, int column);
  void show_candidates(bool shown);
  /// Shows that step of the hint alone, 0 the first.
  void choose_step(std::size_t step);
  void ask_hint() { window_.click(Control::Command8); }
  void set_background_of_givens(Colour colour);

  /// The whole window.
  QImage window();
  /// One cell of "MSF" or "MSR", framed.
  QImage cell(const char* grid, int row, int column);
  /// As it is while it can be used.
  QImage button(const char* name);
  /// The window with a box over it.
  QImage window_under(QMessageBox& box);

  BoxAnswerer& boxes() { return boxes_; }

 private:
  QWidget& widget(const char* name);
  QImage cut_out(const QRect& area);
  void settle();

  ProgramGuard guard_;
  QtDesktop desktop_{guard_};
  MainWindow window_{desktop_};
  MainFrame frame_{window_, guard_};
  BoxAnswerer boxes_;
};

}  // namespace sdk
