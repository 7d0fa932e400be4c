// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The grid that a puzzle file on the disk holds.
#pragma once

#include <string>

namespace sdk {

struct FileGrid {
  /// As grid_of_file makes it of the bytes: a blank for an empty cell, any length.
  std::string cells;
  /// Why there is none: the system's reason, or that the file is empty; else empty.
  std::string failure;
};

/// Reads a file, whatever is in it; one of more than 16 MiB is too large.
FileGrid grid_in_file(const std::string& name);

}  // namespace sdk
