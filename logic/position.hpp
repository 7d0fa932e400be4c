// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// What a hint reasons about: the candidates, what cells of two candidates had, the links.
/// Rows, columns, boxes and digits are 1..9.
#pragma once

#include <array>
#include <cstdint>

#include "board/square.hpp"
#include "logic/candidate_cube.hpp"
#include "logic/links.hpp"

namespace sdk {

struct Deduction;

/// The two candidates, the smaller first, that the cell had when it last had two; zeros before.
using PairTable = Square<std::array<std::uint8_t, 2>>;

struct Position {
  CandidateCube candidates;
  PairTable pairs;
  Links links;  ///< as they were built last; they do not follow the candidates
  bool operator==(const Position&) const = default;
};

/// The grid of values (0 for an empty cell, else 1..9) before anything is concluded: every empty
/// cell has all nine candidates.
Position open_position(const Square<std::int16_t>& values);

/// The same once it is recomputed.
Position position_of(const Square<std::int16_t>& values);

/// Every cell whose stored count is not 0 loses what the values it sees exclude, or everything when
/// it has a value itself, and is counted afresh. A cell that is left with two candidates enters the
/// pairs.
void recompute(Position& position);

/// Removes the candidates of the deduction, or enters its digit as the cell's value, which takes
/// that digit's flag; all counts, and the other flags, wait for the recompute.
void apply(const Deduction& deduction, Position& position);

/// In how many cells of the unit the digit is a candidate.
inline int digit_count(const Position& position, Unit unit, int digit) {
  return position.candidates.places(unit, digit).count();
}
/// The same within a box, on one of the lines that cross it.
inline int digit_count_in_box(const Position& position, Unit line, int box, int digit) {
  return (position.candidates.places(line, digit) & places_in_box(line.kind, box)).count();
}
/// The cells of the unit where the digit is a candidate.
CellSet cells_with(const Position& position, Unit unit, int digit);
/// The sum of the stored counts of the unit's cells.
int candidate_total(const Position& position, Unit unit);
/// The n-th candidate of the cell in ascending order; 0 when it has fewer.
int nth_candidate(const Position& position, Cell cell, int n);

}  // namespace sdk
