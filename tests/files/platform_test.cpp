// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Processes, and the folders of the program and of the exchange.

#include "files/platform.hpp"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <thread>

#include "files/external_solver.hpp"
#include "tests/support/game.hpp"
#include "tests/support/machine.hpp"

namespace sdk::test {
namespace {

namespace fs = std::filesystem;

class Process : public testing::Test {
 protected:
  /// Waits for its end, and leaves the processor to it meanwhile.
  static void wait_for(std::uint32_t id) {
    while (ProcessusActif(id)) std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  static bool has_children() { return waitpid(-1, nullptr, WNOHANG) != -1 || errno != ECHILD; }

  Game game;
  FakeDesktop& desktop = game.desktop;
};

TEST_F(Process, NumberZeroIsNeverActive) {
  desktop.exit_codes[0] = 259;
  EXPECT_FALSE(ProcessusActif(0));
}

TEST_F(Process, IsActiveWhileItsExitCodeIs259) {
  desktop.exit_codes[7] = 259;
  EXPECT_TRUE(ProcessusActif(7));
  for (const std::uint32_t code : {0u, 1u, 3u, 258u, 260u, 0xFFFFFFFFu}) {
    desktop.exit_codes[7] = code;
    EXPECT_FALSE(ProcessusActif(7)) << code;
  }
}

TEST_F(Process, ThatNobodyKnowsIsNotActive) {
  EXPECT_FALSE(ProcessusActif(0x7FFFFFFF));
  EXPECT_FALSE(ProcessusActif(static_cast<std::uint32_t>(getppid())));
}

TEST_F(Process, IsActiveUntilItEnds) {
  const std::uint32_t id = platform::start_process("exec sleep 100");
  ASSERT_NE(id, 0u);
  EXPECT_TRUE(ProcessusActif(id));
  EXPECT_TRUE(ProcessusActif(id));
  kill(static_cast<pid_t>(id), SIGKILL);
  wait_for(id);
  EXPECT_FALSE(ProcessusActif(id));
  EXPECT_FALSE(has_children());
}

TEST(SignalName, IsTheSystemsForThoseThatEndTheGame) {
  EXPECT_EQ(platform::signal_name(SIGTERM), "SIGTERM");
  EXPECT_EQ(platform::signal_name(SIGHUP), "SIGHUP");
  EXPECT_EQ(platform::signal_name(SIGINT), "SIGINT");
  EXPECT_EQ(platform::signal_name(SIGQUIT), "signal 3");
}

TEST_F(Process, ThatHasEndedIsReportedOnceAndForgotten) {
  const std::uint32_t id = platform::start_process("exit 3");
  std::optional<std::uint32_t> code;
  while ((code = platform::collect_exit_code(id)) == 259) {
  }
  EXPECT_EQ(code, 3u);
  EXPECT_EQ(platform::collect_exit_code(id), std::nullopt);
  EXPECT_FALSE(has_children());
}

TEST_F(Process, EndedByASignalHasEnded) {
  const std::uint32_t id = platform::start_process("kill -TERM $$");
  std::optional<std::uint32_t> code;
  while ((code = platform::collect_exit_code(id)) == 259) {
  }
  EXPECT_EQ(code, 128u + SIGTERM);
}

/// Something to read on standard input.
class WaitingInput {
 public:
  WaitingInput() : before_(dup(STDIN_FILENO)) {
    int ends[2];
    if (pipe(ends) != 0 || write(ends[1], "line\n", 5) != 5) throw std::runtime_error("no pipe");
    dup2(ends[0], STDIN_FILENO);
    close(ends[0]);
    close(ends[1]);
  }
  ~WaitingInput() {
    dup2(before_, STDIN_FILENO);
    close(before_);
  }
  WaitingInput(const WaitingInput&) = delete;
  WaitingInput& operator=(const WaitingInput&) = delete;

