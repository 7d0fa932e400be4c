// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The finders, one for each row of the tables in logic/techniques.hpp. Each looks for the first
/// pattern of its scan that leads to something and tells what follows; it changes nothing. The row
/// itself is entered in the deduction by find_by (logic/techniques.hpp).
#pragma once

#include <optional>

#include "logic/deduction.hpp"
#include "logic/position.hpp"

namespace sdk {

/// The first cell, row by row, that counts exactly one candidate.
std::optional<Deduction> find_naked_single(const Position& position);
/// The first digit with exactly one place in a unit: rows, then columns, then boxes, the digit
/// before the unit's number.
std::optional<Deduction> find_hidden_single(const Position& position);

/// A digit whose places in a box lie on one line leaves the rest of that line.
std::optional<Deduction> find_pointing_rows(const Position& position);
std::optional<Deduction> find_pointing_columns(const Position& position);

/// A digit whose places on a line lie in one box leaves the rest of that box.
std::optional<Deduction> find_box_line_rows(const Position& position);
std::optional<Deduction> find_box_line_columns(const Position& position);

/// Two cells of a unit with the same two candidates: both digits leave the other cells.
std::optional<Deduction> find_naked_pair(const Position& position);
/// Two digits with the same two places in a unit: every other digit leaves those cells.
std::optional<Deduction> find_hidden_pair(const Position& position);

/// Three (four) cells of a unit that hold only three (four) digits: those leave the other cells.
std::optional<Deduction> find_naked_triple(const Position& position);
std::optional<Deduction> find_naked_quad(const Position& position);
/// Three (four) digits with only three (four) places in a unit: other digits leave those cells.
std::optional<Deduction> find_hidden_triple(const Position& position);
std::optional<Deduction> find_hidden_quad(const Position& position);

/// Four corners that must not end as a rectangle of two digits. Relies on the puzzle having one
/// solution, and does not ask that the rectangle lie in two boxes.
std::optional<Deduction> find_unique_rectangle(const Position& position);
/// The same for three solved corners and an open one, by the pairs that the solved cells had.
std::optional<Deduction> find_avoidable_rectangle(const Position& position);

/// A digit with the same two places in two lines leaves the rest of the two crossing lines.
std::optional<Deduction> find_x_wing(const Position& position);

/// A digit whose places in three (four) lines lie on three (four) crossing lines leaves the rest of
/// those.
std::optional<Deduction> find_swordfish(const Position& position);
std::optional<Deduction> find_jellyfish(const Position& position);

/// A cell of two candidates that sees two others which share a third digit with it.
std::optional<Deduction> find_xy_wing(const Position& position);
/// The same around a cell of three candidates.
std::optional<Deduction> find_xyz_wing(const Position& position);

/// An X-wing with extra places in its base lines, all in the box of the cell that loses the digit.
std::optional<Deduction> find_finned_x_wing(const Position& position);

/// Two cells with the same two candidates whose ends of a strong link keep one of them from both.
/// Reads the links.
std::optional<Deduction> find_w_wing(const Position& position);

/// Two colours along the strong links of a digit. Reads the links.
std::optional<Deduction> find_simple_colouring(const Position& position);

}  // namespace sdk
