// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Plays transcripts and compares what they print with what they expect.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "tests/support/files.hpp"
#include "tests/transcripts/transcript.hpp"
#include "tools/command_line/command_line.hpp"

namespace {

enum Status { same = 0, different = 1, unusable = 2 };

std::string content(const std::string& path) {
  if (!std::filesystem::is_regular_file(path)) throw sdk::Malformed("cannot be read");
  return sdk::test::bytes_of(path);
}

void rewrite(const std::string& path, const sdk::Lines& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + '\n';
  sdk::test::write_file(path, text);
}

/// Prints how `actual` differs from the file.
void show_difference(const std::string& path, const sdk::Lines& actual) {
  setenv("TRANSCRIPT", path.c_str(), 1);  // no shell has to understand a path
  std::FILE* const diff = popen(
      "diff -u --label \"$TRANSCRIPT expects\" --label 'the program prints' -- "
      "\"$TRANSCRIPT\" -",
      "w");
  if (!diff) throw sdk::Malformed("differs, and diff cannot be run");
  for (const std::string& line : actual) std::fputs((line + '\n').c_str(), diff);
  pclose(diff);
}

Status compare(const std::string& path, bool rewriting) {
  const sdk::Lines expected = sdk::lines_of(content(path));
  const sdk::Lines actual = sdk::replay(expected);
  if (expected == actual) return same;
  show_difference(path, actual);
  if (!rewriting) return different;
  rewrite(path, actual);
  return same;
}

Status run(const std::string& path, bool rewriting) {
  try {
    return compare(path, rewriting);
  } catch (const std::runtime_error& fault) {
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
