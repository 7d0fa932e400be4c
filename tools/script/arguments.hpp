// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The words that follow a command's name.
#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>

#include "screen/controls.hpp"

namespace sdk {

/// What an understood command does when it happens.
using Action = std::function<void()>;

/// Why a command cannot be understood or cannot happen.
struct ScriptError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// Takes blank-separated arguments one by one. Every procedure that takes one throws ScriptError
/// when it is missing or is not what was asked for.
class Arguments {
 public:
  explicit Arguments(std::string_view text);

  bool empty() const { return text_.empty(); }
  /// The next word, without taking it; empty when there is none.
  std::string_view next() const;
  /// `what` names the argument to whoever reads the error.
  std::string take_word(std::string_view what);
  /// All that is left, blanks inside included.
  std::string take_rest(std::string_view what);
  /// A decimal number from `low` to `high`.
  long take_number(std::string_view what, long low, long high);
  /// A row or column, 1 to 9 in the script, 0 to 8 in the result.
  int take_grid_line(std::string_view what);
  /// Whether the next word is `yes` rather than `no`.
  bool take_choice(std::string_view yes, std::string_view no);
  Control take_control();
  /// Throws ScriptError when something is left.
  void expect_end() const;

 private:
  std::string_view text_;
};

}  // namespace sdk
