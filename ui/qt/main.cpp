// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QTimer>
#include <iostream>

#include "ui/qt/command_line.hpp"
#include "ui/qt/font_reader.hpp"
#include "ui/qt/icons.hpp"
#include "ui/qt/main_frame.hpp"
#include "ui/qt/qt_desktop.hpp"
#include "ui/qt/sudden_end.hpp"

int main(int argc, char** argv) {
  if (const auto answer = sdk::answer_without_game({argv + 1, argv + argc})) {
    std::cout << *answer << std::flush;
    return std::cout ? 0 : 1;
  }
  sdk::FontReader fonts;
  QApplication::setStyle("Fusion");
  QApplication application(argc, argv);  // takes its own options away
  QApplication::setApplicationName("sudoku");
  QApplication::setDesktopFileName("sudoku-pas-a-pas");
  QApplication::setWindowIcon(sdk::game_icon());

  sdk::ProgramGuard guard;
  sdk::QtDesktop desktop(guard);
  sdk::MainWindow window(desktop);
  fonts.wait();
  sdk::MainFrame frame(window, guard);
  desktop.set_window(&frame);
  const sdk::ExitWatch exit_watch([&] {
    window.rescue_grid("display");
    desktop.remove_private_folder();
  });
  const std::string line = sdk::command_line({argv + 1, argv + argc});
  desktop.start_dialogs_in(sdk::folder_of_file(line));
  guard.run([&] { window.start(line); });
  const sdk::EndSignals end_signals([&](int number, const std::string& name) {
    constexpr int killed = 128;  // what a shell adds to a signal's number
    guard.run([&] {
      window.rescue_grid(name);
      throw sdk::ProgramEnd{killed + number};
    });
  });
  if (!guard.status()) {
    frame.centre_on_screen();
    frame.show();
    QTimer::singleShot(0, &frame, [&] { guard.run([&] { window.finish_start(); }); });
    QApplication::exec();
  }
  return guard.status().value_or(0);
}
