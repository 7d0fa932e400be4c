// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/layout.hpp"

namespace sdk {

namespace {

constexpr float grid_size = 9 * cell_size;
constexpr float header_height = 1590;
constexpr float footer_height = 1560;
constexpr float window_height = header_height + grid_size + footer_height;
constexpr float narrow_width = 10035;
constexpr float frame_margin = 30;
constexpr float left_edge = 100;
constexpr float wide_width = 2 * grid_size + 400;

Rectangle grid_at(float left) { return {left, header_height, grid_size, grid_size}; }

Rectangle frame_around(const Rectangle& grid) {
  return {grid.left - frame_margin, grid.top - frame_margin, grid.width + 2 * frame_margin,
          grid.height + 2 * frame_margin};
}

Layout arrange(float width, float msf_left, float msr_left) {
  const Rectangle msf = grid_at(msf_left);
  const Rectangle msr = grid_at(msr_left);
  return {{0, 0, width, window_height}, msf, msr, frame_around(msf), frame_around(msr)};
}

}  // namespace

Layout layout(bool candidates_shown) {
  if (candidates_shown) return arrange(wide_width, left_edge, wide_width - left_edge - grid_size);
  const float centred = (narrow_width - grid_size) / 2;
  return arrange(narrow_width, centred, centred);
}

}  // namespace sdk
