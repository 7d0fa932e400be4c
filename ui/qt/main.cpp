// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include <QApplication>

#include "ui/qt/main_frame.hpp"
#include "ui/qt/qt_desktop.hpp"

int main(int argc, char** argv) {
  QApplication::setStyle("Fusion");
  QApplication application(argc, argv);
  QApplication::setApplicationName("sudoku");
  QApplication::setDesktopFileName("sudoku");

  sdk::ProgramGuard guard;
  sdk::QtDesktop desktop(guard);
  sdk::MainWindow window(desktop);
  sdk::MainFrame frame(window, guard);
  desktop.set_window(&frame);
  guard.run([&] { window.start(); });
  if (!guard.status()) {
    frame.centre_on_screen();
    frame.show();
    QApplication::exec();
  }
  return guard.status().value_or(0);
}
