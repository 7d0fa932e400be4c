// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// What is read from a puzzle file, whatever is in it.

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "files/puzzle_file.hpp"
#include "tests/support/game.hpp"
#include "tests/support/machine.hpp"

namespace sdk::test {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

/// 81 cells, "." an empty one.
const std::string cells =
    "98765432.1.5927468642138579426571983793482156518396742371865294269743815.5421963.";

std::string grid_of(std::string text) {
  std::ranges::replace(text, '.', ' ');
  return text;
}

std::string lines_of(const std::string& text, const std::string& line_end) {
  std::string lines;
  for (std::size_t r = 0; r < 9; ++r) lines += text.substr(r * 9, 9) + line_end;
  return lines;
}

std::string spaced(const std::string& text) {
  std::string result;
  for (const char c : text) (result += ' ') += c;
  return result;
}

class Reading : public testing::Test {
 protected:
  /// ChaineGrille after opening a file of these bytes.
  std::string read(std::string_view bytes) {
    write_file(file, bytes);
    game.forget();
    ouvrir(file.string());
    return w.ChaineGrille;
  }
  std::string count() const { return game.window.control(Control::Label).caption; }

  std::string fault_of(const std::string& name) {
    try {
      ouvrir(name);
      return "";
    } catch (const RuntimeError& error) {
      return error.what();
    }
  }

  ScratchFolder folder;
  const fs::path file = folder / "a.sdk";
  Game game;
  MainWindow& w = game.window;
};

TEST_F(Reading, TakesTheFormThatIsWritten) {
  std::string text;
  for (std::size_t r = 0; r < 9; ++r) text += spaced(cells.substr(r * 9, 9)) + "\r\n";
  EXPECT_EQ(read(text), grid_of(cells));
  EXPECT_EQ(count(), " 77 indices");
}

TEST_F(Reading, TakesOneLineOf81Characters) {
  EXPECT_EQ(read(cells), grid_of(cells));
  EXPECT_EQ(read(cells + "\r\n"), grid_of(cells));
  EXPECT_EQ(read(spaced(cells)), grid_of(cells));
  EXPECT_EQ(count(), " 77 indices");
}

TEST_F(Reading, TakesEveryKindOfLineEnd) {
  for (const char* line_end : {"\r\n", "\n", "\r", "\n\n\r", " \r\n \r\n"})
    EXPECT_EQ(read(lines_of(cells, line_end)), grid_of(cells));
}

TEST_F(Reading, TakesLinesOfAnyLength) {
  EXPECT_EQ(read(cells.substr(0, 1) + "\n" + cells.substr(1, 50) + "\n\n" + cells.substr(51)),
            grid_of(cells));
}

TEST_F(Reading, LeavesTheCellsAsTheyAreOnScreen) {
  game.draw(complete_grid);
  const std::string before = shown(w);
  read(cells);
  EXPECT_EQ(shown(w), before);
}

TEST_F(Reading, ShowsTheName) {
  read(cells);
  EXPECT_EQ(w.title(), file.string());
}

TEST_F(Reading, TakesQuotesOutOfTheName) {
  write_file(file, cells);
  ouvrir("\"" + file.string() + "\"");
  EXPECT_EQ(w.title(), file.string());
  std::string name = file.string();
  name.insert(name.size() - 2, "\"\"");
  ouvrir(name);
  EXPECT_EQ(w.ChaineGrille, grid_of(cells));
}

TEST_F(Reading, TakesANameRelativeToTheCurrentFolder) {
  KeptFolder kept;
  fs::current_path(folder.path());
  write_file(folder / "b c's.sdk", cells);
  ouvrir("b c's.sdk");
  EXPECT_EQ(w.title(), "b c's.sdk");
  EXPECT_EQ(w.ChaineGrille, grid_of(cells));
}

TEST_F(Reading, KeepsAZeroAndCountsItAsAGiven) {
  EXPECT_EQ(read("0" + cells.substr(1)), "0" + grid_of(cells.substr(1)));
  EXPECT_EQ(count(), " 77 indices");
  EXPECT_EQ(read(std::string(81, '0')), std::string(81, '0'));
  EXPECT_EQ(count(), " 81 indices");
}

TEST_F(Reading, KeepsEveryOtherByteAndCountsItAsAGiven) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  std::string kept = grid_of(all);
  std::erase_if(kept, [](char c) { return c == '\r' || c == '\n'; });
  kept.erase(kept.find(' '), 1);
  EXPECT_EQ(read(all), kept);
  EXPECT_EQ(kept.size(), 253u);
  EXPECT_EQ(count(), " 80 indices");  // one of the first 81 was a "."
}

