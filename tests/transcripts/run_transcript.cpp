// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Plays transcripts and compares what they print with what they expect.

#include <algorithm>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

#include "tests/transcripts/diff.hpp"
#include "tests/transcripts/transcript.hpp"
#include "tools/command_line/command_line.hpp"

namespace {

enum Status { same = 0, different = 1, unusable = 2 };

std::string content(const std::string& path) {
  std::ifstream stream(path, std::ios::binary);
  if (!stream) throw sdk::Malformed("cannot be read");
  return {std::istreambuf_iterator<char>(stream), {}};
}

void rewrite(const std::string& path, const sdk::Lines& lines) {
  std::ofstream stream(path, std::ios::binary);
  for (const std::string& line : lines) stream << line << '\n';
  stream.flush();
  if (!stream) throw sdk::Malformed("cannot be written");
}

Status compare(const std::string& path, bool rewriting) {
  const sdk::Lines expected = sdk::lines_of(content(path));
  const sdk::Lines actual = sdk::replay(expected);
  if (expected == actual) return same;
  std::cout << "--- " << path << " expects\n+++ the program prints\n"
            << sdk::diff(expected, actual);
  if (!rewriting) return different;
  rewrite(path, actual);
  return same;
}

Status run(const std::string& path, bool rewriting) {
  try {
    return compare(path, rewriting);
  } catch (const sdk::Malformed& fault) {
    std::cerr << path << ": " << fault.what() << '\n';
    return unusable;
  }
}

}  // namespace

/// Exits with 0 when every transcript printed what it expects, with 1 when one differs, with 2 when
/// one is malformed. `--rewrite` writes what is printed now in place of what is expected.
int main(int argc, char** argv) {
  std::vector<std::string> paths;
  bool rewriting = false;
  sdk::CommandLine line;
  line.add_switch("--rewrite", rewriting);
  line.add_names(paths);
  if (!line.read(argc, argv) || paths.empty()) {
    std::cerr << "usage: run_transcript [--rewrite] FILE...\n";
    return unusable;
  }
  int status = same;
  for (const std::string& path : paths) status = std::max<int>(status, run(path, rewriting));
  return status;
}
