// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The program run by text commands, one a line, and printing as text what the player would see.
#pragma once

#include <iosfwd>
#include <memory>
#include <string_view>

#include "tools/script/about_printer.hpp"
#include "tools/script/arguments.hpp"
#include "tools/script/schedule.hpp"
#include "tools/script/script_desktop.hpp"
#include "ui/main_window.hpp"

namespace sdk {

/// One run of a script. Only one may exist at a time, as the program has one window.
class Script {
 public:
  /// Both streams must outlive the script.
  Script(std::ostream& out, std::ostream& errors);

  /// Runs one line and returns when all that it causes has happened. The first command that is no
  /// setting of the machine starts the program. What cannot be done is printed as "error: <why>".
  void run(std::string_view line);

  /// Whether the program was started and has not ended.
  bool running() const { return window_ != nullptr; }
  /// 0, or 2 when an error was printed.
  int exit_status() const { return faulty_ ? 2 : 0; }

  // What commands are made of.

  /// Understands the text of a command without doing it. Throws ScriptError.
  Action understand(std::string_view text);
  /// Starts the program afresh with a command line, in the folder that the script began in; one
  /// that is running is forgotten.
  void start(const std::string& command_line);
  /// Does it; prints the error when it cannot be done.
  void attempt(const Action& action);
  /// The program's window; it exists while the program runs.
  MainWindow& window() { return *window_; }
  ScriptDesktop& desktop() { return desktop_; }
  Schedule& schedule() { return schedule_; }
  std::ostream& out() { return out_; }

 private:
  void run_command(std::string_view text);

  std::ostream& out_;
  ScriptDesktop desktop_;
  Schedule schedule_;
  AboutPrinter about_printer_;
  std::unique_ptr<MainWindow> window_;
  std::filesystem::path first_folder_ = std::filesystem::current_path();
  bool ended_ = false, faulty_ = false;
};

}  // namespace sdk
