// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Judges walks in JSON:
//   check_proofs < LINES            those of standard input
//   check_proofs SUDOKU-WALK SEED   those that the tool prints for made-up puzzles of every kind
// PROOF_GRIDS in the environment says from how many grids these are made (10 without), six a grid.
// Prints each fault and a table; the exit status is 1 when there is a fault.

#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <string>

#include "tests/proofs/walk_audit.hpp"
#include "tests/support/files.hpp"
#include "tests/support/puzzle_generator.hpp"
#include "tests/support/wanted_count.hpp"
#include "tools/command_line/command_line.hpp"

namespace {

using Puzzles = std::vector<std::string>;

Puzzles made_up_puzzles(std::uint32_t seed) {
  sdk::test::PuzzleGenerator generator(seed);
  Puzzles all;
  for (int grids = sdk::test::wanted_count("PROOF_GRIDS", 10); grids > 0; --grids)
    for (const std::string& puzzle : generator.next()) all.push_back(puzzle);
  return all;
}

/// A file with a line each, for as long as this lives.
class PuzzlesOnDisk {
 public:
  explicit PuzzlesOnDisk(const Puzzles& puzzles) {
    std::string lines;
    for (const std::string& puzzle : puzzles) lines += puzzle + '\n';
    sdk::test::write_file(path(), lines);
  }
  std::string path() const { return (folder_ / "puzzles").string(); }

 private:
  sdk::test::ScratchFolder folder_;
};

void read_all(std::FILE* stream, sdk::proofs::WalkAudit& audit) {
  char* line = nullptr;
  std::size_t room = 0;
  for (ssize_t length; (length = getline(&line, &room, stream)) > 0;)
    audit.read(std::string(line, static_cast<std::size_t>(length)));
  std::free(line);
}

/// Whether the tool ended well.
bool read_walks(const std::string& tool, const Puzzles& puzzles, sdk::proofs::WalkAudit& audit) {
  const PuzzlesOnDisk input(puzzles);
  audit.expect(puzzles);
  std::FILE* const walks = popen((tool + " --json < " + input.path()).c_str(), "r");
  if (walks == nullptr) return false;
  read_all(walks, audit);
  return pclose(walks) == 0;
}

int verdict(sdk::proofs::WalkAudit& audit, bool ended_well) {
  audit.finish();
  audit.print_table(std::cout);
  if (!ended_well) std::cout << "the tool failed\n";
  return audit.faults() == 0 && audit.puzzles() > 0 && ended_well ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  std::string tool;
  std::uint32_t seed = 0;
  sdk::CommandLine line;
  CLI::Option* const walk = line.add_option("SUDOKU-WALK", tool);
  CLI::Option* const seeded = line.add_option("SEED", seed)->transform(sdk::whole_number(0));
  walk->needs(seeded);
  if (!line.read(argc, argv)) {
    std::cerr << "usage: check_proofs [SUDOKU-WALK SEED]\n";
    return 2;
  }
  sdk::proofs::WalkAudit audit(std::cout);
  if (walk->count() > 0) return verdict(audit, read_walks(tool, made_up_puzzles(seed), audit));
  read_all(stdin, audit);
  return verdict(audit, true);
}
