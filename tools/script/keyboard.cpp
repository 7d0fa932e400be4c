// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tools/script/keyboard.hpp"

#include <algorithm>
#include <string>

#include "tools/script/arguments.hpp"

namespace sdk {

namespace {

constexpr int left = 37, up = 38, right = 39, down = 40;
constexpr int keypad_0 = key::keypad_1 - 1;

struct NamedKey {
  std::string_view name;
  Key key;
};

constexpr NamedKey named_keys[] = {
    {"Delete", {key::del}},
    {"Backspace", {key::backspace}},
    {"Left", {left}},
    {"Right", {right}},
    {"Up", {up}},
    {"Down", {down}},
    {"Ctrl+C", {key::c, true}},
    {"Ctrl+A", {key::a, true}},
    {"F1", {key::f1}},
    {"F2", {key::f2}},
    {"Escape", {key::escape}},
};

bool is_digit(char c) { return c >= '0' && c <= '9'; }
bool is_letter(char c) { return c >= 'a' && c <= 'z'; }

void move(DisplayGrid& grid, int rows, int columns) {
  constexpr int last = DisplayGrid::size - 1;
  grid.make_current(std::clamp(grid.current_row() + rows, 0, last),
                    std::clamp(grid.current_column() + columns, 0, last));
}

void move_by_arrow(DisplayGrid& grid, int code) {
  if (code == left) move(grid, 0, -1);
  if (code == right) move(grid, 0, 1);
  if (code == up) move(grid, -1, 0);
  if (code == down) move(grid, 1, 0);
}

}  // namespace

Key key_named(std::string_view name) {
  if (name.size() == 1 && is_digit(name[0])) return {name[0]};
  if (name.size() == 1 && is_letter(name[0])) return {name[0] - 'a' + 'A'};
  if (name.size() == 3 && name.starts_with("kp") && is_digit(name[2]))
    return {name[2] - '0' + keypad_0};
  const auto* found = std::ranges::find(named_keys, name, &NamedKey::name);
  if (found == std::end(named_keys)) throw ScriptError("no such key: " + std::string(name));
  return found->key;
}

void press(MainWindow& window, Key pressed) {
  window.preview_key(pressed.code);
  move_by_arrow(window.MSF, pressed.code);
  window.key_down(pressed.code, pressed.ctrl);
}

}  // namespace sdk