TEST_F(Reading, KeepsTabsAndTheEndSignsOfOldSystems) {
  EXPECT_EQ(read("\t1\0\x1A"
                 "2."s),
            "\t1\0\x1A"
            "2 "s);
  EXPECT_EQ(count(), " 5 indices");
}

TEST_F(Reading, CountsOnlyTheFirst81Cells) {
  EXPECT_EQ(read(std::string(81, '.') + "123"), std::string(81, ' ') + "123");
  EXPECT_EQ(count(), " 0 indices");
}

TEST_F(Reading, CountsTheCellsThatAShortFileLacksAsEmpty) {
  EXPECT_EQ(read("12.\r\n3"), "12 3");
  EXPECT_EQ(count(), " 3 indices");
}

TEST_F(Reading, OfAFileWithNothingButALineEndGivesNoCell) {
  for (const char* text : {"\n", "\r", "\r\n", " ", "  \n \n"}) {
    EXPECT_EQ(read(text), "");
    EXPECT_EQ(count(), " 0 indices");
  }
}

TEST_F(Reading, OfAnEmptyFileFails) {
  write_file(file, "");
  w.ChaineGrille = "before";
  EXPECT_EQ(fault_of(file.string()), file.string() + ": the file is empty");
  EXPECT_EQ(w.title(), file.string());
}

TEST_F(Reading, OfAMissingFileOrAFolderFails) {
  const std::string missing = (folder / "missing.sdk").string();
  EXPECT_EQ(fault_of(missing), missing + ": No such file or directory");
  EXPECT_EQ(w.title(), missing);
  EXPECT_EQ(fault_of(folder.path().string()), folder.path().string() + ": Is a directory");
  EXPECT_EQ(fault_of("\"\""), ": No such file or directory");
}

TEST_F(Reading, OfAFileThatThePlayerMayNotReadFails) {
  write_file(file, cells);
  fs::permissions(file, fs::perms(0));
  const PlainUser user;
  EXPECT_EQ(fault_of(file.string()), file.string() + ": Permission denied");
}

TEST_F(Reading, OfAnEndlessFileFails) {
  EXPECT_EQ(fault_of("/dev/zero"), "/dev/zero: File too large");
}

TEST_F(Reading, OfRandomBytesKeepsAllButBlanksAndLineEnds) {
  std::mt19937 random(4);
  for (int i = 0; i < 300; ++i) {
    std::string bytes(1 + random() % 300, '\0');
    std::ranges::generate(bytes, [&] {
      return random() % 2 ? " .0123456789\r\n\t"[random() % 15] : static_cast<char>(random());
    });
    std::string expected;
    for (const char c : bytes)
      if (c != ' ' && c != '\r' && c != '\n') expected += c == '.' ? ' ' : c;
    const auto end = expected.begin() + std::min<std::ptrdiff_t>(81, std::ssize(expected));
    ASSERT_EQ(read(bytes), expected) << i;
    ASSERT_EQ(count(), " " +
                           std::to_string(81 - std::count(expected.begin(), end, ' ') -
                                          (81 - (end - expected.begin()))) +
                           " indices");
  }
}

}  // namespace
}  // namespace sdk::test
