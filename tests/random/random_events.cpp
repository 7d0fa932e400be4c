// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Random events, also during searches and during searches inside these; the whole state is checked
// after every event. Escape comes at the 1,000th step of every search. Now and then everything is
// undone and done again, which has to bring the same game back.

#include <algorithm>
#include <deque>
#include <iostream>
#include <memory>
#include <sstream>
#include <string>

#include "board/clashes.hpp"
#include "board/grid_text.hpp"
#include "screen/digit_frames.hpp"
#include "tests/random/event_source.hpp"
#include "tests/transcripts/scratch.hpp"
#include "tools/command_line/command_line.hpp"
#include "tools/script/script.hpp"
#include "ui/state_check.hpp"

namespace sdk {
namespace {

constexpr long escape_step = 1000;
constexpr long events_between_turns = 100;
constexpr std::size_t commands_kept = 60;

struct Counts {
  long events = 0, programs = 0, searches = 0, inner_searches = 0, escapes = 0, steps_chosen = 0,
       turns = 0;
};

/// Which cell is framed for a clash that the rules do not find, or the other way round.
std::string frame_fault(const DisplayGrid& grid) {
  Square<std::int16_t> values;
  const std::vector<DisplayCell> cells = grid.cells();
  for (const int number : all_cells)
    values[number] = numeric_prefix(cells[static_cast<std::size_t>(number - 1)].text);
  for (const int number : all_cells) {
    const bool framed = digit_frame(grid, cell_at(number)) == DigitFrame::clash;
    if (framed != (values[number] != 0 && has_clash(values, cell_at(number))))
      return "the frame of cell " + std::to_string(number) + " does not tell its clashes";
  }
  return "";
}

/// One program from its start to its end, in folders of its own.
class Program {
 public:
  explicit Program(Counts& counts) : counts_(counts) {
    ++counts_.programs;
    script_.schedule().add_to_every_search(1, [this] { count_search(); });
    script_.schedule().add_to_every_search(escape_step, [this] { escape(); });
  }

  void run(const std::string& command) {
    out_.str("");
    errors_.str("");
    script_.run(command);
  }
  bool running() const { return script_.running(); }
  std::string fault() {
    if (!running()) return "";
    const std::string state = state_fault(script_.window());
    return state.empty() ? frame_fault(script_.window().MSF) : state;
  }
  /// Takes every step back, or does every step again; the first fault on the way.
  std::string undo_all() { return turn_all(&MainWindow::can_undo, &MainWindow::undo); }
  std::string redo_all() { return turn_all(&MainWindow::can_redo, &MainWindow::redo); }
  GameState game() { return script_.window().game_state(); }
  bool shows_a_step() { return running() && script_.window().explanation().chosen(); }

 private:
  std::string turn_all(bool (MainWindow::*possible)() const, void (MainWindow::*turn)()) {
    MainWindow& window = script_.window();
    while ((window.*possible)()) {
      (window.*turn)();
      ++counts_.turns;
      if (std::string found = fault(); !found.empty()) return found;
    }
    return "";
  }

  void count_search() {
    ++counts_.searches;
    if (script_.window().searches_running > 1) ++counts_.inner_searches;
  }
  void escape() {
    ++counts_.escapes;
    script_.window().preview_key(key::escape);
  }

  Counts& counts_;
  Scratch scratch_;
  std::ostringstream out_, errors_;
  Script script_{out_, errors_};
};

/// A run of one seed.
class RandomRun {
 public:
  RandomRun(std::uint32_t seed, bool echo) : source_(seed), echo_(echo) {}

  /// The first fault, or nothing.
  std::string play(long events) {
    while (counts_.events < events) {
      if (!program_ || !program_->running()) restart();
      do_command(source_.next());
      ++counts_.events;
      counts_.steps_chosen += program_->shows_a_step();
      std::string fault = program_->fault();
      if (fault.empty() && program_->running() && is_time_to_go_back(events))
        fault = undo_and_redo_all();
      if (!fault.empty()) return fault;
    }
    return "";
  }

  const Counts& counts() const { return counts_; }
  /// The newest last.
  const std::deque<std::string>& last_commands() const { return last_commands_; }

 private:
  bool is_time_to_go_back(long events) const {
    return counts_.events % events_between_turns == 0 || counts_.events == events;
  }

  /// The fault on the way, or that the game is not what it was.
  std::string undo_and_redo_all() {
    if (const std::string fault = program_->redo_all(); !fault.empty()) return fault;
    const GameState before = program_->game();
    for (const std::string& fault : {program_->undo_all(), program_->redo_all()})
      if (!fault.empty()) return fault;
    return program_->game() == before ? "" : "undo and redo of all steps changed the game";
  }

  void restart() {
    program_.reset();
    program_ = std::make_unique<Program>(counts_);
    last_commands_.clear();
    do_command(source_.seed());
    do_command("show visible");
  }

  void do_command(const std::string& command) {
    if (echo_) std::cout << command << std::endl;
    last_commands_.push_back(command);
    if (last_commands_.size() > commands_kept) last_commands_.pop_front();
    program_->run(command);
  }

  EventSource source_;
  bool echo_;
  Counts counts_;
  std::unique_ptr<Program> program_;
  std::deque<std::string> last_commands_;
};

void print(const Counts& c) {
  std::cout << c.events << " events in " << c.programs << " programs, " << c.searches
            << " searches, " << c.inner_searches << " of them inside others, " << c.escapes
            << " stopped at step " << escape_step << ", a step of a hint on show after "
            << c.steps_chosen << " events, " << c.turns << " steps taken back and done again\n";
}

int play(std::uint32_t seed, long events, bool echo) {
  std::cout << "seed " << seed << std::endl;
  RandomRun run(seed, echo);
  const std::string fault = run.play(events);
  print(run.counts());
  if (fault.empty()) return 0;
  std::cout << "fault after event " << run.counts().events << ": " << fault
            << "\nreplay: random_events " << seed << ' ' << run.counts().events
            << "\nthe last commands:\n";
  for (const std::string& command : run.last_commands()) std::cout << "  " << command << '\n';
  return 1;
}

}  // namespace
}  // namespace sdk

/// random_events SEED EVENTS [--echo]: `--echo` prints every command before it runs, for a run that
/// does not come back.
int main(int argc, char** argv) {
  std::uint32_t seed = 0;
  long events = 0;
  bool echo = false;
  sdk::CommandLine line;
  line.add_option("SEED", seed)->required()->transform(sdk::whole_number(0));
  line.add_option("EVENTS", events)->required()->transform(sdk::whole_number(0));
  line.add_switch("--echo", echo);
  if (!line.read(argc, argv)) {
    std::cerr << "usage: random_events SEED EVENTS [--echo]\n";
    return 2;
  }
  return sdk::play(seed, events, echo);
}
