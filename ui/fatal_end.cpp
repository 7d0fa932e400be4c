// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// How a command runs: a failure that nobody handles ends the program without losing the player's
// grid, and a build with assertions checks the state that the command leaves.

#include "board/fault.hpp"
#include "files/puzzle_file.hpp"
#include "ui/main_window.hpp"
#include "ui/messages.hpp"
#include "ui/state_check.hpp"

namespace sdk {

namespace {

class CountedCommand {
 public:
  explicit CountedCommand(int& running) : running_(running) { ++running_; }
  ~CountedCommand() { --running_; }
  CountedCommand(const CountedCommand&) = delete;
  CountedCommand& operator=(const CountedCommand&) = delete;

 private:
  int& running_;
};

}  // namespace

void MainWindow::run_guarded(const std::function<void()>& handler) {
  // A command that finds a sound state, or begins the game, leaves a sound one. Without its levels
  // the window was never started, and has no state yet.
  const bool is_checked = has_assertions && commands_running_ == 0 && searches_running == 0 &&
                          (levels_.empty() || state_fault(*this).empty());
  run_handler(handler);
  if (is_checked && !levels_.empty()) abort_on(state_fault(*this));
}

void MainWindow::run_handler(const std::function<void()>& handler) {
  const CountedCommand counted(commands_running_);
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
    auto path = folder / ("SuDoKu-" + std::to_string(n) + ".sdk");
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
