// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Naked triples and quads: n cells of a unit that hold only n digits share these out among
// themselves.

#include <array>
#include <utility>

#include "logic/draft.hpp"
#include "logic/techniques/combinations.hpp"
#include "logic/techniques/finders.hpp"
#include "logic/techniques/scans.hpp"

namespace sdk {

namespace {

/// What a cell holds, and its stored count.
struct Content {
  NineSet digits;
  int count;

  /// Nothing but some of these.
  bool is_only(NineSet others) const {
    const int held = (digits & others).count();
    return held != 0 && held == count;
  }
};

bool holds_only(const Position& position, Cell cell, NineSet digits) {
  return Content{position.candidates.digits(cell), position.candidates.count(cell)}.is_only(digits);
}

/// The cells of a unit that could belong to a pattern of this size.
class FewCells {
 public:
  FewCells(const Position& position, Unit unit, int size) {
    for (int place = 1; place <= 9; ++place) {
      const Cell cell = unit.cell(place);
      const int count = position.candidates.count(cell);
      if (count < 2 || count > size) continue;
      contents_[size_++] = {position.candidates.digits(cell), count};
    }
  }

  int count() const { return static_cast<int>(size_); }
  int count_of_only(NineSet digits) const {
    int count = 0;
    for (std::size_t i = 0; i < size_; ++i) count += contents_[i].is_only(digits);
    return count;
  }

 private:
  std::array<Content, 9> contents_;
  std::size_t size_ = 0;
};

bool removes_something(const Position& position, Unit unit, NineSet digits) {
  for (const int digit : digits)
    for (const int place : position.candidates.places(unit, digit))
      if (!holds_only(position, unit.cell(place), digits)) return true;
  return false;
}

Deduction deduce(const Position& position, Unit unit, NineSet digits) {
  Draft draft(position);
  draft.deduction.unit = unit;
  draft.deduction.digits = digits;
  for (int place = 1; place <= 9; ++place) {
    const Cell cell = unit.cell(place);
    if (holds_only(position, cell, digits))
      draft.support(cell, Role::pattern, digits);
    else if (!(position.candidates.digits(cell) & digits).empty())
      draft.eliminate_shown(cell, digits);
  }
  for (const int cell : draft.deduction.cells_as(Role::pattern)) draft.rest_on(cell_at(cell));
  return std::move(draft).finished();
}

// The unit's total of candidates falls exactly when a digit is removed, so a pattern that removes
// nothing is passed over.
std::optional<Deduction> find_in(const Position& position, Unit unit, int size) {
  const FewCells few(position, unit, size);
  if (few.count() < size) return std::nullopt;
  for (const NineSet digits : combinations(size))
    if (few.count_of_only(digits) == size && removes_something(position, unit, digits))
      return deduce(position, unit, digits);
  return std::nullopt;
}

std::optional<Deduction> find(const Position& position, int size) {
  return find_in_units([&](Unit unit) { return find_in(position, unit, size); });
}

}  // namespace

std::optional<Deduction> find_naked_triple(const Position& position) { return find(position, 3); }

std::optional<Deduction> find_naked_quad(const Position& position) { return find(position, 4); }

}  // namespace sdk
