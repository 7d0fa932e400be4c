// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The links between cells that hold the same digit.
#pragma once

#include <array>
#include <memory>

#include "logic/candidate_cube.hpp"

namespace sdk {

/// For each digit and cell, the cells that are linked to it; read as the table of ones and zeros
/// `(digit, cell, cell)`. Copies share one table, which never changes. Digits are 1..9, cell
/// numbers 1..81.
class LinkTable {
 public:
  using Cells = std::array<CellSet, 9 * 82>;  ///< by index

  /// No links.
  LinkTable() = default;
  explicit LinkTable(const Cells& cells) : cells_(std::make_shared<const Cells>(cells)) {}

  int operator()(int digit, int cell1, int cell2) const { return of(digit, cell1).contains(cell2); }
  const CellSet& of(int digit, int cell) const { return cells()[index(digit, cell)]; }
  bool operator==(const LinkTable& other) const { return cells() == other.cells(); }

  static std::size_t index(int digit, int cell) {
    return static_cast<std::size_t>((digit - 1) * 82 + cell);
  }

 private:
  const Cells& cells() const;

  std::shared_ptr<const Cells> cells_;  ///< null stands for no links
};

struct Links {
  LinkTable strong;  ///< the only two places of a digit in a unit
  LinkTable weak;    ///< places of a digit that merely see each other
  bool operator==(const Links&) const = default;
};

/// Cells that see each other and both hold a digit are linked, strongly when they are its only two
/// places in a unit, else weakly. Counts play no part.
Links links_of(const CandidateCube& candidates);

}  // namespace sdk
