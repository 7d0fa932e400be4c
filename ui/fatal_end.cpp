// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// How a failure that nobody handles ends the program without losing the player's grid.

#include "files/puzzle_file.hpp"
#include "ui/main_window.hpp"
#include "ui/messages.hpp"

namespace sdk {

void MainWindow::run_guarded(const std::function<void()>& handler) {
  try {
    note_game();
    handler();
    forget_outdated_hint();
    note_game();
  } catch (const RuntimeError& error) {
    end_fatally(error);
  }
}

namespace {

std::filesystem::path unused_name(const std::filesystem::path& folder) {
  for (int n = 1;; ++n) {
    const auto path = folder / ("SuDoKu-" + std::to_string(n) + ".sdk");
    if (!std::filesystem::exists(path)) return path;
  }
}

bool is_empty(const DisplayGrid& grid) {
  for (int r = 0; r < DisplayGrid::size; ++r)
    for (int c = 0; c < DisplayGrid::size; ++c)
      if (grid.is_filled(r, c)) return false;
  return true;
}

/// Saves the displayed grid, unless it is empty, beside earlier ones and says where, or why not.
std::string save_aside(Window& window, const std::string& language, std::string_view reason) {
  if (is_empty(window.MSF)) return notice(Notice::fatal, language, reason);
  try {
    const auto path = unused_name(window.desktop().data_folder());
    Save_Grille(path.string());
    return notice(Notice::fatal_saved, language, reason, path.string());
  } catch (const std::exception& failure) {
    return notice(Notice::fatal_not_saved, language, reason, failure.what());
  }
}

}  // namespace

void MainWindow::rescue_grid(const std::string& reason) {
  desktop().report_error(save_aside(*this, globals.Langue, reason));
}

void MainWindow::end_fatally(const RuntimeError& error) {
  const std::string text = save_aside(*this, globals.Langue, error.what());
  desktop().report_error(text);
  show_box(text, Icon::critical, Buttons::ok);
  throw ProgramEnd{1};
}

}  // namespace sdk
