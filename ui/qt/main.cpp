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
#include "ui/qt/scale_factors.hpp"
#include "ui/qt/sudden_end.hpp"

namespace {

using namespace sdk;

void prepare_application() {
  QApplication::setApplicationName("sudoku");
  QApplication::setDesktopFileName("sudoku-pas-a-pas");
  QApplication::setWindowIcon(game_icon());
}

[[noreturn]] void end_by_signal(MainWindow& window, int number, const std::string& name) {
  constexpr int killed = 128;  // what a shell adds to a signal's number
  window.rescue_grid(name);
  throw ProgramEnd{killed + number};
}

/// Plays until the player, or something else, ends the game; the exit status.
int play(QtDesktop& desktop, ProgramGuard& guard, const std::string& line, FontReader& fonts) {
  MainWindow window(desktop);
  fonts.wait();
  MainFrame frame(window, guard);
  desktop.set_window(&frame);
  const ExitWatch exit_watch([&] {
    window.rescue_grid("display");
    desktop.remove_private_folder();
  });
  guard.run([&] { window.start(line); });
  if (guard.status()) return *guard.status();
  const EndSignals end_signals([&](int number, const std::string& name) {
    guard.run([&] { end_by_signal(window, number, name); });
  });
  frame.centre_on_screen();
  frame.show();
  QTimer::singleShot(0, &frame, &MainFrame::finish_start);
  QApplication::exec();
  return guard.status().value_or(0);
}

}  // namespace

int main(int argc, char** argv) {
  if (const auto answer = answer_without_game({argv + 1, argv + argc})) {
    std::cout << *answer << std::flush;
    return std::cout ? 0 : 1;
  }
  raise_scale_factors();  // before the thread that reads the fonts and the environment
  FontReader fonts;
  QApplication::setStyle("Fusion");
  QApplication application(argc, argv);  // takes its own options away
  prepare_application();
  ProgramGuard guard;
  QtDesktop desktop(guard);
  const std::string line = command_line({argv + 1, argv + argc});
  desktop.start_dialogs_in(folder_of_file(line));
  return play(desktop, guard, line, fonts);
}
