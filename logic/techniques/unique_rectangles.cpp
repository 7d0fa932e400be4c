// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Unique rectangles: four corners that all hold x and y must not end with only these, or the two
// digits could be swapped and the puzzle would have two solutions. No test asks that the rectangle
// lie in two boxes; where it does not, nothing could be swapped and a removal can be wrong.

#include <algorithm>
#include <array>
#include <utility>

#include "logic/draft.hpp"
#include "logic/techniques/finders.hpp"
#include "logic/techniques/rectangles.hpp"

namespace sdk {

namespace {

/// Corners of a rectangle: P and Q in the upper row, R and S in the lower, P and R on the left.
enum Corner : std::size_t { P, Q, R, S };
constexpr std::array all_corners{P, Q, R, S};

/// Some corners, those with more than the two digits.
using Roof = std::initializer_list<Corner>;

struct Rectangle {
  const Position& position;
  Corners corners;
  int x, y;

  Cell cell(Corner corner) const { return corners[corner]; }
  NineSet digits() const { return {x, y}; }
  int other(int digit) const { return x + y - digit; }
  /// The stored count of a corner.
  int count(Corner corner) const { return position.candidates.count(cell(corner)); }
  int total() const { return count(P) + count(Q) + count(R) + count(S); }
  CellSet cells() const {
    CellSet all;
    for (const Cell corner : corners) all.insert(corner);
    return all;
  }
  /// Only then could the two digits be swapped.
  bool lies_in_two_boxes() const {
    NineSet boxes;
    for (const Cell corner : corners) boxes.insert(corner.box());
    return boxes.count() == 2;
  }
  Unit row_of(Corner corner) const { return {UnitKind::row, cell(corner).row}; }
  Unit column_of(Corner corner) const { return {UnitKind::column, cell(corner).column}; }
};

Draft begin_draft(const Rectangle& rectangle, Rule rule, Roof roof) {
  Draft draft(rectangle.position);
  draft.deduction.rule = rule;
  draft.deduction.digits = rectangle.digits();
  draft.deduction.cells_as(Role::pattern) = rectangle.cells();
  for (const Corner corner : roof)
    draft.deduction.cells_as(Role::roof).insert(rectangle.cell(corner));
  draft.deduction.certain = rectangle.lies_in_two_boxes();
  draft.deduction.premises.emplace_back(OneSolution{rectangle.digits(), rectangle.cells()});
  return draft;
}

/// The deduction rests on what the corners outside the roof hold.
void rest_on_floor(Draft& draft, const Rectangle& rectangle, Roof roof) {
  for (const Corner corner : all_corners)
    if (std::ranges::find(roof, corner) == roof.end()) draft.rest_on(rectangle.cell(corner));
}

void show_corners(Draft& draft, const Rectangle& rectangle) {
  for (const Cell corner : rectangle.corners)
    draft.show(corner, Mark::support, {}, Emphasis::support);
}

/// Three corners hold only x and y, so the odd corner holds neither.
std::optional<Deduction> find_at_odd_corner(const Rectangle& rectangle, Corner odd) {
  for (const Corner corner : all_corners)
    if (corner != odd && rectangle.count(corner) != 2) return std::nullopt;
  Draft draft = begin_draft(rectangle, Rule::odd_corner, {odd});
  for (const Corner corner : all_corners)
    if (corner != odd) draft.show(rectangle.cell(corner), Mark::support, {}, Emphasis::support);
  rest_on_floor(draft, rectangle, {odd});
  draft.show(rectangle.cell(odd), Mark::removed, rectangle.digits(), Emphasis::support);
  draft.eliminate(rectangle.cell(odd), rectangle.digits());
  return std::move(draft).finished();
}

std::optional<Deduction> find_odd_corner(const Rectangle& rectangle) {
  for (const Corner odd : {S, R, Q, P})
    if (auto found = find_at_odd_corner(rectangle, odd)) return found;
  return std::nullopt;
}

/// Every cell outside the rectangle that holds z and sees all the roof corners loses it.
void clear_around(Draft& draft, const Rectangle& rectangle, Roof roof, int z) {
  CellSet losers = rectangle.position.candidates.cells_with(z) - rectangle.cells();
  for (const Corner corner : roof) losers &= peers_of(rectangle.cell(corner));
  if (losers.empty()) return;
  show_corners(draft, rectangle);
  for (const int cell : losers) draft.eliminate_shown(cell_at(cell), {z});
}

/// The roof corners have three candidates each; a digit beside x and y that all of them share is
/// in one of them.
std::optional<Deduction> find_shared_digit(const Rectangle& rectangle, Roof roof, Rule rule) {
  NineSet shared = NineSet::all() - rectangle.digits();
  for (const Corner corner : roof) {
    if (rectangle.count(corner) != 3) return std::nullopt;
    shared &= rectangle.position.candidates.digits(rectangle.cell(corner));
  }
  if (shared.empty()) return std::nullopt;
  Draft draft = begin_draft(rectangle, rule, roof);
  for (const int z : shared) clear_around(draft, rectangle, roof, z);
  if (!draft.deduction.removes_something()) return std::nullopt;
  for (const Cell corner : rectangle.corners) draft.rest_on(corner);
  return std::move(draft).finished();
}

std::optional<Deduction> find_shared_digit(const Rectangle& rectangle,
                                           std::initializer_list<Roof> roofs, Rule rule) {
  for (const Roof roof : roofs)
    if (auto found = find_shared_digit(rectangle, roof, rule)) return found;
  return std::nullopt;
}

/// Two corners share one extra digit, the other two hold only x and y.
std::optional<Deduction> find_digit_of_two(const Rectangle& rectangle) {
  if (rectangle.total() != 10) return std::nullopt;
  return find_shared_digit(rectangle, {{P, Q}, {P, R}, {P, S}, {Q, R}, {Q, S}, {R, S}},
                           Rule::two_share_a_digit);
}

/// The digit must stand in one of the two roof corners. When they share a box, having no other
/// place on the line does not suffice: the box must have none either.
bool is_bound_to(const Position& position, Cell roof1, Cell roof2, Unit line, int digit) {
  if (digit_count(position, line, digit) != 2) return false;
  return roof1.box() != roof2.box() ||
         digit_count(position, {UnitKind::box, roof1.box()}, digit) == 2;
}

Deduction deduce_roof(const Rectangle& rectangle, Corner roof1, Corner roof2, Unit line,
                      int removed) {
  Draft draft = begin_draft(rectangle, Rule::bound_to_roof, {roof1, roof2});
  draft.deduction.unit = line;
  draft.rest_on(line, rectangle.other(removed));
  rest_on_floor(draft, rectangle, {roof1, roof2});
  show_corners(draft, rectangle);
  for (const Corner corner : {roof1, roof2}) {
    draft.show(rectangle.cell(corner), Mark::support, {removed}, Emphasis::removed);
    draft.eliminate(rectangle.cell(corner), {removed});
  }
  return std::move(draft).finished();
}

bool has_roof(const Rectangle& rectangle, Corner roof1, Corner roof2) {
  for (const Corner corner : all_corners) {
    const bool is_roof = corner == roof1 || corner == roof2;
    if (is_roof ? rectangle.count(corner) < 3 : rectangle.count(corner) != 2) return false;
  }
  return true;
}

std::optional<Deduction> find_on_roof(const Rectangle& rectangle, Corner roof1, Corner roof2,
                                      Unit line) {
  if (!has_roof(rectangle, roof1, roof2)) return std::nullopt;
  for (const int digit : rectangle.digits())
    if (is_bound_to(rectangle.position, rectangle.cell(roof1), rectangle.cell(roof2), line, digit))
      return deduce_roof(rectangle, roof1, roof2, line, rectangle.other(digit));
  return std::nullopt;
}

/// One of the two digits is bound to the roof, so the other one leaves it.
std::optional<Deduction> find_bound_roof(const Rectangle& rectangle) {
  if (auto found = find_on_roof(rectangle, P, Q, rectangle.row_of(P))) return found;
  if (auto found = find_on_roof(rectangle, R, S, rectangle.row_of(S))) return found;
  if (auto found = find_on_roof(rectangle, P, R, rectangle.column_of(P))) return found;
  return find_on_roof(rectangle, Q, S, rectangle.column_of(S));
}

/// Three corners share one extra digit, the fourth holds only x and y.
std::optional<Deduction> find_digit_of_three(const Rectangle& rectangle) {
  if (rectangle.total() != 11) return std::nullopt;
  return find_shared_digit(rectangle, {{Q, R, S}, {P, R, S}, {P, Q, S}, {P, Q, R}},
                           Rule::three_share_a_digit);
}

/// The digit has no other places than the corners in the rectangle's rows and columns.
bool is_bound_to_corners(const Rectangle& rectangle, int digit) {
  for (const Unit line :
       {rectangle.row_of(P), rectangle.row_of(S), rectangle.column_of(P), rectangle.column_of(S)})
    if (digit_count(rectangle.position, line, digit) != 2) return false;
  return true;
}

Deduction deduce_diagonal(const Rectangle& rectangle, Corner open1, Corner open2, int digit) {
  Draft draft = begin_draft(rectangle, Rule::bound_to_diagonal, {open1, open2});
  for (const Corner corner : {P, S}) draft.rest_on(rectangle.row_of(corner), digit);
  rest_on_floor(draft, rectangle, {open1, open2});
  show_corners(draft, rectangle);
  for (const Corner open : {open1, open2}) {
    draft.show(rectangle.cell(open), Mark::support, {digit}, Emphasis::removed);
    draft.eliminate(rectangle.cell(open), {digit});
  }
  return std::move(draft).finished();
}

/// The one diagonal holds only x and y; a digit bound to the corners stands on it, not on the open
/// one.
std::optional<Deduction> find_on_diagonal(const Rectangle& rectangle, Corner two1, Corner two2,
                                          Corner open1, Corner open2) {
  if (rectangle.count(two1) != 2 || rectangle.count(two2) != 2) return std::nullopt;
  if (rectangle.count(open1) <= 2 || rectangle.count(open2) <= 2) return std::nullopt;
  for (const int digit : rectangle.digits())
    if (is_bound_to_corners(rectangle, digit))
      return deduce_diagonal(rectangle, open1, open2, digit);
  return std::nullopt;
}

std::optional<Deduction> find_bound_diagonal(const Rectangle& rectangle) {
  if (auto found = find_on_diagonal(rectangle, Q, R, P, S)) return found;
  return find_on_diagonal(rectangle, P, S, Q, R);
}

/// The rules in the order in which they are tried.
std::optional<Deduction> find_at(const Rectangle& rectangle) {
  if (rectangle.total() < 9) return std::nullopt;
  for (const auto find : {find_odd_corner, find_digit_of_two, find_bound_roof, find_digit_of_three,
                          find_bound_diagonal})
    if (auto found = find(rectangle)) return found;
  return std::nullopt;
}

std::optional<Deduction> find_on(const Position& position, const Corners& corners) {
  NineSet common = NineSet::all();
  for (const Cell corner : corners) common &= position.candidates.digits(corner);
  for (const int x : common)
    for (const int y : common)
      if (x < y)
        if (auto found = find_at({position, corners, x, y})) return found;
  return std::nullopt;
}

}  // namespace

std::optional<Deduction> find_unique_rectangle(const Position& position) {
  return find_on_rectangles([&](const Corners& corners) { return find_on(position, corners); });
}

}  // namespace sdk
