// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Steps of techniques made wrong in all the ways that a checker has to notice.
#pragma once

#include <nlohmann/json.hpp>
#include <vector>

#include "tests/proofs/plain_grid.hpp"

namespace sdk::proofs {

/// A right step with one thing changed, and no longer right in that grid: a digit or cell more or
/// less in a premise, another digit or another unit of its kind; a removed candidate that is not
/// there, or one that no premise speaks of; "certain" the other way round. Where the step proves
/// nothing, as a rectangle that is not certain, or where its premises contradict each other, as on
/// some drawn boards, its conclusion is left alone.
std::vector<nlohmann::json> altered(const nlohmann::json& step, const PlainGrid& before);

/// The step with each of its premises left out.
std::vector<nlohmann::json> with_a_premise_less(const nlohmann::json& step);

/// The step with a true premise too many, about each empty cell of which it says nothing.
std::vector<nlohmann::json> with_a_premise_more(const nlohmann::json& step,
                                                const PlainGrid& before);

}  // namespace sdk::proofs
