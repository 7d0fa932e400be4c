// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// How each rule of each technique is told: its name, and who tells why it is right.
#pragma once

#include <array>

#include "explanations/tellers.hpp"
#include "logic/techniques.hpp"

namespace sdk {

struct Sentence {
  std::string_view technique;  ///< its id
  Rule rule;
  Text name;
  Teller tell;
};

inline constexpr Text unique_rectangle{"Rectangle unique", "Unique rectangle"};
inline constexpr Text colouring{"Coloriage simple", "Simple colouring"};

inline constexpr std::array sentences{
    Sentence{"naked_single", Rule::only, {"Singleton nu", "Naked single"}, tell_naked_single},
    Sentence{"hidden_single", Rule::only, {"Singleton caché", "Hidden single"}, tell_hidden_single},
    Sentence{"pointing_rows", Rule::only, {"Pointage", "Pointing"}, tell_locked},
    Sentence{"pointing_columns", Rule::only, {"Pointage", "Pointing"}, tell_locked},
    Sentence{
        "box_line_rows", Rule::only, {"Réduction ligne/région", "Box/line reduction"}, tell_locked},
    Sentence{"box_line_columns",
             Rule::only,
             {"Réduction colonne/région", "Box/line reduction"},
             tell_locked},
    Sentence{"naked_pair", Rule::only, {"Paire nue", "Naked pair"}, tell_naked_pair},
    Sentence{"hidden_pair", Rule::only, {"Paire cachée", "Hidden pair"}, tell_hidden_set},
    Sentence{"naked_triple", Rule::only, {"Triplet nu", "Naked triple"}, tell_naked_set},
    Sentence{"hidden_triple", Rule::only, {"Triplet caché", "Hidden triple"}, tell_hidden_set},
    Sentence{"unique_rectangle", Rule::odd_corner, unique_rectangle, tell_odd_corner},
    Sentence{"unique_rectangle", Rule::two_share_a_digit, unique_rectangle, tell_shared_digit},
    Sentence{"unique_rectangle", Rule::bound_to_roof, unique_rectangle, tell_bound_to_roof},
    Sentence{"unique_rectangle", Rule::three_share_a_digit, unique_rectangle, tell_shared_digit},
    Sentence{"unique_rectangle", Rule::bound_to_diagonal, unique_rectangle, tell_bound_to_diagonal},
    Sentence{"avoidable_rectangle",
             Rule::only,
             {"Rectangle évitable", "Avoidable rectangle"},
             tell_avoidable},
    Sentence{"naked_quad", Rule::only, {"Quadruplet nu", "Naked quad"}, tell_naked_set},
    Sentence{"x_wing", Rule::only, {"Aile X (X-wing)", "X-wing"}, tell_x_wing},
    Sentence{"hidden_quad", Rule::only, {"Quadruplet caché", "Hidden quad"}, tell_hidden_set},
    Sentence{"swordfish", Rule::only, {"Espadon (swordfish)", "Swordfish"}, tell_fish},
    Sentence{"jellyfish", Rule::only, {"Méduse (jellyfish)", "Jellyfish"}, tell_fish},
    Sentence{"xy_wing", Rule::only, {"Aile XY (XY-wing)", "XY-wing"}, tell_pivot_wing},
    Sentence{"xyz_wing", Rule::only, {"Aile XYZ (XYZ-wing)", "XYZ-wing"}, tell_pivot_wing},
    Sentence{"finned_x_wing",
             Rule::with_fin,
             {"Aile X à aileron (finned X-wing)", "Finned X-wing"},
             tell_finned_x_wing},
    Sentence{"finned_x_wing",
             Rule::without_fin,
             {"Aile X à aileron (finned X-wing), sans aileron", "Finned X-wing, without a fin"},
             tell_finned_x_wing},
    Sentence{"w_wing", Rule::only, {"Aile W (W-wing)", "W-wing"}, tell_w_wing},
    Sentence{"simple_colouring", Rule::trap, colouring, tell_trap},
    Sentence{"simple_colouring", Rule::wrap, colouring, tell_wrap},
};

}  // namespace sdk
