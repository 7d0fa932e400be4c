// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "explanations/claims.hpp"

#include <algorithm>
#include <cctype>

namespace sdk {

std::string can_only_be(const Words& words, const std::vector<CellHolds>& facts) {
  std::vector<NineSet> told;
  std::vector<std::string> clauses;
  for (const CellHolds& fact : facts) {
    if (std::ranges::find(told, fact.digits) != told.end()) continue;
    told.push_back(fact.digits);
    CellSet alike;
    for (const CellHolds& other : facts)
      if (other.digits == fact.digits) alike.insert(other.cell);
    const Text first = alike.count() == 1 ? Text{"%1 ne peut être que %2", "%1 can only be %2"}
                                          : Text{"%1 ne peuvent être que %2", "%1 can only be %2"};
    const Text further{"%1 que %2", "%1 only %2"};
    clauses.push_back(words.say(clauses.empty() ? first : further, words.all_of(alike),
                                words.one_of(fact.digits)));
  }
  return words.listed(clauses);
}

std::string in_their_units(const Words& words, const std::vector<DigitInUnit>& facts) {
  std::vector<std::string> clauses;
  for (const auto& [unit, digit, cells] : facts)
    clauses.push_back(words.say(clauses.empty() ? Text{"dans %1, le %2 ne peut aller qu'en %3",
                                                       "in %1, the %2 can only go in %3"}
                                                : Text{"dans %1, qu'en %3", "in %1, only in %3"},
                                unit, digit, words.one_of(cells)));
  return words.listed(clauses);
}

std::string in_one_unit(const Words& words, const std::vector<DigitInUnit>& facts) {
  std::vector<CellSet> told;
  std::vector<std::string> clauses;
  for (const DigitInUnit& fact : facts) {
    if (std::ranges::find(told, fact.cells) != told.end()) continue;
    told.push_back(fact.cells);
    NineSet alike;
    for (const DigitInUnit& other : facts)
      if (other.cells == fact.cells) alike.insert(other.digit);
    const bool is_one = alike.count() == 1;
    const Text first =
        is_one
            ? Text{"dans %1, le %2 ne peut aller qu'en %3", "in %1, the %2 can only go in %3"}
            : Text{"dans %1, les %2 ne peuvent aller qu'en %3", "in %1, the %2 can only go in %3"};
    const Text further = is_one ? Text{"le %2 qu'en %3", "the %2 only in %3"}
                                : Text{"les %2 qu'en %3", "the %2 only in %3"};
    clauses.push_back(words.say(clauses.empty() ? first : further, fact.unit, words.all_of(alike),
                                words.one_of(fact.cells)));
  }
  return words.listed(clauses);
}

std::string see_all(const Words& words, const CellSet& who, const CellSet& seen) {
  const bool is_one = who.count() == 1;
  if (seen.count() == 2)
    return words.say(is_one ? Text{"%1 voit les deux", "%1 sees both"}
                            : Text{"%1 voient les deux", "%1 see both"},
                     words.all_of(who));
  return words.say(is_one ? Text{"%1 les voit toutes", "%1 sees them all"}
                          : Text{"%1 les voient toutes", "%1 see them all"},
                   words.all_of(who));
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

namespace {

/// All digits that exactly the cells which lost `digit` have lost.
NineSet removed_like(const Deduction& deduction, int digit) {
  NineSet digits;
  for (const int other : removed_digits(deduction))
    if (deduction.losers_of(other) == deduction.losers_of(digit)) digits.insert(other);
  return digits;
}

}  // namespace

std::string removals(const Words& words, const Deduction& deduction) {
  std::vector<std::string> clauses;
  for (const int digit : removed_digits(deduction)) {
    const NineSet alike = removed_like(deduction, digit);
    if (alike.first() == digit)
      clauses.push_back(words.say({"%1 de %2", "%1 from %2"}, words.all_of(alike),
                                  words.all_of(deduction.losers_of(digit))));
  }
  return words.say({"À retirer : %1.", "To remove: %1."}, words.listed(clauses));
}

}  // namespace sdk
