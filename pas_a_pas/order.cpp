// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "pas_a_pas/order.hpp"

#include "pas_a_pas/techniques/techniques.hpp"

namespace sdk {

namespace {

/// Not a technique: the two that follow read the links. It removes nothing, so the driver goes on.
Bool16 rebuild_links() {
  construit_liens();
  return false;
}

}  // namespace

const std::array<Technique, 21> technique_order{{
    {1, "pointing, rows", pointing_rows},
    {2, "pointing, columns", pointing_columns},
    {3, "box/line reduction, rows", box_line_rows},
    {4, "box/line reduction, columns", box_line_columns},
    {5, "naked pairs", naked_pairs},
    {6, "hidden pairs", hidden_pairs},
    {7, "naked triples", naked_triples},
    {8, "hidden triples", hidden_triples},
    {9, "unique rectangles", rectangles_uniques},
    {10, "avoidable rectangle", rectangle_evitable},
    {11, "naked quads", naked_quads},
    {12, "X-wing", x_wing},
    {13, "hidden quads", hidden_quads},
    {14, "swordfish", espadon},
    {15, "jellyfish", meduse},
    {16, "XY-wing", aile_xy},
    {17, "XYZ-wing", aile_xyz},
    {18, "finned X-wing", aile_x_aileron},
    {19, "link tables", rebuild_links},
    {20, "W-wing", aile_w},
    {21, "simple colouring", coloriage},
}};

}  // namespace sdk
