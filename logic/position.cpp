// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "logic/position.hpp"

#include "logic/deduction.hpp"

namespace sdk {

namespace {

/// The values that stand in each unit.
class Values {
 public:
  void enter(Cell cell, int value) {
    if (value == 0) return;
    rows_[index(cell.row)].insert(value);
    columns_[index(cell.column)].insert(value);
    boxes_[index(cell.box())].insert(value);
  }

  NineSet seen_from(Cell cell) const {
    return rows_[index(cell.row)] | columns_[index(cell.column)] | boxes_[index(cell.box())];
  }

 private:
  static std::size_t index(int n) { return static_cast<std::size_t>(n); }

  std::array<NineSet, 10> rows_{}, columns_{}, boxes_{};
};

/// Calls `visit` with every cell, row by row.
template <class Visit>
void for_each_cell(Visit visit) {
  for (int row = 1; row <= 9; ++row)
    for (int column = 1; column <= 9; ++column) visit(Cell{row, column});
}

void store_pair(Position& position, Cell cell) {
  const NineSet digits = position.candidates.digits(cell);
  const int smaller = digits.first();
  const int larger = (digits - NineSet{smaller}).first();
  position.pairs(cell.row, cell.column) = {static_cast<std::uint8_t>(smaller),
                                           static_cast<std::uint8_t>(larger)};
}

void recompute(Position& position, Cell cell, const Values& values) {
  CandidateCube& cube = position.candidates;
  if (cube.value(cell) != 0) return cube.clear(cell);
  for (const int digit : cube.digits(cell) & values.seen_from(cell)) cube.remove(cell, digit);
  cube.set_count(cell, cube.digits(cell).count());
  if (cube.count(cell) == 2) store_pair(position, cell);
}

/// Each empty cell has the candidates that `digits_at` says.
template <class DigitsAt>
Position make_position(const Square<std::int16_t>& values, DigitsAt digits_at) {
  Square<NineSet> digits;
  Square<std::uint8_t> bytes;
  for_each_cell([&](Cell cell) {
    const std::int16_t value = values(cell.row, cell.column);
    bytes(cell.row, cell.column) = static_cast<std::uint8_t>(value);
    if (value == 0) digits(cell.row, cell.column) = digits_at(cell);
  });
  return {CandidateCube(digits, bytes), {}, {}};
}

}  // namespace

Position open_position(const Square<std::int16_t>& values) {
  return make_position(values, [](Cell) { return NineSet::all(); });
}

Position position_of(const Square<std::int16_t>& values) {
  Values seen;
  for_each_cell([&](Cell cell) { seen.enter(cell, values(cell.row, cell.column)); });
  Position position =
      make_position(values, [&](Cell cell) { return NineSet::all() - seen.seen_from(cell); });
  for (const int cell : position.candidates.cells_counting(2)) store_pair(position, cell_at(cell));
  return position;
}

void recompute(Position& position) {
  const CandidateCube& cube = position.candidates;
  Values values;
  for_each_cell([&](Cell cell) { values.enter(cell, cube.value(cell)); });
  for_each_cell([&](Cell cell) {
    if (cube.count(cell) != 0) recompute(position, cell, values);
  });
}

void apply(const Deduction& deduction, Position& position) {
  for (int digit = 1; digit <= 9; ++digit)
    for (const int cell : deduction.losers_of(digit))
      position.candidates.remove(cell_at(cell), digit);
  if (!deduction.placement) return;
  const auto [cell, digit] = *deduction.placement;
  position.candidates.set_value(cell, digit);
  position.candidates.remove(cell, digit);
}

CellSet cells_with(const Position& position, Unit unit, int digit) {
  CellSet cells;
  for (const int place : position.candidates.places(unit, digit)) cells.insert(unit.cell(place));
  return cells;
}

int candidate_total(const Position& position, Unit unit) {
  int total = 0;
  for (int place = 1; place <= 9; ++place) total += position.candidates.count(unit.cell(place));
  return total;
}

int nth_candidate(const Position& position, Cell cell, int n) {
  for (const int digit : position.candidates.digits(cell))
    if (--n == 0) return digit;
  return 0;
}

}  // namespace sdk
