// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// A filter of lines that works on several of them at once and keeps their order.
#pragma once

#include <functional>
#include <istream>
#include <ostream>
#include <string>

namespace sdk {

/// What becomes of a line.
struct Processed {
  std::string output, errors;
  bool is_fault = false;
};

struct FilterEnd {
  bool had_faults = false;  ///< some line was one
  /// What failed and why: "standard input: ..." where reading broke off, "standard output: ..."
  /// where nothing more was taken; else empty.
  std::string failure;
};

/// Called on several threads at once; `number` counts all lines from 1. It must not throw.
using ProcessLine = std::function<Processed(const std::string& line, long number)>;

/// Processes every line of `in` on that many threads (1 or more), or on those that the system
/// grants. What comes of them is written to
/// `out` and `errors` in the order of the lines; whatever the length of the input, only some
/// hundred lines a thread are held at a time. Where the input comes slowly nothing waits for lines
/// that are not there yet. Once `out` takes no more, nothing more is read.
FilterEnd filter_lines(std::istream& in, std::ostream& out, std::ostream& errors, int threads,
                       const ProcessLine& process);

}  // namespace sdk
