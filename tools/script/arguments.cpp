// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tools/script/arguments.hpp"

#include <algorithm>
#include <charconv>
#include <utility>

namespace sdk {

namespace {

constexpr std::string_view blanks = " \t\r\n";

std::string_view trimmed(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
  return text.substr(0, text.find_last_not_of(blanks) + 1);
}

}  // namespace

Arguments::Arguments(std::string_view text) : text_(trimmed(text)) {}

std::string_view Arguments::next() const { return text_.substr(0, text_.find_first_of(blanks)); }

std::string Arguments::take_word(std::string_view what) {
  if (empty()) throw ScriptError(std::string(what) + " is missing");
  std::string taken(next());
  text_ = trimmed(text_.substr(taken.size()));
  return taken;
}

std::string Arguments::take_rest(std::string_view what) {
  if (empty()) throw ScriptError(std::string(what) + " is missing");
  return std::string(std::exchange(text_, {}));
}

long Arguments::take_number(std::string_view what, long low, long high) {
  const std::string taken = take_word(what);
  long value = 0;
  const char* last = taken.data() + taken.size();
  const auto [end, fault] = std::from_chars(taken.data(), last, value);
  if (fault != std::errc() || end != last || value < low || value > high)
    throw ScriptError(std::string(what) + " is not a number from " + std::to_string(low) + " to " +
                      std::to_string(high) + ": " + taken);
  return value;
}

int Arguments::take_grid_line(std::string_view what) {
  return static_cast<int>(take_number(what, 1, 9)) - 1;
}

bool Arguments::take_choice(std::string_view yes, std::string_view no) {
  const std::string both = std::string(yes) + " or " + std::string(no);
  const std::string taken = take_word(both);
  if (taken != yes && taken != no) throw ScriptError("not " + both + ": " + taken);
  return taken == yes;
}

Control Arguments::take_control() {
  const std::string taken = take_word("NAME");
  const auto control = control_named(taken);
  if (!control) throw ScriptError("no control of that name: " + taken);
  return *control;
}

void Arguments::expect_end() const {
  if (!empty()) throw ScriptError("too many arguments: " + std::string(text_));
}

}  // namespace sdk
