// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// A transcript: commands and what the program printed, in one readable file.
///
///     # a comment
///     = what is put in its folders
///     > a command
///       a line of its output
///
/// Blank lines may stand anywhere.
#pragma once

#include <stdexcept>
#include <string>
#include <vector>

namespace sdk {

/// Why a file is no transcript: the line's number and what is wrong with it.
struct Malformed : std::runtime_error {
  using std::runtime_error::runtime_error;
};

using Lines = std::vector<std::string>;

Lines lines_of(const std::string& text);

/// Runs the commands in fresh folders and returns the transcript as it should read: every line but
/// the output as it stands, and after each command the output that it has now. What the program
/// puts on standard error follows, each line after "(standard error) ". Throws Malformed.
Lines replay(const Lines& transcript);

}  // namespace sdk
