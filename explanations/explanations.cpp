// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "explanations/explanations.hpp"

#include <algorithm>
#include <stdexcept>

#include "explanations/claims.hpp"
#include "explanations/sentences.hpp"

namespace sdk {

namespace {

/// The sentence of the rule; the number of sentences when there is none.
constexpr std::size_t sentence_of(std::string_view technique, Rule rule) {
  std::size_t n = 0;
  while (n < sentences.size() && (sentences[n].technique != technique || sentences[n].rule != rule))
    ++n;
  return n;
}

/// No sentence stands twice or is of a rule that its technique does not have.
constexpr bool belong_to_techniques() {
  for (std::size_t n = 0; n < sentences.size(); ++n) {
    const auto& [technique, rule, name, tell] = sentences[n];
    if (sentence_of(technique, rule) != n || row_with(technique) == row_count ||
        !technique_at(row_with(technique)).rules.contains(rule))
      return false;
  }
  return true;
}

constexpr std::size_t rules_in_all() {
  std::size_t count = 0;
  for (std::size_t row = 0; row < row_count; ++row) count += technique_at(row).rules.count();
  return count;
}

static_assert(belong_to_techniques() && sentences.size() == rules_in_all(),
              "every rule of every technique has one sentence");

const Sentence& sentence_of(const Deduction& deduction) {
  const std::size_t n =
      deduction.technique ? sentence_of(deduction.technique->id, deduction.rule) : sentences.size();
  if (n == sentences.size())
    throw std::out_of_range("a deduction that no technique makes has no sentence");
  return sentences[n];
}

std::string told_technique(const Words& words, const ToldStep& step) {
  const Sentence& sentence = sentence_of(step.deduction());
  std::string text =
      words.say({"%1 : %2", "%1: %2"}, words.say(sentence.name), sentence.tell(words, step));
  if (!step.deduction().removes_something()) return text;
  return text + " " + removals(words, step.deduction());
}

/// Whether the hint has removed something because the puzzle has one solution.
bool rests_on_one_solution(const ToldStep& step) {
  for (int number = 1; number <= step.earlier(); ++number)
    if (!premises_of<OneSolution>(step.earlier(number)).empty()) return true;
  return false;
}

/// What is to blame for a cell without candidates.
std::string told_dead_cell(const Words& words, const ToldStep& step) {
  const auto doubt = step.first_doubt();
  return words.say(
      {"Il ne reste aucun chiffre pour %1 : %2un chiffre de la grille est faux, ou la grille n'a "
       "pas de solution%3.",
       "No digit is left for %1: %2a digit now in the grid is wrong, or the puzzle has no "
       "solution%3."},
      words.all_of(step.deduction().cells_as(Role::pattern)),
      doubt ? words.say({"l'étape %1 a tort, ou ", "step %1 is wrong, or "}, *doubt) : "",
      rests_on_one_solution(step) ? words.say({", ou en a plusieurs", ", or more than one"}) : "");
}

std::string told(const Words& words, const ToldStep& step) {
  switch (step.event().kind) {
    case EventKind::completed:
      return words.say({"La grille est terminée.", "The puzzle is complete."});
    case EventKind::dead:
      return told_dead_cell(words, step);
    case EventKind::exhausted:
      return words.say(
          {"Aucune technique ne trouve plus rien.", "No technique finds anything more."});
    default:
      return told_technique(words, step);
  }
}

/// Nothing for a certain step. Of one that is not certain by itself its own sentence says why.
std::string told_doubt(const Words& words, const ToldStep& step) {
  const auto doubt = step.first_doubt();
  if (!doubt || *doubt > step.earlier()) return "";
  return words.say({" (pas certain : s'appuie sur l'étape %1)", " (not certain: rests on step %1)"},
                   *doubt);
}

}  // namespace

std::vector<std::string> explain(const std::deque<Event>& hint, std::string_view language) {
  const Words words(language);
  std::vector<std::string> texts;
  for (std::size_t index = 0; index < hint.size(); ++index) {
    const ToldStep step(hint, index);
    texts.push_back(words.typeset(told(words, step) + told_doubt(words, step)));
  }
  return texts;
}

}  // namespace sdk
