// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// One unit, or a line and a box: pointing, box/line reduction, naked and hidden sets.

#include "explanations/claims.hpp"
#include "explanations/tellers.hpp"

namespace sdk {

std::string tell_locked(const Words& words, const ToldStep& step) {
  const Deduction& deduction = step.deduction();
  return words.say({"%1, donc dans %2 ; hors de %3, aucune case de %2 ne peut être %4.",
                    "%1, and so in %2; outside %3, no cell of %2 can be %4."},
                   in_their_units(words, premises_of<DigitInUnit>(deduction)), deduction.other_unit,
                   deduction.unit, deduction.digits.first());
}

std::string tell_naked_pair(const Words& words, const ToldStep& step) {
  const Deduction& deduction = step.deduction();
  return words.say({"dans %1, %2 : l'une est %3, l'autre %4, et aucune autre case de %1 ne peut "
                    "être %3 ou %4.",
                    "in %1, %2: one is %3 and the other %4, so no other cell of %1 can be %3 or "
                    "%4."},
                   deduction.unit, can_only_be(words, premises_of<CellHolds>(deduction)),
                   nth(deduction.digits, 1), nth(deduction.digits, 2));
}

std::string tell_naked_set(const Words& words, const ToldStep& step) {
  const Deduction& deduction = step.deduction();
  return words.say({"dans %1, %2. Ces %3 cases se partagent %4 : aucune autre de %1 n'en a.",
                    "in %1, %2. These %3 cells share out %4, so the other cells of %1 have none of "
                    "them."},
                   deduction.unit, can_only_be(words, premises_of<CellHolds>(deduction)),
                   words.number(deduction.digits.count()), words.all_of(deduction.digits));
}

std::string tell_hidden_set(const Words& words, const ToldStep& step) {
  const Deduction& deduction = step.deduction();
  return words.say({"%1. Ces %2 chiffres prennent ces %2 cases : aucun autre chiffre n'y a de "
                    "place.",
                    "%1. These %2 digits take these %2 cells, so no other digit can go there."},
                   in_one_unit(words, premises_of<DigitInUnit>(deduction)),
                   words.number(deduction.digits.count()));
}

}  // namespace sdk