 private:
  int before_;
};

TEST_F(Process, HasNothingToRead) {
  const WaitingInput input;
  const std::uint32_t id = platform::start_process("read line && exit 1; exit 0");
  std::optional<std::uint32_t> code;
  while ((code = platform::collect_exit_code(id)) == 259) {
  }
  EXPECT_EQ(code, 0u);
}

/// The temporary folder as the program has it.
class PlainDesktop : public FakeDesktop {
 public:
  std::string temporary_folder() override { return PlatformDesktop::temporary_folder(); }
};

TEST(TemporaryFolder, IsThatOfTheVariable) {
  const ScratchFolder folder;
  const Variable tmp("tmp", folder.path().string());
  PlainDesktop desktop;
  EXPECT_EQ(desktop.temporary_folder(), folder.path().string());
  const Variable changed("tmp", "another");
  EXPECT_EQ(desktop.temporary_folder(), "another");
}

TEST(TemporaryFolder, IsPrivateWithoutTheVariable) {
  for (const auto& value : {std::optional<std::string>(), std::optional<std::string>("")}) {
    const ScratchFolder system;
    const Variable place("TMPDIR", system.path().string());
    const Variable tmp("tmp", value);
    {
      PlainDesktop desktop;
      const std::string folder = desktop.temporary_folder();
      EXPECT_EQ(fs::path(folder).parent_path(), system.path());
      EXPECT_EQ(rights_of(folder), 0700u);
      EXPECT_EQ(std::string(std::getenv("tmp")), folder);
      EXPECT_EQ(desktop.temporary_folder(), folder);
      write_file(fs::path(folder) / "00000.000", "x");
    }
    EXPECT_EQ(system.names(), "");
  }
}

TEST(TemporaryFolder, OfThePlayersOwnIsLeftAtTheEnd) {
  const ScratchFolder folder;
  const Variable tmp("tmp", folder.path().string());
  { EXPECT_NE(PlainDesktop().temporary_folder(), ""); }
  EXPECT_TRUE(fs::exists(folder.path()));
}

TEST(TemporaryFolder, ThatIsPrivateIsFoundByTheSolver) {
  KeptFolder kept;
  const Variable tmp("tmp", std::nullopt);
  PlainDesktop desktop;
  fs::copy_file(STAND_INS "/keeps_input.sh", desktop.program_folder() / "zolv.exe");
  MainWindow w(desktop);
  w.start("");
  draw(w, puzzle);
  w.click(Control::Bouton_GO);
  EXPECT_EQ(joined(shown(w)), solution);
  EXPECT_EQ(bytes_of(fs::path(desktop.temporary_folder()) / "seen.000").size(), 162u);
}

TEST(TemporaryFolder, IsNotMadeWithoutASolver) {
  KeptFolder kept;
  const Variable tmp("tmp", std::nullopt);
  PlainDesktop desktop;
  MainWindow w(desktop);
  w.start("");
  draw(w, puzzle);
  w.click(Control::Bouton_GO);
  EXPECT_EQ(joined(shown(w)), solution);
  EXPECT_EQ(std::getenv("tmp"), nullptr);
}

TEST(TemporaryFolder, ThatCannotBeMadeEndsTheSolveSilently) {
  KeptFolder kept;
  const Variable tmp("tmp", std::nullopt);
  PlainDesktop desktop;
  fs::copy_file(STAND_INS "/digits.sh", desktop.program_folder() / "zolv.exe");
  MainWindow w(desktop);
  w.start("");
  draw(w, puzzle);
  const Variable place("TMPDIR", "/proc");
  w.click(Control::Bouton_GO);
  EXPECT_EQ(shown(w), puzzle);
  EXPECT_TRUE(desktop.boxes.empty());
}

TEST(ProgramFolder, IsThatOfTheRealExecutable) {
  EXPECT_EQ(platform::program_folder(), fs::canonical("/proc/self/exe").parent_path());
}

std::string output_of(const std::string& command) {
  FILE* pipe = popen(command.c_str(), "r");
  if (!pipe) return "cannot run " + command;
  std::string text;
  char buffer[4096];
  while (const auto size = std::fread(buffer, 1, sizeof buffer, pipe)) text.append(buffer, size);
  pclose(pipe);
  return text;
}

TEST(ProgramFolder, IsFoundThroughALinkToTheProgram) {
  const ScratchFolder program, elsewhere;
  const Variable tmp("tmp", elsewhere.path().string());
  fs::copy_file(SUDOKU_SCRIPT, program / "sudoku-script");
  fs::copy_file(STAND_INS "/digits.sh", program / "zolv.exe");
  fs::create_symlink(program / "sudoku-script", elsewhere / "game");
  const std::string output =
      output_of("cd " + elsewhere.path().string() +
                " && printf 'click Bouton_GO\nshow ChaineSolution\n' | ./game");
  EXPECT_NE(output.find(solution), std::string::npos) << output;
}

TEST(DataHome, IsThatOfTheVariable) {
  const Variable home("HOME", "/home/player"), data("XDG_DATA_HOME", "/some/where");
  EXPECT_EQ(platform::data_home(), "/some/where");
}

TEST(DataHome, IsInThePlayersFolderWithoutTheVariable) {
  const Variable home("HOME", "/home/player");
  for (const auto& value : {std::optional<std::string>(), std::optional<std::string>("")}) {
    const Variable data("XDG_DATA_HOME", value);
    EXPECT_EQ(platform::data_home(), "/home/player/.local/share");
  }
}

}  // namespace
}  // namespace sdk::test
