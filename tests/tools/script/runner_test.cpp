// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// What the transcript runner accepts, refuses and rewrites.

#include <gtest/gtest.h>

#include "tests/support/files.hpp"
#include "tests/support/tool.hpp"

namespace sdk::test {
namespace {

namespace fs = std::filesystem;

class TranscriptRunner : public testing::Test {
 protected:
  TranscriptRunner() { fs::create_directory(folder_ / "scratch"); }

  ToolRun play(const std::string& transcript, const std::string& options = "") {
    write_file(file(), transcript);
    return run_tool("TMPDIR=" + (folder_ / "scratch").string() + " " RUN_TRANSCRIPT " " + options +
                    file().string());
  }
  fs::path file() const { return folder_ / "case.txt"; }
  std::string transcript() const { return bytes_of(file()); }
  bool left_nothing_behind() const { return fs::is_empty(folder_ / "scratch"); }

 private:
  ScratchFolder folder_;
};

TEST_F(TranscriptRunner, AcceptsATranscriptThatSaysWhatIsPrinted) {
  const ToolRun run = play("# A comment.\n\n> seed 1\n> show current\n  r9c9\n");
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.output, "");
  EXPECT_TRUE(left_nothing_behind());
}

TEST_F(TranscriptRunner, RefusesAnotherOutputAndShowsTheDifference) {
  const ToolRun run = play("> seed 1\n> show current\n  r1c1\n> show Langue\n  \"Fr\"\n");
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.output, "--- " + file().string() +
                            " expects\n+++ the program prints\n@@ -1,5 +1,5 @@\n > seed 1\n"
                            " > show current\n-  r1c1\n+  r9c9\n > show Langue\n   \"Fr\"\n");
  EXPECT_TRUE(left_nothing_behind());
}

TEST_F(TranscriptRunner, RefusesATranscriptThatLacksALineOfOutput) {
  const ToolRun run = play("> show current\n");
  EXPECT_EQ(run.status, 1);
  EXPECT_NE(run.output.find("+  r9c9\n"), std::string::npos) << run.output;
}

TEST_F(TranscriptRunner, RefusesATranscriptThatExpectsMoreThanIsPrinted) {
  const ToolRun run = play("> show current\n  r9c9\n  r9c9\n");
  EXPECT_EQ(run.status, 1);
  EXPECT_NE(run.output.find("-  r9c9\n"), std::string::npos) << run.output;
}

TEST_F(TranscriptRunner, ShowsOnlyTheSurroundingsOfADifference) {
  std::string text;
  for (int i = 0; i < 20; ++i) text += "> show current\n  r9c9\n";
  const ToolRun run = play(text + "> show focus\n  MSR\n");
  EXPECT_NE(run.output.find(
                "@@ -39,4 +39,4 @@\n > show current\n   r9c9\n > show focus\n-  MSR\n+  MSF\n"),
            std::string::npos)
      << run.output;
  EXPECT_EQ(run.output.find("@@ -1,"), std::string::npos);
}

TEST_F(TranscriptRunner, RefusesMalformedTranscripts) {
  struct {
    const char *transcript, *fault;
  } const cases[] = {
      {"", "there is no command"},
      {"# nothing but a comment\n", "there is no command"},
      {"  r9c9\n> show current\n", "line 1: output before the first command"},
      {"> show current\n  r9c9\nr9c9\n", "line 3: begins neither"},
      {"> show current\n< r9c9\n", "line 2: begins neither"},
      {">show current\n", "line 1: begins neither"},
      {"> show current\n r9c9\n", "line 2: begins neither"},
  };
  for (const auto& [text, fault] : cases) {
    const ToolRun run = play(text);
    EXPECT_EQ(run.status, 2) << text;
    EXPECT_NE(run.output.find(fault), std::string::npos) << run.output;
  }
}

TEST_F(TranscriptRunner, PutsFilesAndSolversInItsFolders) {
  const std::string text =
      "= file <work>/a b.sdk \"1 \\r\\n\\t\\\"\\\\\"\n> show file <work>/a b.sdk\n"
      "  \"1 \\r\\n\\t\\\"\\\\\"\n= solver zero\n= solver empty_output\n"
      "> show file <program>/zolv.exe\n";
  const ToolRun run = play(text, "--rewrite ");
  EXPECT_EQ(run.status, 0) << run.output;
  EXPECT_TRUE(transcript().starts_with(text + "  \"#!/bin/sh\\n")) << transcript();
  EXPECT_EQ(play(transcript()).status, 0);
}

TEST_F(TranscriptRunner, RefusesMalformedPreparations) {
  for (const char* line :
       {"= ", "= file", "= file <work>/a", "= file <work>/a \"", "= file <work>/a \"x",
        "= file <work>/no/a \"x\"", "= solver", "= solver nobody", "= remove <work>/a"}) {
    const ToolRun run = play(std::string(line) + "\n> show focus\n  MSF\n");
    EXPECT_EQ(run.status, 2) << line << run.output;
  }
}

TEST_F(TranscriptRunner, RefusesAFileThatIsNotThere) {
  const ToolRun run = run_tool(RUN_TRANSCRIPT " /no/such/transcript.txt");
  EXPECT_EQ(run.status, 2);
  EXPECT_EQ(run.output, "/no/such/transcript.txt: cannot be read\n");
}

TEST_F(TranscriptRunner, RewritesTheExpectedOutputAndNothingElse) {
  const ToolRun run = play(
      "# Kept.\n\n> show current\n  r1c1\n  r1c2\n\n# Kept too.\n> show focus\n", "--rewrite ");
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(transcript(),
            "# Kept.\n\n> show current\n  r9c9\n\n# Kept too.\n> show focus\n  MSF\n");
  EXPECT_EQ(play(transcript()).status, 0);
}

TEST_F(TranscriptRunner, LeavesAMalformedTranscriptAsItIs) {
  EXPECT_EQ(play("?? show current\n", "--rewrite ").status, 2);
  EXPECT_EQ(transcript(), "?? show current\n");
}

TEST_F(TranscriptRunner, NamesItsFoldersByPlaceholdersInCommandsAndInOutput) {
  const ToolRun run = play(
      "> answer file <work>/a b.sdk\n> click sauve\n"
      "  dialog save \"Sudoku files (.sdk)|*.sdk|\" -> \"<work>/a b.sdk\"\n"
      "> show file <tmp>/none\n  error: cannot read <tmp>/none\n"
      "> show file <program>/none\n  error: cannot read <program>/none\n"
      "> show file <data>/none\n  error: cannot read <data>/none\n"
      "> show file a\n  error: cannot read a\n");
  EXPECT_EQ(run.status, 0) << run.output;
}

TEST_F(TranscriptRunner, ShowsStandardErrorAndGivesEveryRunFreshFolders) {
  const std::string text =
      "> printer off\n> click Command4\n"
      "  box critical \"<title>\" \"SuDoKu doit s'arrêter (printer: no default printer). La "
      "grille a été sauvée dans <data>/SuDoKu-1.sdk\" ok -> ok\n  ended 1\n"
      "  (standard error) SuDoKu doit s'arrêter (printer: no default printer). La grille a été "
      "sauvée dans <data>/SuDoKu-1.sdk\n";
  EXPECT_EQ(play(text).output, "");
  EXPECT_EQ(play(text).output, "");
  EXPECT_TRUE(left_nothing_behind());
}

}  // namespace
}  // namespace sdk::test
