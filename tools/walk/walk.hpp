// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// One hint after another on a puzzle, every offer accepted, as text.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace sdk {

// A puzzle must pass puzzle_fault.

/// Every change of a technique, every offer and the end, a line each, after a line with the grid.
std::string walk(std::string_view puzzle);
/// The same in sentences, in the language "En" or "Fr"; the steps of each hint are numbered from 1.
std::string explained_walk(std::string_view puzzle, std::string_view language);

/// A checksum of the walks of the forty puzzles of the library. It changes when, and practically
/// only when, one of these walks does.
std::uint64_t library_signature();

}  // namespace sdk
