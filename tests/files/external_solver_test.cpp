// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The solve button with a solver beside the program: small scripts that answer in every way.

#include "files/external_solver.hpp"

#include <gtest/gtest.h>

#include <algorithm>

#include "files/puzzle_file.hpp"
#include "tests/support/game.hpp"
#include "tests/support/machine.hpp"
#include "ui/state_check.hpp"

namespace sdk::test {
namespace {

namespace fs = std::filesystem;

/// Of an earlier puzzle.
const std::string old_solution(81, '5');
constexpr const char* empty_cells = "r2c2 r8c8 r9c1 r9c9";

class ExternalSolver : public testing::Test {
 protected:
  ExternalSolver() {
    game.draw(puzzle);
    w.ChaineSolution = old_solution;
    globals.GrilleOk = false;
  }

  void install(const std::string& stand_in) {
    fs::copy_file(STAND_INS "/" + stand_in + ".sh", desktop.program_folder() / "zolv.exe",
                  fs::copy_options::overwrite_existing);
  }
  void solve_with(const std::string& stand_in) {
    install(stand_in);
    w.click(Control::Bouton_GO);
  }

  fs::path tmp() { return desktop.temporary_folder(); }
  bool has_input() { return fs::exists(tmp() / "00000.000"); }
  bool has_output() { return fs::exists(tmp() / "out.000"); }

