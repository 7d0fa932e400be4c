// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Steps made by hand, and the plainest grids in which they are right.
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "tests/proofs/plain_grid.hpp"

namespace sdk::proofs {

using Names = std::vector<std::string>;

nlohmann::json cell_premise(const std::string& cell, const std::vector<int>& digits);
nlohmann::json unit_premise(const std::string& unit, int digit, const Names& cells);
nlohmann::json unique_premise(int low, int high, const Names& corners);

/// Digits that cells lose: "r1c2" loses 3 and 8.
using Losses = std::vector<std::pair<std::string, std::vector<int>>>;

/// A certain step.
nlohmann::json technique(const std::string& name, int place, int variant,
                         const nlohmann::json& premises, const Losses& losses);
nlohmann::json offer(const std::string& kind, const nlohmann::json& premise,
                     const std::string& cell, int digit);

/// Every technique and every rule that is certain, both offers.
std::vector<nlohmann::json> right_steps();
/// The one of a technique (and rule), or kind of offer.
nlohmann::json right_step(const std::string& name, int variant = 0);
/// A rectangle with a corner in each of four boxes; not certain.
nlohmann::json loose_rectangle();

/// An empty grid in which any digit can go anywhere but for what the step's premises say.
PlainGrid grid_for(const nlohmann::json& step);
/// The same for several steps.
PlainGrid grid_for(const std::vector<nlohmann::json>& steps);

}  // namespace sdk::proofs
