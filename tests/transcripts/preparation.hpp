// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// What is put in the folders of a transcript before a command runs.
#pragma once

#include <string>

#include "tests/transcripts/scratch.hpp"

namespace sdk {

/// Does what a line says, its mark taken off: `file PATH "TEXT"` writes a file, TEXT escaped as
/// `show file` escapes it; `solver NAME` puts a stand-in of the external solver beside the program.
/// Throws Malformed, and std::runtime_error when it cannot write.
void prepare(const std::string& line, const Scratch& scratch);

}  // namespace sdk
