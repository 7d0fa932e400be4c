// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tests/explanations/sentence_judge.hpp"

#include <algorithm>
#include <regex>

#include "explanations/explanations.hpp"
#include "tests/explanations/told_case.hpp"

namespace sdk::test {
namespace {

void judge_facts(ToldCase& told) {
  for (const auto& [cell, digits] : told.claims.cells)
    told.expect(told.digits(cell.number()) == digits, "a cell that can hold something else");
  for (const auto& [unit, digit, cells] : told.claims.units)
    told.expect(cells_with(told.before(), unit, digit) == cells, "a digit with other places");
}

/// Whether the sentence states a premise.
struct Statement {
  const ToldCase& told;

  bool operator()(const CellHolds& fact) const {
    return std::ranges::count(told.claims.cells, fact) == 1;
  }
  bool operator()(const DigitInUnit& fact) const {
    return std::ranges::count(told.claims.units, fact) == 1;
  }
  /// It names the four corners, and says what would follow where that is so.
  bool operator()(const OneSolution& fact) const {
    CellSet named = told.claims.corner;
    for (const CellHolds& cell : told.claims.cells) named.insert(cell.cell);
    for (const DigitInUnit& line : told.claims.units) named |= line.cells;
    for (const Refusal& refusal : told.claims.refusals) named |= refusal.cells;
    NineSet boxes;
    for (const int cell : fact.corners) boxes.insert(cell_at(cell).box());
    const bool can_be_swapped = boxes.count() == 2;
    return named == fact.corners &&
           told.claims.swapped == (can_be_swapped ? fact.digits : NineSet()) &&
           told.claims.ruled_out == (can_be_swapped ? NineSet() : fact.digits);
  }
};

void judge_premises(ToldCase& told) {
  for (const Premise& premise : told.deduction().premises)
    told.expect(std::visit(Statement{told}, premise), "a premise that is not told");
}

/// What a removal may speak of: what it rests on, its roles, what it removes.
void judge_names(ToldCase& told) {
  const Deduction& deduction = told.deduction();
  CellSet cells;
  NineSet digits = deduction.digits;
  std::vector<Unit> units{deduction.unit, deduction.other_unit};
  for (const CellSet& role : deduction.cells) cells |= role;
  for (int digit = 1; digit <= 9; ++digit) {
    cells |= deduction.losers_of(digit);
    if (!deduction.losers_of(digit).empty()) digits.insert(digit);
  }
  for (const CellHolds& fact : told.claims.cells) digits |= fact.digits;
  for (const auto& [unit, digit, places] : told.claims.units) {
    units.push_back(unit);
    for (const int place : places)
      for (const Unit across : units_of(cell_at(place))) units.push_back(across);
  }
  told.expect((told.claims.named - cells).empty(), "a cell that has no part in it");
  told.expect(digits.contains_all(told.claims.named_digits), "a digit that has no part in it");
  for (const Unit unit : told.claims.named_units)
    told.expect(std::ranges::count(units, unit) > 0, "a unit that has no part in it");
}

void judge_doubts(ToldCase& told) {
  told.expect(told.claims.is_uncertain_here == !told.deduction().certain, "not certain here?");
  const auto is_certain = [](const Event& event) { return event.deduction.certain; };
  const auto first = std::ranges::find(told.hint, false, is_certain) - told.hint.begin() + 1;
  const bool rests_on_doubt = first <= static_cast<std::ptrdiff_t>(told.index);
  told.expect(told.claims.rests_on == (rests_on_doubt ? first : 0), "another doubt");
}

/// A language's typography.
bool is_well_set(const std::string& sentence, std::string_view language) {
  static const std::regex badly_set(" [;:!?»]|« |'|  |%");
  static const std::regex badly_set_in_english("[^\\x20-\\x7e]|'|  |%| [;:!?,.]");
  return !std::regex_search(sentence, language == "Fr" ? badly_set : badly_set_in_english);
}

/// Rows, columns, boxes, cells and digits are counted from 1, so what a finder forgot to name is 0.
bool names_nothing(const std::string& sentence) {
  static const std::regex zero("(^|[^1-9])0");
  return std::regex_search(sentence, zero);
}

/// The chains of a colouring and many pincers are as long as they are, and so is the list of what
/// is removed; what is said of doubts does not count.
bool is_short(const Deduction& deduction, const std::string& sentence) {
  static const std::regex uncounted(
      " (To remove|À retirer).*| \\((not certain|pas certain)[^)]*\\)");
  return !deduction.cells_as(Role::first_colour).empty() ||
         deduction.cells_as(Role::pincer).count() > 2 ||
         length_of(std::regex_replace(sentence, uncounted, "")) <= 300;
}

}  // namespace

std::size_t length_of(std::string_view sentence) {
  return static_cast<std::size_t>(std::ranges::count_if(
      sentence, [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

std::vector<std::string> faults(const std::deque<Event>& hint, std::size_t index,
                                const std::string& sentence, std::string_view language) {
  const Claims claims = read_sentence(sentence, language);
  ToldCase told{hint, index, claims};
  judge_facts(told);
  judge_premises(told);
  judge_reasons(told);
  if (hint[index].kind == EventKind::removal) judge_names(told);
  judge_single(told);
  judge_doubts(told);
  told.expect(claims.removed == told.deduction().removed, "other removals");
  told.expect(!names_nothing(sentence), "a name of nothing");
  told.expect(is_well_set(sentence, language), "badly set");
  told.expect(is_short(hint[index].deduction, sentence), "too long");
  return told.faults;
}

std::string faults(const std::deque<Event>& hint) {
  std::string all;
  for (const char* language : {"En", "Fr"}) {
    const std::vector<std::string> sentences = explain(hint, language);
    for (std::size_t index = 0; index < sentences.size(); ++index)
      for (const std::string& fault : faults(hint, index, sentences[index], language))
        all += fault + ": " + sentences[index] + "\n";
  }
  return all;
}

}  // namespace sdk::test
