// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Everything that a hint can use, a row each, and the one order in which it is tried. What is told
/// of a technique elsewhere goes by its id (sentences, boards) or its place (walks, pictures), and
/// is checked against these tables.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "logic/technique.hpp"
#include "logic/techniques/finders.hpp"

namespace sdk {

/// The techniques that place a digit, in the order in which they are tried.
inline constexpr std::array singles{
    Technique{0, "naked_single", "naked single", find_naked_single},
    Technique{0, "hidden_single", "hidden single", find_hidden_single},
};

/// The techniques that remove candidates, in the order in which they are tried. Places are printed
/// and never move. At place 19 the links are built.
inline constexpr std::array techniques{
    Technique{1, "pointing_rows", "pointing, rows", find_pointing_rows},
    Technique{2, "pointing_columns", "pointing, columns", find_pointing_columns},
    Technique{3, "box_line_rows", "box/line reduction, rows", find_box_line_rows},
    Technique{4, "box_line_columns", "box/line reduction, columns", find_box_line_columns},
    Technique{5, "naked_pair", "naked pairs", find_naked_pair},
    Technique{.place = 6,
              .id = "hidden_pair",
              .name = "hidden pairs",
              .find = find_hidden_pair,
              .ending = Ending::recompute},
    Technique{.place = 7,
              .id = "naked_triple",
              .name = "naked triples",
              .find = find_naked_triple,
              .ending = Ending::recompute,
              .flag = SuggestionFlag::raised},
    Technique{.place = 8,
              .id = "hidden_triple",
              .name = "hidden triples",
              .find = find_hidden_triple,
              .ending = Ending::recompute},
    Technique{.place = 9,
              .id = "unique_rectangle",
              .name = "unique rectangles",
              .find = find_unique_rectangle,
              .rules = {Rule::odd_corner, Rule::two_share_a_digit, Rule::bound_to_roof,
                        Rule::three_share_a_digit, Rule::bound_to_diagonal}},
    Technique{10, "avoidable_rectangle", "avoidable rectangle", find_avoidable_rectangle},
    Technique{.place = 11,
              .id = "naked_quad",
              .name = "naked quads",
              .find = find_naked_quad,
              .ending = Ending::recompute,
              .flag = SuggestionFlag::lowered_and_raised},
    Technique{.place = 12,
              .id = "x_wing",
              .name = "X-wing",
              .find = find_x_wing,
              .ending = Ending::show_and_recompute},
    Technique{.place = 13,
              .id = "hidden_quad",
              .name = "hidden quads",
              .find = find_hidden_quad,
              .ending = Ending::recompute,
              .flag = SuggestionFlag::lowered_and_raised},
    Technique{.place = 14,
              .id = "swordfish",
              .name = "swordfish",
              .find = find_swordfish,
              .ending = Ending::show_and_recompute},
    Technique{.place = 15,
              .id = "jellyfish",
              .name = "jellyfish",
              .find = find_jellyfish,
              .ending = Ending::show_and_recompute},
    Technique{16, "xy_wing", "XY-wing", find_xy_wing},
    Technique{17, "xyz_wing", "XYZ-wing", find_xyz_wing},
    Technique{.place = 18,
              .id = "finned_x_wing",
              .name = "finned X-wing",
              .find = find_finned_x_wing,
              .rules = {Rule::with_fin, Rule::without_fin},
              .ending = Ending::show_and_recompute},
    Technique{
        .place = 20, .id = "w_wing", .name = "W-wing", .find = find_w_wing, .reads_links = true},
    Technique{.place = 21,
              .id = "simple_colouring",
              .name = "simple colouring",
              .find = find_simple_colouring,
              .rules = {Rule::trap, Rule::wrap},
              .reads_links = true},
};

/// How many rows both tables have.
inline constexpr std::size_t row_count = singles.size() + techniques.size();

/// Row 0, 1, ... of the singles, then of the techniques.
constexpr const Technique& technique_at(std::size_t row) {
  return row < singles.size() ? singles[row] : techniques[row - singles.size()];
}

/// The row of that id; row_count when there is none.
constexpr std::size_t row_with(std::string_view id) {
  std::size_t row = 0;
  while (row < row_count && technique_at(row).id != id) ++row;
  return row;
}

/// The row of that id, found while the program is compiled: an id without a row does not compile.
consteval const Technique& technique_named(std::string_view id) {
  if (row_with(id) == row_count) throw "no technique has this id";
  return technique_at(row_with(id));
}

/// Whether a naked single was found.
inline bool is_naked_single(const Deduction& deduction) {
  return deduction.technique == &technique_named("naked_single");
}

/// Asks the technique's finder, and enters the technique in what it found.
std::optional<Deduction> find_by(const Technique& technique, const Position& position);

}  // namespace sdk
