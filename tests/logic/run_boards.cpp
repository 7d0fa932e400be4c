// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Registers every case of the files of drawn boards as a test of its own and runs them.

#include <gtest/gtest.h>

#include <filesystem>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "tests/logic/board_call.hpp"
#include "tools/command_line/command_line.hpp"

namespace sdk::test {

namespace {

class BoardTest : public testing::Test {
 public:
  BoardTest(std::shared_ptr<const BoardFile> file, const BoardCase& board)
      : file_(std::move(file)), board_(board) {}

  void TestBody() override {
    if (const std::string fault = differences(*file_, board_); !fault.empty())
      ADD_FAILURE() << fault;
  }

 private:
  std::shared_ptr<const BoardFile> file_;
  const BoardCase& board_;  ///< one of the file's
};

void register_cases(const std::filesystem::path& path) {
  const auto file = std::make_shared<const BoardFile>(read_boards(path));
  for (const BoardCase& board : file->cases)
    testing::RegisterTest(
        ("Boards/" + std::string(file->technique->id)).c_str(), board.name.c_str(), nullptr,
        nullptr, path.string().c_str(), 1,
        [file, &board]() -> testing::Test* { return new BoardTest(file, board); });
}

}  // namespace

}  // namespace sdk::test

/// Arguments: files of drawn boards, and Google Test's own. Exits with 2 when one of them
/// is malformed or is neither.
int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);  // takes its own arguments away
  std::vector<std::string> files;
  sdk::CommandLine line;
  line.add_names(files);
  if (!line.read(argc, argv)) {
    std::cerr << "usage: run_boards FILE... [--gtest_...]\n";
    return 2;
  }
  try {
    for (const std::string& file : files) sdk::test::register_cases(file);
  } catch (const sdk::test::Malformed& fault) {
    std::cerr << fault.what() << '\n';
    return 2;
  }
  return RUN_ALL_TESTS();
}
