// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Which premises a step has to list, whatever its conclusion needs.
#pragma once

#include <string>

#include "tests/proofs/step.hpp"

namespace sdk::proofs {

/// What is wrong, empty when nothing is: a naked single has one premise about its cell, a hidden
/// single one about a unit; a fish lists its base lines; colouring lists every strong link between
/// cells that it names, once each; rules 3 and 5 of unique rectangles list one line and two; only
/// rectangles speak of rectangles.
std::string shape_fault(const OfferStep& step);
std::string shape_fault(const TechniqueStep& step, const PlainGrid& before);

/// Whether the premise belongs there even if the conclusion follows without it: base lines of fish,
/// links of colouring.
bool is_listed_anyway(const TechniqueStep& step, const Premise& premise);
inline bool is_listed_anyway(const OfferStep&, const Premise&) { return false; }

/// Whether it is a unique rectangle whose corners do not lie in exactly two boxes.
bool has_loose_rectangle(const TechniqueStep& step);

}  // namespace sdk::proofs
