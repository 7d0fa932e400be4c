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

/// Where the rule is certain: "If r4c5 were 3 or 8 too, the 3 and 8 could be swapped in the
/// corners, giving two solutions; a Sudoku has one. So". What follows goes on from there. Where
/// nothing could be swapped, no such thing is claimed: the corners are only supposed to hold
/// something else.
std::string corners_differ(const Words& words, const Deduction& deduction,
                           const std::string& supposition) {
  if (deduction.certain)
    return words.say(
        {"%2, on pourrait échanger les %1 aux coins, or un sudoku n'a qu'une solution. Donc",
         "%2, the %1 could be swapped in the corners, giving two solutions; a Sudoku has one. So"},
        words.all_of(deduction.digits), supposition);
  return words.say(
      {"On suppose que les coins n'ont pas que %1 (pas certain ici : les coins ne sont "
       "pas dans deux régions). Si c'est juste,",
       "It is assumed that the corners do not hold just %1 (not certain here: the "
       "corners do not lie in two boxes). If that is right,"},
      words.all_of(deduction.digits));
}

}  // namespace

std::string tell_odd_corner(const Words& words, const ToldStep& step) {
  const Deduction& deduction = step.deduction();
  const std::string odd = words.all_of(deduction.cells_as(Role::roof));
  return words.say({"%1. %2 %3 n'est ni %4 ni %5.", "%1. %2 %3 is neither %4 nor %5."},
                   cells_told(words, deduction),
                   corners_differ(words, deduction,
                                  words.say({"Si %1 était %2 aussi", "If %1 were %2 too"}, odd,
                                            words.one_of(deduction.digits))),
                   odd, nth(deduction.digits, 1), nth(deduction.digits, 2));
}

std::string tell_shared_digit(const Words& words, const ToldStep& step) {
  const Deduction& deduction = step.deduction();
  const CellSet& roof = deduction.cells_as(Role::roof);
  const int digit = removed_digits(deduction).first();
  const Text supposition = roof.count() == 2 ? Text{"Si ni %1 n'était %2", "If neither %1 were %2"}
                                             : Text{"Si ni %1 n'était %2", "If none of %3 were %2"};
  return words.say(
      {"%1. %2 %3.", "%1. %2 %3."}, cells_told(words, deduction),
      corners_differ(words, deduction,
                     words.say(supposition, words.none_of(roof), digit, words.all_of(roof))),
      who_sees(words, deduction, losers(deduction), [&](int) { return roof; }));
}

std::string tell_bound_to_roof(const Words& words, const ToldStep& step) {
  const Deduction& deduction = step.deduction();
  const int removed = removed_digits(deduction).first();
  const std::string supposition =
      words.say({"Si l'autre était %1", "If the other one were %1"}, removed);
  return words.say({"%1. %2. %3 ni %5 n'est %4.", "%1. %2. %3 neither %5 is %4."},
                   cells_told(words, deduction),
                   capital(in_their_units(words, premises_of<DigitInUnit>(deduction))),
                   corners_differ(words, deduction, supposition), removed,
                   words.none_of(deduction.cells_as(Role::roof)));
}

/// The two lines take so much room that the rest is told in fewer words.
std::string tell_bound_to_diagonal(const Words& words, const ToldStep& step) {
  const Deduction& deduction = step.deduction();
  const Text rest =
      deduction.certain
          ? Text{"%1. %2. Si %3 était %4, l'autre aussi : les %5 pourraient s'échanger, or il n'y a "
                 "qu'une solution. Donc ni %7 n'est %4.",
                 "%1. %2. If %3 were %4, both would be: the %5 could be swapped in the corners, "
                 "but a Sudoku has only one solution. So neither %7 is %4."}
          : Text{"%1. %2. Si %3 est %4, l'autre aussi. Si les coins n'ont pas que %5 (pas certain "
                 "ici : les coins ne sont pas dans deux régions), ni %7 n'est %4.",
                 "%1. %2. If %3 is %4, both are. If not all corners are %6 (not certain here: the "
                 "corners do not lie in two boxes), neither %7 is %4."};
  return words.say(rest, cells_told(words, deduction),
                   capital(in_their_units(words, premises_of<DigitInUnit>(deduction))),
                   words.one_of(deduction.cells_as(Role::roof)), removed_digits(deduction).first(),
                   words.all_of(deduction.digits), words.one_of(deduction.digits),
                   words.none_of(deduction.cells_as(Role::roof)));
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
