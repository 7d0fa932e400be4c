// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tools/script/commands.hpp"

#include <algorithm>
#include <limits>
#include <string>

#include "files/platform.hpp"
#include "tools/script/keyboard.hpp"
#include "tools/script/script.hpp"
#include "tools/script/show.hpp"
#include "tools/script/steps.hpp"
#include "tools/script/undo.hpp"

namespace sdk {

namespace {

void require_visible(Script& script, Control control) {
  if (!script.window().visible(control))
    throw ScriptError(std::string(name_of(control)) + " is hidden");
}

Action seed(Script& script, Arguments& arguments) {
  const long n = arguments.take_number("N", 0, std::numeric_limits<std::uint32_t>::max());
  return [&script, n] { script.desktop().settings.seed = static_cast<std::uint32_t>(n); };
}

Action printer(Script& script, Arguments& arguments) {
  const bool on = arguments.take_choice("on", "off");
  return [&script, on] { script.desktop().settings.printer = on; };
}

Action year(Script& script, Arguments& arguments) {
  const long n = arguments.take_number("N", 0, 9999);
  return [&script, n] { script.desktop().settings.year = static_cast<int>(n); };
}

Action program(Script& script, Arguments& arguments) {
  const std::string folder = arguments.take_rest("DIR");
  return [&script, folder] { script.desktop().settings.program = folder; };
}

Action tmp(Script&, Arguments& arguments) {
  const std::string folder = arguments.take_rest("DIR");
  return [folder] { platform::set_environment("tmp", folder); };
}

Action click(Script& script, Arguments& arguments) {
  const Control button = arguments.take_control();
  if (!is_button(button)) throw ScriptError("no button: " + std::string(name_of(button)));
  return [&script, button] {
    require_visible(script, button);
    script.window().click(button);
  };
}

Action check(Script& script, Arguments& arguments) {
  const Control box = arguments.take_control();
  if (!is_check_box(box)) throw ScriptError("no check box: " + std::string(name_of(box)));
  const bool on = arguments.take_choice("on", "off");
  return [&script, box, on] {
    require_visible(script, box);
    script.window().check(box, on);
  };
}

Action level(Script& script, Arguments& arguments) {
  std::optional<int> item;
  if (arguments.next() == "none")
    arguments.take_word("N");
  else
    item = static_cast<int>(arguments.take_number("N", 0, 4));
  return [&script, item] {
    require_visible(script, Control::Niveau);
    script.window().choose_level(item);
  };
}

Action select(Script& script, Arguments& arguments) {
  const int row = arguments.take_grid_line("R");
  const int column = arguments.take_grid_line("C");
  const bool block = !arguments.empty();
  const int other_row = block ? arguments.take_grid_line("R2") : row;
  const int other_column = block ? arguments.take_grid_line("C2") : column;
  return [=, &script] {
    script.window().MSF.select(row, column, other_row, other_column);
    script.window().redraw_lines();
  };
}

Action press_key(Script& script, Arguments& arguments) {
  const Key pressed = key_named(arguments.take_word("K"));
  return [&script, pressed] { press(script.window(), pressed); };
}

AboutControl about_control(const std::string& name) {
  const auto* found = std::ranges::find(about_controls, name, &AboutControlRow::name);
  if (found == std::end(about_controls)) throw ScriptError("no control of that name: " + name);
  return found->control;
}

void require_about(Script& script) {
  if (!script.window().about().shown()) throw ScriptError("the about box is closed");
}

Action click_about(Script& script, Arguments& arguments) {
  const AboutControl control = about_control(arguments.take_word("NAME"));
  return [&script, control] {
    require_about(script);
    script.window().click_about(control);
  };
}

Action press_in_about(Script& script, Arguments& arguments) {
  key_named(arguments.take_word("K"));
  return [&script] {
    require_about(script);
    script.window().close_about();
  };
}

Action about(Script& script, Arguments& arguments) {
  return arguments.take_choice("click", "key") ? click_about(script, arguments)
                                               : press_in_about(script, arguments);
}

Action answer(Script& script, Arguments& arguments) {
  if (arguments.next() == "file") {
    arguments.take_word("file");
    const std::string path = arguments.take_rest("PATH");
    return [&script, path] { script.desktop().queue_file(path); };
  }
  const Answer given = arguments.take_choice("yes", "no") ? Answer::yes : Answer::no;
  const long times = arguments.empty() ? 1 : arguments.take_number("N", 1, 999);
  return [&script, given, times] { script.desktop().queue_answer(given, times); };
}

/// All but the list of steps waits for the answer.
Action at_question(Script& script, Arguments& arguments) {
  arguments.take_word("question");
  const Command* command = command_named(arguments.next());
  if (command && command->role != Command::Role::look)
    throw ScriptError("not possible while a question is open: " + std::string(command->name));
  const Action action = script.understand(arguments.take_rest("COMMAND"));
  return [&script, action] {
    script.schedule().add_to_question([&script, action] { script.attempt(action); });
  };
}

Action at_step(Script& script, Arguments& arguments) {
  const long step = arguments.take_number("N", 1, std::numeric_limits<int>::max());
  const Command* command = command_named(arguments.next());
  if (command && command->role == Command::Role::start)
    throw ScriptError("a search cannot start the program");
  const Action action = script.understand(arguments.take_rest("COMMAND"));
  return [&script, step, action] {
    script.schedule().add(step, [&script, action] { script.attempt(action); });
  };
}

Action at(Script& script, Arguments& arguments) {
  return (arguments.next() == "question" ? at_question : at_step)(script, arguments);
}

CloseMode close_mode(const std::string& name) {
  if (name == "window") return CloseMode::window_command;
  if (name == "taskmanager") return CloseMode::task_manager;
  if (name == "session") return CloseMode::session_end;
  throw ScriptError("not window, taskmanager or session: " + name);
}

Action close(Script& script, Arguments& arguments) {
  const CloseMode mode = close_mode(arguments.take_word("window, taskmanager or session"));
  return [&script, mode] {
    if (script.window().confirm_close(mode)) throw ProgramEnd{0};
  };
}

Action start(Script& script, Arguments& arguments) {
  const std::string command_line = arguments.empty() ? "" : arguments.take_rest("ARGUMENTS");
  return [&script, command_line] { script.start(command_line); };
}

Action export_entry(Script& script, Arguments&) {
  return [&script] { script.window().export_entry(); };
}

constexpr auto setting = Command::Role::setting;
constexpr auto event = Command::Role::event;
constexpr auto look = Command::Role::look;

constexpr Command table[] = {
    {"seed", "N", "every later puzzle pick seeds the generator with N, not the clock", setting,
     seed},
    {"printer", "on|off", "whether a printer is there (default on)", setting, printer},
    {"year", "N", "the clock's year", setting, year},
    {"program", "DIR", "the program's own folder", setting, program},
    {"tmp", "DIR", "the folder of the environment variable tmp", setting, tmp},
    {"click", "NAME", "press a button (Command1..Command8, sauve, Bouton_GO, aide)", event, click},
    {"check", "NAME on|off", "Check1, Check2, Check3", event, check},
    {"level", "N|none", "choose item N (0..4) of Niveau; none: with no item selected", event,
     level},
    {"select", "R C [R2 C2]", "current cell / selection of MSF", event, select},
    {"key", "K",
     "1..9, kp0..kp9, 0, a..z, Delete, Backspace, Left, Right, Up, Down, Ctrl+C, Ctrl+A, F1, F2, "
     "Escape",
     event, press_key},
    {"undo", "", "take back the last change of some cell's text; during a search nothing happens",
     event, undo},
    {"redo", "", "do again what undo took back last; during a search nothing happens", event, redo},
    {"about", "click NAME | key K",
     "a click on Picture, Label2, Label1, lblVersion or lblCopyright of the about box, or any key "
     "pressed in it",
     event, about},
    {"answer", "yes|no [N] | file PATH",
     "answer of the next Yes/No box, or of the next N, or of the next file dialog; queued. Without "
     "one a box is answered no and a dialog cancelled. Other boxes take none",
     event, answer},
    {"at", "N|question COMMAND",
     "COMMAND happens at the N-th \"let pending events run\" of the next search; dropped when the "
     "search ends before. question: it happens while the next Yes/No box is open, in front of "
     "which "
     "it is printed; only step and show can",
     event, at},
    {"step", "N|none", "show step N of the explanation alone, 1 the first; none: no step", look,
     choose_step},
    {"close", "window|taskmanager|session", "ask the window to close", event, close},
    {"export", "", "append the puzzle in hand to Grilles.txt", event, export_entry},
    {"start", "[ARGUMENTS]",
     "a fresh start of the program with that command line; also after it has ended",
     Command::Role::start, start},
    {"show", "WHAT", "print a part of the state (below)", look, show},
};

}  // namespace

std::span<const Command> commands() { return table; }

const Command* command_named(std::string_view name) {
  const auto* found = std::ranges::find(table, name, &Command::name);
  return found == std::end(table) ? nullptr : found;
}

}  // namespace sdk
