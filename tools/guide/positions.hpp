// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// A position for each technique, in which a hint comes to use it.
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "logic/run.hpp"

namespace sdk {

/// The two candidates that a solved cell had before.
struct FormerPair {
  Cell cell;
  std::uint8_t smaller, larger;
};

struct GuidePosition {
  std::string_view technique;  ///< its id
  std::string_view grid;       ///< 81 characters row by row, "." an empty cell
  Rule rule = Rule::only;
  /// What a hint has forgotten, where the technique needs it.
  std::vector<FormerPair> former_pairs = {};
};

/// In the order of logic/techniques.hpp; every single and every technique has one, and the unique
/// rectangle one for each of its rules.
const std::vector<GuidePosition>& positions();

/// The technique's id; numbered from 1 where it has several positions: "unique_rectangle-2".
std::string name_of(const GuidePosition& position);

/// Throws GuideError naming it when there is none of that name.
const GuidePosition& position_named(std::string_view name);

/// The hint from the grid up to the step by which the technique fires. Throws std::logic_error when
/// it does not.
std::deque<Event> steps_to(const GuidePosition& position);

}  // namespace sdk
