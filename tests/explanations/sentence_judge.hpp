// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Compares what sentences claim with the grid before the step, and with the step itself.
#pragma once

#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "logic/run.hpp"

namespace sdk::test {

/// What is wrong with the sentence for a step of the hint (counted from 0), in the language "En" or
/// "Fr"; empty when nothing is. Every claim that can be read must be true of the candidates before
/// the step, every premise must be claimed, and the removals must be those of the step. The
/// language's typography and the length are judged as well.
std::vector<std::string> faults(const std::deque<Event>& hint, std::size_t index,
                                const std::string& sentence, std::string_view language);

/// The same of all sentences that explain() gives, in both languages; a line each.
std::string faults(const std::deque<Event>& hint);

/// How long the sentence is as it is read, in characters.
std::size_t length_of(std::string_view sentence);

}  // namespace sdk::test
