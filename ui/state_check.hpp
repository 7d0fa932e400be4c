// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// What always holds of the window's whole state, whatever the player did.
#pragma once

#include <string>

#include "ui/main_window.hpp"

namespace sdk {

/// Empty when every text, grid, chain, flag and control is in its range, and the explanation holds
/// together; else what is not, and
/// where. To be called between two events.
std::string state_fault(const MainWindow& window);

}  // namespace sdk
