// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The judge of the sentences notices a sentence that is not true of its step.

#include "tests/explanations/sentence_judge.hpp"

#include <gtest/gtest.h>

#include <map>

#include "board/grid_text.hpp"
#include "explanations/explanations.hpp"
#include "puzzles/stock/entry_text.hpp"
#include "puzzles/stock/library_table.hpp"
#include "tests/logic/board_call.hpp"
#include "tools/walk/play.hpp"

namespace sdk::test {
namespace {

using Hint = std::deque<Event>;

/// A hint of one step: what the technique finds on its board.
Hint hint_of(const BoardFile& file, const BoardCase& board) {
  const Position position = position_of(file, board);
  const auto found = find_by(*file.technique, position);
  return {Event{EventKind::removal, position, *found, found->certain}};
}

/// The first board on which the technique fires.
Hint hint_on_board(std::string_view id) {
  for (const BoardFile& file : read_all_boards(BOARDS))
    for (const BoardCase& board : file.cases)
      if (file.technique->id == id && board.fires) return hint_of(file, board);
  throw std::out_of_range("no board of this technique");
}

/// The same sentence with one digit changed, for each of its digits.
std::vector<std::string> with_a_wrong_digit(const std::string& sentence) {
  std::vector<std::string> all;
  for (std::size_t at = 0; at < sentence.size(); ++at) {
    if (sentence[at] < '1' || sentence[at] > '9') continue;
    all.push_back(sentence);
    all.back()[at] = sentence[at] == '9' ? '1' : static_cast<char>(sentence[at] + 1);
  }
  return all;
}

/// How many of a hundred wrong digits of its last step's sentences are noticed.
int noticed_of_a_hundred(const Hint& hint) {
  int noticed = 0, all = 0;
  for (const char* language : {"En", "Fr"})
    for (const std::string& wrong : with_a_wrong_digit(explain(hint, language).back())) {
      ++all;
      noticed += !faults(hint, hint.size() - 1, wrong, language).empty();
    }
  return 100 * noticed / all;
}

TEST(SentenceJudge, NoticesWrongDigitsInTheSentencesOfEveryTechnique) {
  for (const Technique& technique : techniques) {
    // What three cells could hold before they were filled stands nowhere in the candidates.
    const int least = technique.id == "avoidable_rectangle" ? 60 : 80;
    EXPECT_GE(noticed_of_a_hundred(hint_on_board(technique.id)), least) << technique.id;
  }
}

TEST(SentenceJudge, NoticesWrongDigitsInTheSentencesOfSingles) {
  std::map<std::string_view, int> told;
  play_hints(puzzle_of(puzzle_text(BibliothequeGrilles[33])), [&](const Hint& hint) {
    if (hint.back().kind != EventKind::offer) return;
    const std::string_view id = hint.back().deduction.technique->id;
    if (++told[id] > 3) return;
    EXPECT_GE(noticed_of_a_hundred(hint), 90) << id;
  });
  EXPECT_EQ(told.size(), singles.size());
}

/// A turn of a technique's sentence, and another that makes it untrue or leaves something out.
struct Change {
  std::string_view technique, from, to;
};

std::string changed(std::string sentence, const Change& change) {
  const std::size_t at = sentence.find(change.from);
  EXPECT_NE(at, sentence.npos) << change.from << " is not in " << sentence;
  if (at != sentence.npos) sentence.replace(at, change.from.size(), change.to);
  return sentence;
}

TEST(SentenceJudge, NoticesWhatIsLeftOut) {
  for (const Change& change : {Change{"naked_pair", "r4c2 and r4c7", "r4c2"},
                               {"hidden_pair", "the 4 and 6", "the 4"},
                               {"w_wing", "In column 9, the 1 can only go in r1c9 or r6c9. ", ""},
                               {"xy_wing", "; r6c2 only 2 or 5", ""},
                               {"x_wing", "; in row 6, only in r6c3 or r6c8", ""},
                               {"unique_rectangle", "could be swapped", "are unlucky"},
                               {"unique_rectangle", "; a Sudoku has one", ""},
                               {"unique_rectangle", "So r6c3 is neither 1 nor 2. ", ""},
                               {"finned_x_wing", " have their ", " lack their "},
                               {"simple_colouring", " from r2c2 and r3c1", " from r2c2"}}) {
    const Hint hint = hint_on_board(change.technique);
    const std::string sentence = explain(hint, "En").front();
    EXPECT_TRUE(faults(hint, 0, sentence, "En").empty()) << sentence;
    EXPECT_FALSE(faults(hint, 0, changed(sentence, change), "En").empty()) << change.technique;
  }
}

TEST(SentenceJudge, NoticesADoubtThatIsNotTold) {
  Hint hint = hint_on_board("naked_pair");
  const std::string sentence = explain(hint, "En").front();
  hint.front().deduction.certain = false;
  EXPECT_FALSE(faults(hint, 0, sentence, "En").empty());
}

TEST(SentenceJudge, NoticesBadTypographyAndLength) {
  const Hint hint = hint_on_board("naked_pair");
  const std::string english = explain(hint, "En").front(), french = explain(hint, "Fr").front();
  EXPECT_FALSE(faults(hint, 0, changed(french, {"", "\u00A0:", " :"}), "Fr").empty());
  EXPECT_FALSE(faults(hint, 0, changed(french, {"", "l’", "l'"}), "Fr").empty());
  EXPECT_FALSE(faults(hint, 0, changed(english, {"", ":", " :"}), "En").empty());
  EXPECT_FALSE(faults(hint, 0, std::string(200, '-') + english, "En").empty());
}

}  // namespace
}  // namespace sdk::test
