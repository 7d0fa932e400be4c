// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// A filter of lines, or of other items, that works on several at once and keeps their order.
#pragma once

#include <functional>
#include <istream>
#include <ostream>
#include <span>
#include <string>

namespace sdk {

/// What becomes of an item.
struct Processed {
  std::string output, errors;
  bool is_fault = false;
};

struct FilterEnd {
  bool had_faults = false;  ///< some item was one
  /// What failed and why: "standard input: ..." where reading broke off, "standard output: ..."
  /// where nothing more was taken; else empty.
  std::string failure;
};

/// Called on several threads at once; `number` counts all items from 1. It must not throw.
using ProcessItem = std::function<Processed(const std::string& item, long number)>;

/// Processes every line of `in` on that many threads (1 or more), or on those that the system
/// grants. What comes of them is written to `out` and `errors` in the order of the lines; whatever
/// the length of the input, only some hundred lines a thread are held at a time. Where the input
/// comes slowly nothing waits for lines that are not there yet. Once `out` takes no more, nothing
/// more is read.
FilterEnd filter_lines(std::istream& in, std::ostream& out, std::ostream& errors, int threads,
                       const ProcessItem& process);

/// The same for items that are at hand, such as names of files.
FilterEnd filter_items(std::span<const std::string> items, std::ostream& out, std::ostream& errors,
                       int threads, const ProcessItem& process);

}  // namespace sdk
