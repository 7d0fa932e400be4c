// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// What the entries of `Messages` are for.
#pragma once

#include <cassert>
#include <cstddef>
#include <cstdint>
#include <string>

#include "game/globals.hpp"

namespace sdk {

/// The places in the table; 24 to 29 are empty in every language.
enum class Message : std::size_t {
  new_puzzle = 0,
  clear_grid = 1,
  load_puzzle = 2,
  save_puzzle = 3,
  solve_puzzle = 4,
  print_puzzle = 5,
  about = 6,
  help = 7,
  quit = 8,
  show_bad_values = 9,
  keep_initial_grid = 10,
  verify_on_the_fly = 11,
  really_quit = 12,  ///< the window's title and "? " follow
  impossible = 13,
  completed = 14,
  credit = 15,  ///< stands behind the window's title
  newbie = 16,
  easy = 17,
  average = 18,
  hard = 19,
  diabolic = 20,
  language_hint = 21,
  show_candidates = 22,
  search_stopped = 23,
  picture_credit = 30,
  author = 31,
  no_suggestion = 32,
  naked_single = 33,   ///< row, column and digit follow
  hidden_single = 34,  ///< the same
};

constexpr std::size_t place_of(Message message) { return static_cast<std::size_t>(message); }

/// The text in the current language, UTF-8; blanks at either end belong to it.
inline const std::string& text_of(Message message) { return globals.Messages[place_of(message)]; }

/// The name of a level 0..4 in the current language.
inline const std::string& level_name(std::int16_t level) {
  assert(level >= 0 && level <= 4);
  return globals.Messages[place_of(Message::newbie) + static_cast<std::size_t>(level)];
}

}  // namespace sdk
