// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tests/random/event_source.hpp"

namespace sdk {

namespace {

constexpr int deepest = 3;
constexpr const char* keys[] = {"Delete", "Backspace", "Left",   "Right",  "Up", "Down",
                                "Ctrl+C", "Ctrl+A",    "Escape", "Escape", "F1", "F2"};
constexpr const char* buttons[] = {"Command1", "Command2", "Command3",  "Command4",
                                   "Command5", "Command6", "Command7",  "Command8",
                                   "sauve",    "aide",     "Bouton_GO", "Bouton_GO"};
constexpr const char* answers[] = {"answer yes", "answer no", "answer file a.sdk",
                                   "answer file b.sdk"};
constexpr const char* hints[] = {"click Command8",
                                 "click Command8",
                                 "click Command8",
                                 "step 1",
                                 "step 2",
                                 "step 3",
                                 "step none",
                                 "show step",
                                 "show explanation",
                                 "at question step 1",
                                 "at question step 2",
                                 "at question step none",
                                 "at question show step",
                                 "at question show explanation",
                                 "at question click Command8"};
constexpr const char* rare_events[] = {"close window",
                                       "close taskmanager",
                                       "close session",
                                       "printer off",
                                       "printer on",
                                       "answer file no/a.sdk",
                                       "click nobody",
                                       "key Tab",
                                       "show MSF",
                                       "show MSR back",
                                       "show marks",
                                       "show layout",
                                       "export",
                                       "start",
                                       "start a.sdk",
                                       "start b.sdk",
                                       "start missing.sdk",
                                       "about key 1",
                                       "about click Label1"};

}  // namespace

template <std::size_t n>
std::string EventSource::one_of(const char* const (&texts)[n]) {
  return texts[below(n)];
}

std::string EventSource::seed() { return "seed " + std::to_string(below(1'000'000)); }

std::string EventSource::event(int depth) {
  return depth < deepest && below(6) == 0 ? at_step(depth) : plain_event();
}

std::string EventSource::plain_event() {
  const int kind = below(100);
  if (kind < 45) return key();
  if (kind < 61) return select();
  if (kind < 65) return turn();
  if (kind < 82) return click();
  if (kind < 87) return check();
  if (kind < 89) return level();
  if (kind < 92) return answer();
  return kind < 98 ? one_of(hints) : rare();
}

std::string EventSource::key() {
  const int kind = below(20);
  if (kind < 10) return "key " + std::to_string(below(10));
  if (kind < 13) return "key kp" + std::to_string(below(10));
  if (kind < 14) return std::string("key ") + static_cast<char>('a' + below(26));
  return "key " + one_of(keys);
}

std::string EventSource::select() {
  std::string text = "select " + std::to_string(cell_line()) + ' ' + std::to_string(cell_line());
  if (below(3) == 0) text += ' ' + std::to_string(cell_line()) + ' ' + std::to_string(cell_line());
  return text;
}

std::string EventSource::click() { return "click " + one_of(buttons); }

std::string EventSource::turn() { return below(5) < 3 ? "undo" : "redo"; }

std::string EventSource::check() {
  return "check Check" + std::to_string(1 + below(3)) + (below(2) ? " on" : " off");
}

std::string EventSource::level() {
  return below(6) == 0 ? "level none" : "level " + std::to_string(below(5));
}

std::string EventSource::answer() { return one_of(answers); }

std::string EventSource::rare() { return one_of(rare_events); }

std::string EventSource::at_step(int depth) {
  const int step = 1 + below(below(2) ? 20 : 1000);
  return "at " + std::to_string(step) + ' ' + event(depth + 1);
}

}  // namespace sdk
