// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The one order in which the driver tries the techniques that remove candidates.
#pragma once

#include <array>
#include <string_view>

#include "board/bool16.hpp"

namespace sdk {

/// The procedure looks for the first pattern that removes a candidate, removes what follows from it
/// and returns true; or it changes nothing and returns false.
struct Technique {
  int place;
  std::string_view name;
  Bool16 (*procedure)();
};

extern const std::array<Technique, 21> technique_order;

}  // namespace sdk
