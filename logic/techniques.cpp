// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "logic/techniques.hpp"

namespace sdk {

std::optional<Deduction> find_by(const Technique& technique, const Position& position) {
  auto found = technique.find(position);
  if (found) found->technique = &technique;
  return found;
}

namespace {

constexpr bool has_distinct_ids() {
  for (std::size_t row = 0; row < row_count; ++row)
    if (row_with(technique_at(row).id) != row) return false;
  return true;
}

constexpr bool has_ascending_places() {
  for (std::size_t i = 1; i < techniques.size(); ++i)
    if (techniques[i - 1].place >= techniques[i].place) return false;
  return true;
}

static_assert(has_distinct_ids());
static_assert(has_ascending_places());

}  // namespace

}  // namespace sdk
