// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tools/walk/walk.hpp"

#include <algorithm>
#include <utility>

#include "board/grid_text.hpp"
#include "explanations/explanations.hpp"
#include "puzzles/stock/entry_text.hpp"
#include "puzzles/stock/library_table.hpp"
#include "tools/walk/marks.hpp"
#include "tools/walk/play.hpp"

namespace sdk {

namespace {

std::string grid_line(std::string_view puzzle) {
  std::string grid(puzzle);
  std::ranges::replace(grid, '0', '.');
  return "grid " + grid + "\n";
}

std::string two_digits(int place) { return (place < 10 ? "0" : "") + std::to_string(place); }

/// For each cell, row by row, the digits that it loses: " r1c3-38 r1c5-3".
std::string eliminations(const Deduction& deduction) {
  CellSet losers;
  for (const CellSet& cells : deduction.removed) losers |= cells;
  std::string items;
  for (const int cell : losers) {
    items += " " + name_of(cell_at(cell)) + "-";
    for (int digit = 1; digit <= 9; ++digit)
      if (deduction.losers_of(digit).contains(cell)) items += static_cast<char>('0' + digit);
  }
  return items;
}

std::string told_offer(const Deduction& deduction) {
  const auto [cell, digit] = *deduction.placement;
  return (is_naked_single(deduction) ? "N " : "H ") + name_of(cell) + "=" + std::to_string(digit);
}

std::string told_dead_end(const Deduction& deduction) {
  return "E dead " + name_of(cell_at(*deduction.cells_as(Role::pattern).begin()));
}

/// The line of an event up to the marks.
std::string told(const Event& event) {
  switch (event.kind) {
    case EventKind::removal:
      return "T" + two_digits(event.deduction.technique->place) + eliminations(event.deduction);
    case EventKind::offer:
      return told_offer(event.deduction);
    case EventKind::completed:
      return "E completed";
    case EventKind::dead:
      return told_dead_end(event.deduction);
    case EventKind::exhausted:
      break;
  }
  return "E exhausted";
}

/// Writes the lines of events one after the other.
class WalkText {
 public:
  explicit WalkText(std::string_view puzzle) : text_(grid_line(puzzle)) {}

  void add(const Event& event) {
    marks_.draw(event);
    text_ += told(event);
    if (event.is_last()) {
      text_ += " | " + marks_.text();
      marks_ = {};  // a new hint takes all marks away
    }
    text_ += '\n';
  }

  std::string text() && { return std::move(text_); }

 private:
  std::string text_;
  MarkedCells marks_;
};

}  // namespace

std::string walk(std::string_view puzzle) {
  WalkText text(puzzle);
  play(puzzle_of(puzzle), [&](const Event& event) { text.add(event); });
  return std::move(text).text();
}

std::string explained_walk(std::string_view puzzle, std::string_view language) {
  std::string text = grid_line(puzzle);
  play_hints(puzzle_of(puzzle), [&](const std::deque<Event>& hint) {
    int number = 0;
    for (const std::string& step : explain(hint, language))
      text += std::to_string(++number) + ". " + step + "\n";
  });
  return text;
}

namespace {

/// 64-bit FNV-1a.
class Checksum {
 public:
  void add(std::string_view text) {
    for (const char c : text) value_ = (value_ ^ static_cast<unsigned char>(c)) * 1099511628211u;
  }
  std::uint64_t value() const { return value_; }

 private:
  std::uint64_t value_ = 14695981039346656037u;
};

}  // namespace

std::uint64_t library_signature() {
  Checksum checksum;
  for (const LibraryEntry& entry : BibliothequeGrilles) checksum.add(walk(puzzle_text(entry)));
  return checksum.value();
}

}  // namespace sdk
