// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// One hint, from the grid as it stands to its question or its end.
#pragma once

#include <deque>
#include <span>

#include "logic/deduction.hpp"
#include "logic/position.hpp"
#include "logic/techniques.hpp"

namespace sdk {

enum class EventKind {
  removal,    ///< a technique removes candidates
  offer,      ///< a single is to be offered: the run is over
  completed,  ///< no cell is empty: the run is over
  dead,       ///< an empty cell has no candidate: the run is over
  exhausted,  ///< no technique removes anything: the run is over
};

/// What a run came to.
struct Event {
  EventKind kind;
  Position before;      ///< recomputed, and nothing of the event done to it
  Deduction deduction;  ///< of a dead cell the cell and its mark; empty when completed or exhausted
  /// It is certain by itself, and so was all that the run found before it, which it may rest on.
  bool certain = true;

  bool is_last() const { return kind != EventKind::removal; }
};

/// Rounds of the same kind until there is something to ask or to say: the candidates are
/// recomputed; a complete grid and a dead cell end the run; the singles are tried, then the
/// techniques in their order, and the first that removes something ends the round. Nothing outside
/// is read or changed.
class Run {
 public:
  /// From a grid of values: 0 for an empty cell, else 1..9.
  explicit Run(const Square<std::int16_t>& values);
  /// From any position, with those techniques, which must outlive the run.
  explicit Run(Position start, std::span<const Technique> order = techniques);

  /// The next event; the run must not be over. It lives as long as the run.
  const Event& next();

  /// All events so far.
  const std::deque<Event>& events() const { return events_; }
  bool is_over() const { return !events_.empty() && events_.back().is_last(); }

 private:
  const Event& add(EventKind kind, Deduction deduction = {});
  const Event& remove(Deduction deduction);
  std::optional<Deduction> find_single() const;
  std::optional<Deduction> find_removal();

  Position position_;
  std::span<const Technique> order_ = techniques;
  std::deque<Event> events_;
};

}  // namespace sdk
