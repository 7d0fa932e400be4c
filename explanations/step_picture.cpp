// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "explanations/step_picture.hpp"

#include <algorithm>
#include <utility>

#include "logic/techniques.hpp"

namespace sdk {

namespace {

// A pattern does not tell by its premises alone that it is a fish: two linked rows of a chain look
// like an X-wing that has lost its corners.
bool is_fish(const Deduction& deduction) {
  static constexpr std::array fish{&technique_named("x_wing"), &technique_named("swordfish"),
                                   &technique_named("jellyfish"),
                                   &technique_named("finned_x_wing")};
  return std::ranges::find(fish, deduction.technique) != fish.end();
}

bool has_mark_of_second(Role role) {
  return role == Role::pincer || role == Role::fin || role == Role::link_end ||
         role == Role::second_colour;
}

NineSet removed_digits(const Deduction& deduction) {
  NineSet digits;
  for (int digit = 1; digit <= 9; ++digit)
    if (!deduction.losers_of(digit).empty()) digits.insert(digit);
  return digits;
}

/// Draws one event.
class Artist {
 public:
  explicit Artist(const Event& event) : event_(event), step_(event.deduction) {}

  StepPicture draw() && {
    draw_position();
    draw_removals();
    draw_pattern();
    draw_marks();
    draw_lines();
    draw_links();
    return std::move(picture_);
  }

 private:
  const CellSet& cells_as(Role role) const { return step_.cells_as(role); }
  PictureCell& at(int cell) { return picture_.cells[cell]; }
  const NineSet& candidates(int cell) const { return picture_.cells[cell].candidates; }

  void draw_position() {
    const CandidateCube& before = event_.before.candidates;
    for (int number = 1; number <= 81; ++number) {
      const Cell cell = cell_at(number);
      at(number).value = before.value(cell);
      at(number).candidates = before.digits(cell);
    }
  }

  void draw_removals() {
    for (int digit = 1; digit <= 9; ++digit)
      for (const int cell : step_.losers_of(digit)) at(cell).removed.insert(digit);
  }

  // What the step rests on.

  void draw_pattern() {
    for (const Premise& premise : step_.premises)
      std::visit([this](const auto& fact) { draw(fact); }, premise);
  }
  void draw(const CellHolds& fact) { rest_on(fact.cell.number(), fact.digits); }
  void draw(const DigitInUnit& fact) {
    for (const int cell : fact.cells) rest_on(cell, {fact.digit});
  }
  void draw(const OneSolution& fact) {
    for (const int cell : fact.corners) rest_on(cell, fact.digits);
  }
  void rest_on(int cell, NineSet digits) { at(cell).pattern |= digits - at(cell).removed; }

  // The marks.

  void draw_marks() {
    for (const Highlight& highlight : step_.highlights)
      if (highlight.mark) at(highlight.cell.number()).mark = *highlight.mark;
    for (int cell = 1; cell <= 81; ++cell)
      if (at(cell).mark == Mark::none) at(cell).mark = mark_of_role(cell);
  }
  Mark mark_of_role(int cell) {
    if (!at(cell).removed.empty()) return Mark::removed;
    Mark mark = Mark::none;
    for (std::size_t role = 0; role < role_count; ++role) {
      if (!step_.cells[role].contains(cell)) continue;
      if (has_mark_of_second(static_cast<Role>(role))) return Mark::second;
      mark = Mark::support;
    }
    return mark;
  }

  // The lines of a fish.

  void draw_lines() {
    if (!is_fish(step_)) return;
    const UnitKind base = step_.unit.kind;
    draw_lines_through(base, cells_as(Role::pattern));
    draw_lines_through(crossing(base),
                       cells_as(Role::pattern) | step_.losers_of(step_.digits.first()));
  }
  void draw_lines_through(UnitKind kind, const CellSet& cells) {
    NineSet numbers;
    for (const int cell : cells)
      numbers.insert(kind == UnitKind::row ? cell_at(cell).row : cell_at(cell).column);
    for (const int number : numbers) picture_.lines.push_back({kind, number});
  }

  // The links of a chain.

  void draw_links() {
    for (const int pivot : cells_as(Role::pivot)) draw_pincers(pivot);
    if (cells_as(Role::first_colour).empty() && cells_as(Role::link_end).empty()) return;
    for (const Premise& premise : step_.premises)
      if (const auto* fact = std::get_if<DigitInUnit>(&premise)) draw_strong_link(*fact);
  }
  void draw_link(int from, int to, int digit) {
    picture_.links.push_back({{cell_at(from), digit}, {cell_at(to), digit}});
  }

  void draw_pincers(int pivot) {
    const NineSet removed = removed_digits(step_);
    for (const int pincer : cells_as(Role::pincer))
      for (const int digit : (at(pivot).pattern & at(pincer).pattern) - removed)
        draw_link(pivot, pincer, digit);
  }
  void draw_strong_link(const DigitInUnit& fact) {
    const int one = *fact.cells.begin();
    const int other = *(fact.cells - CellSet{one}).begin();
    draw_link(one, other, fact.digit);
    if (!cells_as(Role::link_end).empty()) draw_sight_of_pair(one, other, fact.digit);
  }
  /// The cells of the pair, each to the end that it keeps the digit from.
  void draw_sight_of_pair(int end1, int end2, int digit) {
    const int p = *cells_as(Role::pattern).begin();
    const int q = *(cells_as(Role::pattern) - CellSet{p}).begin();
    const bool straight = se_voient_num(p, end1) && se_voient_num(q, end2);
    draw_link(p, straight ? end1 : end2, digit);
    draw_link(q, straight ? end2 : end1, digit);
  }

  const Event& event_;
  const Deduction& step_;
  StepPicture picture_;
};

}  // namespace

StepPicture picture_of(const Event& event) { return Artist(event).draw(); }

}  // namespace sdk
