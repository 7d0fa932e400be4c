// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QTimer>

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
  const QString command_line = QApplication::arguments().mid(1).join(' ');
  guard.run([&] { window.start(command_line.toStdString()); });
  if (!guard.status()) {
    frame.centre_on_screen();
    frame.show();
    QTimer::singleShot(0, &frame, [&] { guard.run([&] { window.finish_start(); }); });
    QApplication::exec();
  }
  return guard.status().value_or(0);
}
