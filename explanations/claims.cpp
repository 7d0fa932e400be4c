// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "explanations/claims.hpp"

#include <algorithm>
#include <cctype>
#include <utility>

namespace sdk {

namespace {

/// What is told together, and what all of it has in common.
template <class Common, class Set>
using Groups = std::vector<std::pair<Common, Set>>;

template <class Common, class Set, class Member>
void add(Groups<Common, Set>& groups, const Common& common, Member member) {
  auto group = std::ranges::find(groups, common, &std::pair<Common, Set>::first);
  if (group == groups.end()) group = groups.insert(group, {common, {}});
  group->second.insert(member);
}

}  // namespace

std::string can_only_be(const Words& words, const std::vector<CellHolds>& facts) {
  Groups<NineSet, CellSet> groups;
  for (const auto& [cell, digits] : facts) add(groups, digits, cell);
  std::vector<std::string> clauses;
  for (const auto& [digits, cells] : groups) {
    const Text first = cells.count() == 1 ? Text{"%1 ne peut être que %2", "%1 can only be %2"}
                                          : Text{"%1 ne peuvent être que %2", "%1 can only be %2"};
    clauses.push_back(words.say(clauses.empty() ? first : Text{"%1 que %2", "%1 only %2"},
                                words.all_of(cells), words.one_of(digits)));
  }
  return words.listed(clauses);
}

std::string in_their_units(const Words& words, const std::vector<DigitInUnit>& facts) {
  std::vector<std::string> clauses;
  clauses.reserve(facts.size());
  for (const auto& [unit, digit, cells] : facts)
    clauses.push_back(words.say(
        clauses.empty() ? Text{"dans %1, le %2 ne va qu'en %3", "in %1, the %2 can only go in %3"}
                        : Text{"%4, qu'en %3", "in %1, only in %3"},
        unit, digit, words.one_of(cells), words.bare(unit)));
  return words.listed(clauses);
}

std::string in_one_unit(const Words& words, const std::vector<DigitInUnit>& facts) {
  Groups<CellSet, NineSet> groups;
  for (const DigitInUnit& fact : facts) add(groups, fact.cells, fact.digit);
  std::vector<std::string> clauses;
  for (const auto& [cells, digits] : groups) {
    const bool is_one = digits.count() == 1;
    const Text first =
        is_one ? Text{"dans %1, le %2 ne va qu'en %3", "in %1, the %2 can only go in %3"}
               : Text{"dans %1, les %2 ne vont qu'en %3", "in %1, the %2 can only go in %3"};
    const Text further = is_one ? Text{"le %2 qu'en %3", "the %2 only in %3"}
                                : Text{"les %2 qu'en %3", "the %2 only in %3"};
    clauses.push_back(words.say(clauses.empty() ? first : further, facts.front().unit,
                                words.all_of(digits), words.one_of(cells)));
  }
  return words.listed(clauses);
}

std::string who_sees(const Words& words, const Deduction& deduction, const CellSet& targets,
                     const std::function<CellSet(int)>& seen) {
  Groups<CellSet, CellSet> groups;
  for (const int target : targets) add(groups, seen(target), target);
  std::vector<std::string> clauses;
  for (const auto& [holders, who] : groups) {
    const bool is_listed_below = who.count() > 3 && who == losers(deduction);
    const std::string names = is_listed_below
                                  ? words.say({"les cases qui suivent", "the following cells"})
                                  : words.all_of(who);
    clauses.push_back(words.say(who.count() == 1 ? Text{"%1 voit %2 en %3", "%1 sees %2 in %3"}
                                                 : Text{"%1 voient %2 en %3", "%1 see %2 in %3"},
                                names, words.a(removed_digits(deduction).first()),
                                words.one_of(holders)));
  }
  return words.listed(clauses);
}

std::string removals(const Words& words, const Deduction& deduction) {
  Groups<CellSet, NineSet> groups;
  for (const int digit : removed_digits(deduction)) add(groups, deduction.losers_of(digit), digit);
  std::vector<std::string> clauses;
  for (const auto& [cells, digits] : groups)
    clauses.push_back(
        words.say({"%1 de %2", "%1 from %2"}, words.all_of(digits), words.all_of(cells)));
  return words.say({"À retirer : %1.", "To remove: %1."}, words.listed(clauses));
}

CellSet losers(const Deduction& deduction) {
  CellSet all;
  for (const CellSet& cells : deduction.removed) all |= cells;
  return all;
}

NineSet removed_digits(const Deduction& deduction) {
  NineSet digits;
  for (int digit = 1; digit <= 9; ++digit)
    if (!deduction.losers_of(digit).empty()) digits.insert(digit);
  return digits;
}

int nth(NineSet digits, int n) {
  for (; n > 1; --n) digits.erase(digits.first());
  return digits.first();
}

std::string capital(std::string text) {
  text.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(text.front())));
  return text;
}

}  // namespace sdk
