// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tools/command_line/command_line.hpp"

#include <algorithm>
#include <charconv>

namespace sdk {

CommandLine::CommandLine() {
  set_help_flag();  // its own is answered with other words beside it too
}

CLI::Option* CommandLine::add_switch(const std::string& name, bool& given) {
  return add_flag(name, given)
      ->multi_option_policy(CLI::MultiOptionPolicy::Throw)
      ->disable_flag_override();
}

CLI::Option* CommandLine::add_lone_switch(const std::string& name, bool& given) {
  CLI::Option* const option = add_switch(name, given);
  lone_.push_back(option);
  return option;
}

void CommandLine::add_names(std::vector<std::string>& names) {
  names_ = &names;
  allow_extras();
}

bool CommandLine::take_names() {
  if (!names_) return remaining().empty();  // a "--" is left there
  *names_ = remaining();
  return std::ranges::none_of(*names_,
                              [](const std::string& name) { return name.starts_with('-'); });
}

bool CommandLine::read(int argc, const char* const* argv) {
  try {
    parse(argc, argv);
  } catch (const CLI::ParseError&) {
    return false;
  }
  const bool has_lone =
      std::ranges::any_of(lone_, [](auto* option) { return option->count() > 0; });
  return take_names() && (!has_lone || argc == 2);
}

CLI::Validator whole_number(long low, long high) {
  const auto read = [low, high](std::string& word) -> std::string {
    long value = 0;
    const char* const last = word.data() + word.size();
    const auto [end, fault] = std::from_chars(word.data(), last, value);
    if (fault != std::errc() || end != last || value < low || value > high)
      return "no number from " + std::to_string(low) + " to " + std::to_string(high) + ": " + word;
    word = std::to_string(value);  // CLI11 takes a 0 in front for an octal number
    return "";
  };
  return {read, "N"};
}

}  // namespace sdk
