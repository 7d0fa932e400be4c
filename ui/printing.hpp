// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The page that the print command prints.
#pragma once

#include <string>

#include "screen/desktop.hpp"
#include "ui/layout.hpp"

namespace sdk {

/// The cells of `puzzle` as they are now, centred on `paper` as the window `layout` centres on it,
/// under `title` and over `credit`. On paper no wider than the window everything starts 1000 twips
/// from the left.
Page printed_page(PageSize paper, const Layout& layout, const DisplayGrid& puzzle,
                  const std::string& title, const std::string& credit);

/// The two horizontal, then the two vertical lines between the boxes of a grid.
std::vector<LineDrawing> box_lines(const Rectangle& grid, int width);

}  // namespace sdk
