// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// A sentence that is judged: the step, what the sentence claims, what is wrong with it.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "logic/run.hpp"
#include "tests/explanations/sentence_reader.hpp"

namespace sdk::test {

struct ToldCase {
  const std::deque<Event>& hint;
  std::size_t index;  ///< of the step, from 0
  const Claims& claims;
  std::vector<std::string> faults{};

  const Event& event() const { return hint[index]; }
  const Deduction& deduction() const { return event().deduction; }
  const Position& before() const { return event().before; }
  NineSet digits(int cell) const { return before().candidates.digits(cell_at(cell)); }
  int value(int cell) const { return before().candidates.value(cell_at(cell)); }
  void expect(bool holds, const std::string& fault) {
    if (!holds) faults.push_back(fault);
  }
};

/// Each of the ones sees each of the others.
bool see_all(const CellSet& who, const CellSet& seen);

/// What singles say of other digits and places.
void judge_single(ToldCase& told);
/// Who sees whom, what follows from what.
void judge_reasons(ToldCase& told);

}  // namespace sdk::test