  KeptFolder kept;
  Game game;
  MainWindow& w = game.window;
  FakeDesktop& desktop = game.desktop;
  const Variable variable{"tmp", game.desktop.temporary_folder()};
};

class GoodAnswer : public ExternalSolver, public testing::WithParamInterface<const char*> {};

TEST_P(GoodAnswer, IsShownInGreen) {
  solve_with(GetParam());
  EXPECT_EQ(joined(shown(w)), solution);
  EXPECT_EQ(cells_with_text_colour(w.MSF, colour::green), empty_cells);
  EXPECT_EQ(w.ChaineSolution, solution);
  EXPECT_EQ(w.ChaineGrille, solution);
  EXPECT_EQ(joined(digits(w.Grille)), solution);
  EXPECT_TRUE(globals.GrilleOk);
  EXPECT_EQ(desktop.boxes, std::vector{message(Message::completed, Icon::exclamation)});
  EXPECT_EQ(desktop.pointers, (std::vector{Pointer::hourglass, Pointer::arrow}));
  EXPECT_EQ(desktop.steps, 0);  // the window does not answer meanwhile
  EXPECT_EQ(state_fault(w), "");
}

TEST_P(GoodAnswer, LeavesNoFileBehind) {
  solve_with(GetParam());
  EXPECT_FALSE(has_input());
  EXPECT_FALSE(has_output());
}

TEST_P(GoodAnswer, IsNotShownInASilentSolve) {
  globals.ResolutionSilencieuse = true;
  solve_with(GetParam());
  EXPECT_EQ(shown(w), puzzle);
  EXPECT_EQ(w.ChaineSolution, solution);
  EXPECT_TRUE(globals.ResolutionSilencieuse);
  EXPECT_TRUE(desktop.boxes.empty());
}

INSTANTIATE_TEST_SUITE_P(Solvers, GoodAnswer,
                         testing::Values("digits", "spaced_digits", "crlf", "no_line_end",
                                         "several_lines", "long_line", "crash_after_answer",
                                         "slow"),
                         [](const auto& test) { return std::string(test.param); });

class AnswerNoSolution : public ExternalSolver, public testing::WithParamInterface<const char*> {};

TEST_P(AnswerNoSolution, IsToldToThePlayer) {
  globals.GrilleOk = true;
  solve_with(GetParam());
  EXPECT_EQ(desktop.boxes, std::vector{message(Message::impossible, Icon::critical)});
  EXPECT_FALSE(globals.GrilleOk);
  EXPECT_EQ(w.ChaineSolution, old_solution);
  EXPECT_FALSE(has_input());
  EXPECT_FALSE(has_output());
}

TEST_P(AnswerNoSolution, StillShowsTheGridAsItWasRead) {
  w.show_count(5);
  solve_with(GetParam());
  EXPECT_EQ(shown(w), puzzle);
  EXPECT_EQ(cells_with_text_colour(w.MSF, colour::green), empty_cells);
  EXPECT_EQ(w.control(Control::Label).caption, " 77 indices");
  EXPECT_EQ(desktop.pointers, (std::vector{Pointer::hourglass, Pointer::arrow}));
  EXPECT_EQ(state_fault(w), "");
}

TEST_P(AnswerNoSolution, ShowsNothingInASilentSolve) {
  globals.ResolutionSilencieuse = true;
  solve_with(GetParam());
  EXPECT_EQ(cells_with_text_colour(w.MSF, colour::green), "");
  EXPECT_EQ(desktop.boxes, std::vector{message(Message::impossible, Icon::critical)});
}

INSTANTIATE_TEST_SUITE_P(Solvers, AnswerNoSolution, testing::Values("zero", "zero_within"),
                         [](const auto& test) { return std::string(test.param); });

struct Bad {
  const char* stand_in;
  bool judged;    ///< GrilleOk was set before the fault was found
  size_t digits;  ///< how many of its digits are in ChaineSolution then
  bool leaves_output;
};

std::ostream& operator<<(std::ostream& out, const Bad& bad) { return out << bad.stand_in; }

class BadAnswer : public ExternalSolver, public testing::WithParamInterface<Bad> {};

TEST_P(BadAnswer, EndsTheCommandWithoutAWord) {
  const Bad& bad = GetParam();
  solve_with(bad.stand_in);
  EXPECT_EQ(shown(w), puzzle);
  EXPECT_EQ(cells_with_text_colour(w.MSF, colour::green), "");
  EXPECT_TRUE(desktop.boxes.empty());
  EXPECT_TRUE(desktop.errors.empty());
  EXPECT_EQ(bool(globals.GrilleOk), bad.judged);
  EXPECT_EQ(w.ChaineSolution,
            bad.judged ? std::string(solution).substr(0, bad.digits) : old_solution);
}

TEST_P(BadAnswer, LeavesTheHourglassAndTheInputFile) {
  solve_with(GetParam().stand_in);
  EXPECT_EQ(desktop.pointers, std::vector{Pointer::hourglass});
  EXPECT_TRUE(has_input());
  EXPECT_EQ(has_output(), GetParam().leaves_output);
  EXPECT_TRUE(game.repaints.empty());
}

TEST_P(BadAnswer, DoesNotHarmTheNextSolve) {
  solve_with(GetParam().stand_in);
  game.forget();
  solve_with("digits");
  EXPECT_EQ(joined(shown(w)), solution);
  EXPECT_EQ(desktop.pointers.back(), Pointer::arrow);
  EXPECT_FALSE(has_input());
}

INSTANTIATE_TEST_SUITE_P(
    Solvers, BadAnswer,
    testing::Values(Bad{"letters", true, 80, true}, Bad{"short_line", true, 80, true},
                    Bad{"empty_line", true, 0, true}, Bad{"empty_output", false, 0, true},
                    Bad{"crash", false, 0, true}, Bad{"no_output_file", false, 0, false}),
    [](const auto& test) { return std::string(test.param.stand_in); });

TEST_F(ExternalSolver, ThatEndsInTheMiddleLeavesTheCellsReadSoFar) {
  game.draw("........." + joined(puzzle).substr(9));
  solve_with("short_line");
  EXPECT_EQ(digits(w.Grille).substr(0, 9), "987654321");
  EXPECT_EQ(w.GrilleInitiale(1, 1), 0);
  EXPECT_EQ(w.Grille(9, 9), 0);
}

std::string pairs(std::string_view cells) {
  std::string text;
  for (const char c : cells) (text += c) += ' ';
  return text;
}

TEST_F(ExternalSolver, GetsEightyOnePairsOnOneLineWithoutAnEnd) {
  solve_with("keeps_input");
  std::string cells = joined(puzzle);
  std::ranges::replace(cells, '.', '0');
  EXPECT_EQ(bytes_of(tmp() / "seen.000"), pairs(cells));
  EXPECT_EQ(bytes_of(tmp() / "seen.000").substr(18, 6), "1 0 5 ");
}

TEST_F(ExternalSolver, GetsZerosForAnEmptyGrid) {
  game.draw(std::string(81, '.'));
  solve_with("keeps_input");
  EXPECT_EQ(bytes_of(tmp() / "seen.000"), pairs(std::string(81, '0')));
  EXPECT_EQ(bytes_of(tmp() / "seen.000").size(), 162u);
}

TEST_F(ExternalSolver, GetsOtherTextsAsTheyAre) {
  game.draw("?#" + joined(puzzle).substr(2));
  w.MSF.set_text(8, 8, "12");
  sauve_sudo();
  std::string cells = "#" + joined(puzzle).substr(2, 78) + "12";
  std::ranges::replace(cells, '.', '0');
  EXPECT_EQ(w.ChaineGrille, cells);
  EXPECT_EQ(bytes_of(tmp() / "00000.000"), pairs(cells));
}

TEST_F(ExternalSolver, GetsAFileThatHoldsNothingElse) {
  write_file(tmp() / "00000.000", std::string(5000, 'x'));
  sauve_sudo();
  EXPECT_EQ(bytes_of(tmp() / "00000.000").size(), 162u);
}

TEST_F(ExternalSolver, IsNotStartedWhenItsInputCannotBeWritten) {
  install("digits");
  fs::remove(tmp());
  w.click(Control::Bouton_GO);
  EXPECT_EQ(shown(w), puzzle);
  EXPECT_TRUE(desktop.pointers.empty());
  EXPECT_TRUE(desktop.boxes.empty());
  EXPECT_THROW(sauve_sudo(), RuntimeError);
}

TEST_F(ExternalSolver, MakesTheProgramsFolderTheCurrentOne) {
  solve_with("digits");
  EXPECT_EQ(fs::current_path(), fs::canonical(desktop.program_folder()));
}

TEST_F(ExternalSolver, ThatIsMissingLeavesTheGridToTheSearch) {
  w.click(Control::Bouton_GO);
  EXPECT_EQ(joined(shown(w)), solution);
  EXPECT_GT(desktop.steps, 0);
  EXPECT_FALSE(has_input());
  EXPECT_FALSE(has_output());
  EXPECT_EQ(fs::current_path(), fs::canonical(desktop.program_folder()));
}

TEST_F(ExternalSolver, ThatIsAFolderIsMissing) {
  fs::create_directory(desktop.program_folder() / "zolv.exe");
  w.click(Control::Bouton_GO);
  EXPECT_EQ(joined(shown(w)), solution);
  EXPECT_GT(desktop.steps, 0);
}

TEST_F(ExternalSolver, MayBeALink) {
  fs::create_symlink(STAND_INS "/digits.sh", desktop.program_folder() / "zolv.exe");
  w.click(Control::Bouton_GO);
  EXPECT_EQ(joined(shown(w)), solution);
  EXPECT_EQ(desktop.steps, 0);
}

TEST_F(ExternalSolver, ThatCannotBeRunLeavesNoOldAnswerToBeRead) {
  install("digits");
  fs::permissions(desktop.program_folder() / "zolv.exe", fs::perms(0644));
  write_file(tmp() / "out.000", solution);
  w.click(Control::Bouton_GO);
  EXPECT_EQ(shown(w), puzzle);
  EXPECT_EQ(w.ChaineSolution, old_solution);
  EXPECT_EQ(desktop.pointers, std::vector{Pointer::hourglass});
}

TEST_F(ExternalSolver, SolvesAnOpenedPuzzle) {
  install("digits");
  write_file(tmp() / "a.sdk", puzzle);
  desktop.chosen = {(tmp() / "a.sdk").string()};
  w.click(Control::Command6);
  EXPECT_EQ(shown(w), puzzle);
  EXPECT_EQ(w.ChaineSolution, solution);
  EXPECT_EQ(desktop.pointers.back(), Pointer::arrow);
  EXPECT_EQ(desktop.steps, 0);
}

TEST_F(ExternalSolver, ThatFindsNothingKeepsTheOldSolutionOfAnOpenedPuzzle) {
  install("zero");
  write_file(tmp() / "a.sdk", puzzle);
  desktop.chosen = {(tmp() / "a.sdk").string()};
  w.click(Control::Command6);
  EXPECT_EQ(w.ChaineSolution, old_solution);
  EXPECT_EQ(desktop.boxes, std::vector{message(Message::impossible, Icon::critical)});
  EXPECT_EQ(state_fault(w), "");
}

/// Both folders have a name that a command interpreter could misread.
class OddDesktop : public FakeDesktop {
 public:
  OddDesktop() {
    fs::create_directory(program_folder());
    fs::create_directory(temporary_folder());
  }
  fs::path program_folder() override { return FakeDesktop::program_folder() / odd; }
  std::string temporary_folder() override { return FakeDesktop::temporary_folder() + "/" + odd; }

 private:
  static constexpr const char* odd = "it's a \"folder\"; $HOME & (more) > `echo` \\ é*";
};

TEST(ExternalSolverPaths, MayHoldBlanksQuotesAndSigns) {
  KeptFolder kept;
  OddDesktop desktop;
  const Variable variable("tmp", desktop.temporary_folder());
  fs::copy_file(STAND_INS "/keeps_input.sh", desktop.program_folder() / "zolv.exe");
  MainWindow w(desktop);
  w.start("");
  draw(w, puzzle);
  w.click(Control::Bouton_GO);
  EXPECT_EQ(joined(shown(w)), solution);
  EXPECT_EQ(bytes_of(fs::path(desktop.temporary_folder()) / "seen.000").size(), 162u);
  EXPECT_FALSE(fs::exists(fs::path(desktop.temporary_folder()) / "out.000"));
}

}  // namespace
}  // namespace sdk::test
