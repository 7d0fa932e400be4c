// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Unique rectangles, and the avoidable one.

#include "explanations/claims.hpp"
#include "explanations/tellers.hpp"

namespace sdk {

namespace {

std::string cells_told(const Words& words, const Deduction& deduction) {
  return can_only_be(words, premises_of<CellHolds>(deduction));
}

/// What would come of four corners with just two digits. Where nothing could be swapped, that is
/// not claimed.
std::string told_swap(const Words& words, const Deduction& deduction) {
  if (deduction.certain)
    return words.say({"on pourrait échanger les %1 aux quatre coins, d'où deux solutions",
                      "the %1 could be swapped in the four corners, giving two solutions"},
                     words.all_of(deduction.digits));
  return words.say({"les coins n'auraient que %1, ce que la technique exclut (pas certain "
                    "ici : les coins ne sont pas dans deux régions)",
                    "the four corners would hold just %1, which the technique rules out (not "
                    "certain here: the corners do not lie in two boxes)"},
                   words.all_of(deduction.digits));
}

/// What the conclusion begins with.
std::string therefore(const Words& words, const Deduction& deduction) {
  return words.say(deduction.certain ? Text{"Donc", "So"} : Text{"Si c'est juste,", "If so,"});
}

}  // namespace

std::string tell_odd_corner(const Words& words, const ToldStep& step) {
  const Deduction& deduction = step.deduction();
  return words.say({"%1. Si %2 était %3 aussi, %4.", "%1. If %2 were %3 too, %4."},
                   cells_told(words, deduction), words.all_of(deduction.cells_as(Role::roof)),
                   words.one_of(deduction.digits), told_swap(words, deduction));
}

std::string tell_shared_digit(const Words& words, const ToldStep& step) {
  const Deduction& deduction = step.deduction();
  const CellSet& roof = deduction.cells_as(Role::roof);
  const int digit = removed_digits(deduction).first();
  return words.say({"%1. Si ni %2 n'était %3, %4. %5 %6.", "%1. If neither %2 were %3, %4. %5 %6."},
                   cells_told(words, deduction), words.none_of(roof), digit,
                   told_swap(words, deduction), therefore(words, deduction),
                   who_sees(words, deduction, losers(deduction), [&](int) { return roof; }));
}

std::string tell_bound_to_roof(const Words& words, const ToldStep& step) {
  const Deduction& deduction = step.deduction();
  const auto places = premises_of<DigitInUnit>(deduction);
  const CellSet& roof = deduction.cells_as(Role::roof);
  const int first = *roof.begin(), second = *(roof - CellSet{first}).begin();
  return words.say({"%1. %2. Si %3 est %5 et %4 %6, ou l'inverse, %7. %8 aucune n'est %6.",
                    "%1. %2. If %3 is %5 and %4 is %6, or the other way round, %7. %8 neither is "
                    "%6."},
                   cells_told(words, deduction), capital(in_their_units(words, places)),
                   cell_at(first), cell_at(second), places.front().digit,
                   removed_digits(deduction).first(), told_swap(words, deduction),
                   therefore(words, deduction));
}

std::string tell_bound_to_diagonal(const Words& words, const ToldStep& step) {
  const Deduction& deduction = step.deduction();
  const int removed = removed_digits(deduction).first();
  const CellSet& open = deduction.cells_as(Role::roof);
  return words.say({"%1. %2. Si %3 est %5, l'autre aussi, et %4 sont %6 : %7.",
                    "%1. %2. If %3 is %5, so is the other, and %4 are %6: %7."},
                   cells_told(words, deduction),
                   capital(in_their_units(words, premises_of<DigitInUnit>(deduction))),
                   words.one_of(open), words.all_of(deduction.cells_as(Role::pattern) - open),
                   removed, (deduction.digits - NineSet{removed}).first(),
                   told_swap(words, deduction));
}

std::string tell_avoidable(const Words& words, const ToldStep& step) {
  const Deduction& deduction = step.deduction();
  return words.say(
      {"avant d'être remplies, %1 n'avaient plus que %2. Avec %3 en %4, on pourrait peut-être "
       "échanger ces chiffres (pas certain ici : cela tient à ce que ces cases ont pu être, non "
       "aux candidats).",
       "before they were filled, %1 were down to %2. With %3 in %4, these digits might be swapped "
       "(not certain here: it rests on what the cells could once be, not on the candidates)."},
      words.all_of(deduction.cells_as(Role::pattern)), words.one_of(deduction.digits),
      words.a(removed_digits(deduction).first()), words.all_of(deduction.cells_as(Role::roof)));
}

}  // namespace sdk
