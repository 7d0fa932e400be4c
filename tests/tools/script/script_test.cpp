// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The text front end by itself: its commands, its formats and its exit statuses.

#include "tools/script/script.hpp"

#include <gtest/gtest.h>

#include <set>
#include <sstream>

#include "tests/logic/drawn_cell.hpp"
#include "tests/support/tool.hpp"
#include "tools/script/commands.hpp"
#include "tools/script/help.hpp"
#include "tools/script/keyboard.hpp"
#include "tools/script/show.hpp"
#include "tools/script/text_format.hpp"
#include "ui/version.hpp"

namespace sdk::test {
namespace {

/// A script in this process.
class ScriptRun {
 public:
  /// What the lines print.
  std::string play(const std::string& lines) {
    out_.str("");
    std::istringstream stream(lines);
    for (std::string line; std::getline(stream, line);) script.run(line);
    return out_.str();
  }

 private:
  std::ostringstream out_, errors_;

 public:
  Script script{out_, errors_};
};

/// A start on an empty grid whose cells all take digits.
const char* const empty_grid = "seed 1\ncheck Check3 off\nclick Command2\n";

TEST(Script, HelpTellsEveryCommandAndEverythingThatCanBeShown) {
  const std::string help = help_text();
  for (const char* name : {"seed", "printer", "year", "program", "tmp", "click", "check", "level",
                           "select", "key", "answer", "at", "step", "close", "show"}) {
    EXPECT_NE(command_named(name), nullptr) << name;
    EXPECT_NE(help.find("\n  " + std::string(name) + ' '), help.npos) << name;
  }
  for (const Topic& topic : topics())
    EXPECT_NE(help.find("\n  " + std::string(topic.name)), help.npos) << topic.name;
}

TEST(Script, EveryCommandOfTheHelpExists) {
  std::istringstream help(run_tool(SUDOKU_SCRIPT " --help").output);
  std::string line;
  while (std::getline(help, line) && line != "Commands") continue;
  int commands_told = 0;
  while (std::getline(help, line) && !line.empty()) {
    if (line[2] == ' ') continue;  // goes on with the meaning
    ++commands_told;
    const std::string name = line.substr(2, line.find(' ', 2) - 2);
    if (name == "export") continue;  // would leave a file behind
    const std::string answer = ScriptRun().play(name);
    EXPECT_EQ(answer.find("unknown"), answer.npos) << name << ": " << answer;
  }
  EXPECT_EQ(commands_told, 20);
}

TEST(Script, EverythingThatTheHelpNamesCanBeShown) {
  ScriptRun run;
  for (const Topic& topic : topics()) {
    std::string command = "show " + std::string(topic.name);
    if (topic.arguments == "NAME") command += " Command1";
    if (topic.arguments == "I") command += " 0";
    if (topic.arguments == "PATH") command += " /proc/version";
    const std::string printed = run.play(command);
    EXPECT_EQ(printed.find("error"), printed.npos) << command << ": " << printed;
    EXPECT_TRUE(printed.ends_with('\n')) << command;
  }
}

TEST(Script, TheSettingsAndCommentsDoNotStartTheProgram) {
  ScriptRun run;
  EXPECT_EQ(run.play("# nothing\n\n   \nseed 1\nprinter on\nyear 2026\nprogram /\ntmp /tmp\n"), "");
  EXPECT_FALSE(run.script.running());
  run.play("unheard-of");
  EXPECT_TRUE(run.script.running());
}

TEST(Script, ASharpStartsACommentButNotInsideAWord) {
  EXPECT_EQ(ScriptRun().play("show focus # where\n  # only a comment\nshow file a#b\n"),
            "MSF\nerror: cannot read a#b\n");
}

TEST(Script, AFaultIsPrintedAndTheRunGoesOn) {
  const ToolRun run = run_tool("printf 'bad\\nshow focus\\n' | " SUDOKU_SCRIPT);
  EXPECT_EQ(run.output, "error: unknown command: bad\nMSF\n");
  EXPECT_EQ(run.status, 2);
}

TEST(Script, TheStatusIs0WithoutAFaultAnd2ForAnOptionThatDoesNotExist) {
  EXPECT_EQ(run_tool("printf 'show focus\\n' | " SUDOKU_SCRIPT).status, 0);
  EXPECT_EQ(run_tool(SUDOKU_SCRIPT " --help").status, 0);
  EXPECT_EQ(run_tool(SUDOKU_SCRIPT " --walk").status, 2);
}

/// What a command that is not right is told, after "error: ".
constexpr std::pair<const char*, const char*> malformed[] = {
    {"seed", "N is missing"},
    {"seed -1", "N is not a number from 0 to 4294967295: -1"},
    {"seed 4294967296", "N is not a number from 0 to 4294967295: 4294967296"},
    {"seed 1 2", "too many arguments: 2"},
    {"seed x", "N is not a number from 0 to 4294967295: x"},
    {"printer", "on or off is missing"},
    {"printer maybe", "not on or off: maybe"},
    {"year", "N is missing"},
    {"year x", "N is not a number from 0 to 9999: x"},
    {"program", "DIR is missing"},
    {"tmp", "DIR is missing"},
    {"click", "NAME is missing"},
    {"click Check1", "no button: Check1"},
    {"click MSF", "no button: MSF"},
    {"click command1", "no control of that name: command1"},
    {"check", "NAME is missing"},
    {"check Check1", "on or off is missing"},
    {"check Check1 yes", "not on or off: yes"},
    {"check Command1 on", "no check box: Command1"},
    {"level", "N is missing"},
    {"level 5", "N is not a number from 0 to 4: 5"},
    {"level -1", "N is not a number from 0 to 4: -1"},
    {"level Moyen", "N is not a number from 0 to 4: Moyen"},
    {"level 1 2", "too many arguments: 2"},
    {"select", "R is missing"},
    {"select 1", "C is missing"},
    {"select 0 1", "R is not a number from 1 to 9: 0"},
    {"select 1 10", "C is not a number from 1 to 9: 10"},
    {"select 1 1 2", "C2 is missing"},
    {"select 1 1 2 3 4", "too many arguments: 4"},
    {"key", "K is missing"},
    {"key A", "no such key: A"},
    {"key kp", "no such key: kp"},
    {"key kpx", "no such key: kpx"},
    {"key kp10", "no such key: kp10"},
    {"key 10", "no such key: 10"},
    {"key Tab", "no such key: Tab"},
    {"key 1 2", "too many arguments: 2"},
    {"answer", "yes or no is missing"},
    {"answer maybe", "not yes or no: maybe"},
    {"answer file", "PATH is missing"},
    {"answer yes 0", "N is not a number from 1 to 999: 0"},
    {"answer yes 1000", "N is not a number from 1 to 999: 1000"},
    {"answer no x", "N is not a number from 1 to 999: x"},
    {"answer yes 1 2", "too many arguments: 2"},
    {"at", "N is missing"},
    {"at 1", "COMMAND is missing"},
    {"at 0 key 1", "N is not a number from 1 to 2147483647: 0"},
    {"at x key 1", "N is not a number from 1 to 2147483647: x"},
    {"at 1 unheard", "unknown command: unheard"},
    {"at 1 key Tab", "no such key: Tab"},
    {"at 1 start", "a search cannot start the program"},
    {"at question", "COMMAND is missing"},
    {"at question unheard", "unknown command: unheard"},
    {"at question key 1", "not possible while a question is open: key"},
    {"at question at 1 show focus", "not possible while a question is open: at"},
    {"at question step", "N is missing"},
    {"step", "N is missing"},
    {"step 0", "N is not a number from 1 to 2147483647: 0"},
    {"step 1", "no step 1: the explanation has 0"},
    {"step x", "N is not a number from 1 to 2147483647: x"},
    {"step none 1", "too many arguments: 1"},
    {"show step 1", "too many arguments: 1"},
    {"show explanation 1", "too many arguments: 1"},
    {"close", "window, taskmanager or session is missing"},
    {"close door", "not window, taskmanager or session: door"},
    {"show", "WHAT is missing"},
    {"show nothing", "nothing of that name to show: nothing"},
    {"show MSF 1", "C is missing"},
    {"show MSF 1 1 1", "too many arguments: 1"},
    {"show MSF front", "R is not a number from 1 to 9: front"},
    {"show tooltip", "NAME is missing"},
    {"show tooltip nobody", "no control of that name: nobody"},
    {"show message", "I is missing"},
    {"show message 35", "I is not a number from 0 to 34: 35"},
    {"show current 1", "too many arguments: 1"},
};

TEST(Script, MalformedCommandsAreFaultsThatAreNamed) {
  for (const auto& [line, fault] : malformed) {
    ScriptRun run;
    EXPECT_EQ(run.play(line), std::string("error: ") + fault + "\n") << line;
    EXPECT_EQ(run.script.exit_status(), 2) << line;
  }
}

TEST(Script, AfterTheEndEveryCommandButCommentsIsAFault) {
  ScriptRun run;
  EXPECT_EQ(run.play("close session\n# comment\n\nshow focus\nseed 1\n"),
            "ended 0\nerror: the program has ended\nerror: the program has ended\n");
  EXPECT_FALSE(run.script.running());
}

TEST(Script, WithoutASeedTwoQuickPuzzlesDiffer) {
  ScriptRun run;
  std::set<std::string> puzzles;
  for (int i = 0; i < 20; ++i) puzzles.insert(run.play("click Command1\nshow ChaineSolution"));
  EXPECT_EQ(puzzles.size(), 20u);
}

TEST(Script, AnEventHappensAtItsStepOfTheNextSearch) {
  ScriptRun run;
  run.play(empty_grid);
  EXPECT_EQ(run.play("at 1 show NumCase\nat 2 show NumCase\nat 4 show NumCase\n"
                     "at 4 key Escape\nclick Bouton_GO"),
            std::string("pointer hourglass\n1\n2\n3\nbox critical \"") + program_title +
                "\" \"Résolution interrompu!\" "
                "ok -> ok\npointer arrow\n");
}

TEST(Script, EventsOfOneStepHappenInTheOrderInWhichTheyWereQueued) {
  ScriptRun run;
  run.play(empty_grid);
  const std::string printed =
      run.play("at 3 show Colonne\nat 3 key Escape\nat 3 show ArretDemande\nclick Bouton_GO");
  EXPECT_NE(printed.find("2\n-1\n"), printed.npos) << printed;
}

TEST(Script, AnEventThatItsSearchDidNotReachIsDropped) {
  ScriptRun run;
  run.play(empty_grid);
  run.play("at 100 show focus\nat 5 key Escape\nclick Bouton_GO");
  const std::string printed = run.play("at 200 key Escape\nclick Bouton_GO");
  EXPECT_EQ(printed.find("MSF"), printed.npos) << printed;
}

TEST(Script, EventsWaitForASearchWhateverIsDoneBefore) {
  ScriptRun run;
  run.play(empty_grid);
  EXPECT_EQ(run.play("at 5 key Escape\nselect 1 1\nkey Right\n"), "");
  EXPECT_NE(run.play("click Bouton_GO").find("interrompu"), std::string::npos);
}

TEST(Script, ANestedSearchCountsItsOwnSteps) {
  ScriptRun run;
  run.play(empty_grid);
  const std::string printed = run.play(
      "at 10 at 3 show NumCase\nat 10 at 3 key Escape\nat 10 click Bouton_GO\n"
      "at 11 show focus\nclick Bouton_GO");
  EXPECT_NE(printed.find("pointer hourglass\n2\nbox critical"), printed.npos) << printed;
  EXPECT_EQ(printed.find("MSF"), printed.npos) << "the outer search is stopped as well";
}

TEST(Script, AStepGoesOnAfterTheSearchThatItStarted) {
  ScriptRun run;
  run.play(empty_grid);
  const std::string printed =
      run.play("at 2 click Bouton_GO\nat 2 show NumCase\nat 3 show focus\nclick Bouton_GO");
  EXPECT_NE(printed.find("terminée!!\" ok -> ok\n82\nMSF\nbox"), printed.npos) << printed;
}

TEST(Script, ALookHappensAtTheNextQuestionOnlyInTheOrderInWhichItWasQueued) {
  ScriptRun run;
  run.play("seed 1\nat question show focus\nat question show Langue");
  EXPECT_EQ(run.play("click Command2\nclick Command5\nabout key 1").find("MSF"), std::string::npos)
      << "no box of these is a question";
  EXPECT_TRUE(run.play("close window").starts_with("MSF\n\"Fr\"\nbox question"));
  EXPECT_TRUE(run.play("close window").starts_with("box question"));
}

TEST(Script, AnAnswerCanBeQueuedForSeveralQuestions) {
  ScriptRun run;
  run.play("seed 1\nanswer no 2");
  for (int i = 0; i < 2; ++i) EXPECT_TRUE(run.play("close window").ends_with("-> no\n"));
  run.play("answer no 2\nanswer yes\nclose window\nclose window");
  EXPECT_TRUE(run.script.running());
  EXPECT_TRUE(run.play("close window").ends_with("-> yes\nended 0\n"));
}

TEST(Script, ALookCanBeQueuedDuringASearch) {
  ScriptRun run;
  run.play("seed 1");
  const std::string printed =
      run.play("at 1 at question show NumCase\nat 2 close window\nclick Bouton_GO");
  EXPECT_NE(printed.find("\n1\nbox question"), printed.npos) << printed;
}

TEST(Script, AChosenStepIsShownAsADrawnBoard) {
  ScriptRun run;
  run.play("seed 4\nlevel 3\nclick Command1");
  run.play("answer yes 6\nclick Command8\nstep 3");
  std::istringstream words(run.play("show step"));
  const StepPicture picture = run.script.window().explanation().picture().value();
  int cell = 0;
  for (std::string word; words >> word;) {
    const DrawnCell drawn = parse_cell(word);
    const PictureCell& shown = picture.cells[++cell];
    EXPECT_EQ(drawn.digits, shown.candidates) << word;
    EXPECT_EQ(drawn.removed, shown.removed) << word;
    EXPECT_EQ(drawn.value, shown.value) << word;
    EXPECT_EQ(drawn.prefix.value_or(0), static_cast<int>(shown.mark)) << word;
  }
  EXPECT_EQ(cell, 81);
}

TEST(Script, AStandingEventHappensInEverySearchLastOfItsStep) {
  ScriptRun run;
  run.play(empty_grid);
  run.script.schedule().add_to_every_search(
      3, [&run] { run.script.window().preview_key(key::escape); });
  for (int i = 0; i < 2; ++i)
    EXPECT_NE(run.play("at 3 show NumCase\nclick Bouton_GO").find("2\nbox critical"),
              std::string::npos);
}

TEST(Script, TextsAreQuotedAndEscaped) {
  EXPECT_EQ(in_quotes("a\tb\r\nc\"d\\é"), "\"a\\tb\\r\\nc\\\"d\\\\é\"");
  EXPECT_EQ(in_quotes(""), "\"\"");
}

TEST(Script, TextsOfTheCodePageArePrintedInUtf8) { EXPECT_EQ(from_code_page("a\xE9\xFF"), "aéÿ"); }

TEST(Script, ColoursArePrintedRedFirst) {
  EXPECT_EQ(colour_text(colour::red), "FF0000");
  EXPECT_EQ(colour_text(colour::level[2]), "FFE0C0");
}

TEST(Script, CoordinatesArePrintedWithoutTrailingZeros) {
  EXPECT_EQ(decimal(935.5f), "935.5");
  EXPECT_EQ(decimal(2340), "2340");
  EXPECT_EQ(decimal(-10.25f), "-10.25");
  EXPECT_EQ(decimal(0), "0");
  EXPECT_EQ(decimal(16777216), "16777216");
}

TEST(Script, EveryKeyHasTheCodeOfTheWindow) {
  struct {
    const char* name;
    int code;
    bool ctrl;
  } const keys[] = {{"0", 48, false},      {"9", 57, false},        {"kp0", 96, false},
                    {"kp9", 105, false},   {"a", 65, false},        {"z", 90, false},
                    {"Delete", 46, false}, {"Backspace", 8, false}, {"Left", 37, false},
                    {"Up", 38, false},     {"Right", 39, false},    {"Down", 40, false},
                    {"Ctrl+C", 67, true},  {"Ctrl+A", 65, true},    {"F1", 112, false},
                    {"F2", 113, false},    {"Escape", 27, false}};
  for (const auto& [name, code, ctrl] : keys) {
    EXPECT_EQ(key_named(name).code, code) << name;
    EXPECT_EQ(key_named(name).ctrl, ctrl) << name;
  }
}

}  // namespace
}  // namespace sdk::test
