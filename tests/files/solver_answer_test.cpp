// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// What is read from a solver's answer.

#include <gtest/gtest.h>

#include "files/external_solver.hpp"
#include "tests/support/game.hpp"
#include "tests/support/machine.hpp"

namespace sdk::test {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

const std::string solution =
    "987654321135927468642138579426571983793482156518396742371865294269743815854219637";

class SolverAnswer : public testing::Test {
 protected:
  SolverAnswer() {
    game.draw(std::string(81, '.'));
    w.ChaineSolution = "before";
  }

  void read(std::string_view bytes) {
    write_file(output(), bytes);
    read_sudo();
  }
  std::string fault_of(std::string_view bytes) {
    try {
      read(bytes);
      return "";
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.object(), output().string());
      return error.what();
    }
  }
  fs::path output() { return fs::path(game.desktop.temporary_folder()) / "out.000"; }
  fs::path input() { return fs::path(game.desktop.temporary_folder()) / "00000.000"; }

  Game game;
  MainWindow& w = game.window;
};

TEST_F(SolverAnswer, MayHaveBlanksAnywhereAndAnyLineEnd) {
  for (const std::string& text :
       {solution, solution + "\n", solution + "\r\n", solution + "\r", "   " + solution + "  ",
        solution.substr(0, 40) + "      " + solution.substr(40) + "\r0\n0"}) {
    w.ChaineSolution = "before";
    read(text);
    EXPECT_EQ(w.ChaineSolution, solution);
    EXPECT_EQ(joined(digits(w.Grille)), solution);
  }
}

TEST_F(SolverAnswer, LeavesTheDisplayAndTheFilesAlone) {
  write_file(input(), "x");
  const std::string before = shown(w);
  read(solution);
  EXPECT_EQ(shown(w), before);
  EXPECT_TRUE(fs::exists(output()));
  EXPECT_TRUE(fs::exists(input()));
  EXPECT_TRUE(globals.GrilleOk);
  EXPECT_TRUE(game.repaints.empty());
}

TEST_F(SolverAnswer, WithAZeroAnywhereInItsFirstLineTellsThatThereIsNoSolution) {
  for (const std::string text : {"0", "no solution in 10 steps", " 0 \n", "x0",
                                 "\0"
                                 "0"}) {
    write_file(input(), "x");
    game.forget();
    globals.GrilleOk = true;
    read(text.empty() ? "\0"
                        "0"s
                      : text);
    EXPECT_EQ(game.desktop.boxes, std::vector{message(Message::impossible, Icon::critical)})
        << text;
    EXPECT_FALSE(globals.GrilleOk);
    EXPECT_EQ(w.ChaineSolution, "before");
    EXPECT_FALSE(fs::exists(output()));
    EXPECT_FALSE(fs::exists(input()));
    EXPECT_EQ(game.desktop.pointers, std::vector{Pointer::arrow});
  }
}

TEST_F(SolverAnswer, WithoutASolutionFailsWhenTheInputIsGone) {
  write_file(output(), "0\n");
  EXPECT_THROW(read_sudo(), RuntimeError);
  EXPECT_TRUE(game.desktop.boxes.empty());
}

TEST_F(SolverAnswer, ThatIsNoNumberFailsAtItsFirstFault) {
  struct {
    std::string text;
    size_t digits;
  } const cases[] = {
      {"", 0},
      {"\n" + solution, 0},
      {"\r" + solution, 0},
      {"x", 0},
      {"123\t456", 3},
      {solution.substr(0, 80), 80},
      {"12\xE9"
       "3",
       2},
      {"1\0"s + solution, 1},
      {"-" + solution, 0},
      {"     ", 0},
      {solution.substr(0, 79) + ".", 79},
  };
  for (const auto& [text, good] : cases) {
    globals.GrilleOk = false;
    w.ChaineSolution = "before";
    EXPECT_NE(fault_of(text), "") << text;
    EXPECT_EQ(bool(globals.GrilleOk), !text.empty());
    EXPECT_EQ(w.ChaineSolution, text.empty() ? "before" : text.substr(0, good));
  }
}

TEST_F(SolverAnswer, ThatIsMissingOrAFolderFails) {
  try {
    read_sudo();
    FAIL() << "no error";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(std::string(error.what()), output().string() + ": No such file or directory");
  }
  fs::create_directory(output());
  EXPECT_THROW(read_sudo(), RuntimeError);
}

}  // namespace
}  // namespace sdk::test
