// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tools/script/script.hpp"

#include <ostream>

#include "tools/script/commands.hpp"

namespace sdk {

namespace {

/// A # starts a comment where a word could start.
std::string_view without_comment(std::string_view line) {
  for (std::size_t at = line.find('#'); at != line.npos; at = line.find('#', at + 1))
    if (at == 0 || line[at - 1] == ' ' || line[at - 1] == '\t') return line.substr(0, at);
  return line;
}

}  // namespace

Script::Script(std::ostream& out, std::ostream& errors)
    : out_(out), desktop_(out, errors), about_printer_(out) {
  desktop_.set_events([this] { schedule_.step(window_->searches_running); });
  desktop_.set_question([this] { schedule_.open_question(); });
}

void Script::run(std::string_view line) {
  const std::string_view command = without_comment(line);
  if (Arguments(command).empty()) return;
  try {
    attempt([&] { run_command(command); });
  } catch (const ProgramEnd& end) {
    out_ << "ended " << end.status << '\n';
    window_.reset();
    ended_ = true;
  }
  schedule_.end_searches(0);
}

void Script::run_command(std::string_view text) {
  const Command* command = command_named(Arguments(text).next());
  const bool is_start = command && command->role == Command::Role::start;
  if (ended_ && !is_start) throw ScriptError("the program has ended");
  const bool is_setting = command && command->role == Command::Role::setting;
  if (!running() && !is_setting && !is_start) start("");
  understand(text)();
}

void Script::start(const std::string& command_line) {
  std::filesystem::current_path(first_folder_);
  ended_ = false;
  window_.reset();
  desktop_.forget_pointer();
  window_ = std::make_unique<MainWindow>(desktop_);
  about_printer_.listen_to(*window_);
  window_->start(command_line);
  window_->finish_start();
}

Action Script::understand(std::string_view text) {
  Arguments arguments(text);
  const std::string name = arguments.take_word("command");
  const Command* command = command_named(name);
  if (!command) throw ScriptError("unknown command: " + name);
  Action action = command->understand(*this, arguments);
  arguments.expect_end();
  return action;
}

void Script::attempt(const Action& action) {
  try {
    action();
  } catch (const ScriptError& error) {
    out_ << "error: " << error.what() << '\n';
    faulty_ = true;
  }
}

}  // namespace sdk
