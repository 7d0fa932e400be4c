// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "logic/run.hpp"

#include <cassert>
#include <utility>

#include "board/fault.hpp"
#include "logic/draft.hpp"
#include "logic/position_check.hpp"

namespace sdk {

namespace {

/// In a build with assertions aborts unless the position is as every round must find it.
void assert_sound(const Position& position) {
  if constexpr (has_assertions) abort_on(position_fault(position));
}

Deduction deduce_dead(const Position& position, Cell cell) {
  Draft draft(position);
  draft.support(cell, Role::pattern, {}, Mark::removed);
  return std::move(draft).finished();
}

}  // namespace

Run::Run(const Square<std::int16_t>& values) : position_(position_of(values)) {
  assert_sound(position_);
}

Run::Run(Position start, std::span<const Technique> order)
    : position_(std::move(start)), order_(order) {
  recompute(position_);
  assert_sound(position_);
}

const Event& Run::next() {
  assert(!is_over());
  if (position_.candidates.is_complete()) return add(EventKind::completed);
  if (const auto cell = position_.candidates.dead_cell())
    return add(EventKind::dead, deduce_dead(position_, *cell));
  if (auto found = find_single()) return add(EventKind::offer, std::move(*found));
  if (auto found = find_removal()) return remove(std::move(*found));
  return add(EventKind::exhausted);
}

const Event& Run::add(EventKind kind, Deduction deduction) {
  const bool certain = deduction.certain && (events_.empty() || events_.back().certain);
  return events_.emplace_back(Event{kind, position_, std::move(deduction), certain});
}

const Event& Run::remove(Deduction deduction) {
  assert(deduction.removes_something());  // or the rounds would never end
  const Event& event = add(EventKind::removal, std::move(deduction));
  apply(event.deduction, position_);
  recompute(position_);
  assert_sound(position_);
  return event;
}

std::optional<Deduction> Run::find_single() const {
  for (const Technique& single : singles)
    if (auto found = find_by(single, position_)) return found;
  return std::nullopt;
}

std::optional<Deduction> Run::find_removal() {
  bool are_links_built = false;
  for (const Technique& technique : order_) {
    if (technique.reads_links && !std::exchange(are_links_built, true))
      position_.links = links_of(position_.candidates);
    if (auto found = find_by(technique, position_)) return found;
  }
  return std::nullopt;
}

}  // namespace sdk
