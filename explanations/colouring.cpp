// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Simple colouring: the links that make two colours, and what sees both, or what clashes.

#include <algorithm>

#include "explanations/claims.hpp"
#include "explanations/tellers.hpp"

namespace sdk {

namespace {

/// Links of one digit that hang together, each but the first at one before it.
struct Chain {
  std::vector<DigitInUnit> links;
  CellSet cells;

  void add(const DigitInUnit& link) {
    links.push_back(link);
    cells |= link.cells;
  }
  bool touches(const DigitInUnit& link) const { return !(cells & link.cells).empty(); }
};

/// The chain of the first of these links, which it takes.
Chain take_chain(std::vector<DigitInUnit>& links) {
  Chain chain;
  for (auto next = links.begin(); next != links.end();
       next = std::ranges::find_if(links, [&](const auto& link) { return chain.touches(link); })) {
    chain.add(*next);
    links.erase(next);
  }
  return chain;
}

/// The deduction may rest on chains that have nothing to do with each other: targets of a trap can
/// each see another one.
std::vector<Chain> chains_of(const Deduction& deduction) {
  auto links = premises_of<DigitInUnit>(deduction);
  std::vector<Chain> chains;
  while (!links.empty()) chains.push_back(take_chain(links));
  return chains;
}

struct Colours {
  CellSet first, second;
};

Colours colours_of(const Deduction& deduction, const Chain& chain) {
  return {deduction.cells_as(Role::first_colour) & chain.cells,
          deduction.cells_as(Role::second_colour) & chain.cells};
}

/// "In row 1, the 4 can only go in r1c1 or r1c5; in column 5, .... Two colours alternate on these
/// cells; the 4 fills all of one and none of the other: either r1c1 and r6c5, or r1c5 and r6c2."
std::string two_colours(const Words& words, const Chain& chain, const Colours& colours) {
  return words.say({"%1. Deux couleurs alternent sur ces cases ; le %4 remplit l'une et aucune "
                    "case de l'autre : soit %2, soit %3.",
                    "%1. Two colours alternate on these cells; the %4 fills all of one and none of "
                    "the other: either %2, or %3."},
                   in_their_units(words, chain.links), words.all_of(colours.first),
                   words.all_of(colours.second), chain.links.front().digit);
}

/// One cell of each colour that the target sees; none when it does not see both.
CellSet seen_of_both(const Colours& colours, int target) {
  const CellSet first = colours.first & peers_of(target);
  const CellSet second = colours.second & peers_of(target);
  if (first.empty() || second.empty()) return {};
  return {*first.begin(), *second.begin()};
}

/// The cells that see both colours.
CellSet trapped(const Colours& colours, const CellSet& cells) {
  CellSet targets;
  for (const int cell : cells)
    if (!seen_of_both(colours, cell).empty()) targets.insert(cell);
  return targets;
}

/// The first stands behind the technique's name.
std::string sentences_of(const std::vector<std::string>& texts) {
  std::string all = texts.front();
  for (std::size_t i = 1; i < texts.size(); ++i) all += " " + capital(texts[i]);
  return all;
}

}  // namespace

std::string tell_trap(const Words& words, const ToldStep& step) {
  const Deduction& deduction = step.deduction();
  std::vector<std::string> texts;
  for (const Chain& chain : chains_of(deduction)) {
    const Colours colours = colours_of(deduction, chain);
    texts.push_back(words.say({"%1 Dans les deux cas, %2.", "%1 Either way %2."},
                              two_colours(words, chain, colours),
                              who_sees(words, deduction, trapped(colours, losers(deduction)),
                                       [&](int target) { return seen_of_both(colours, target); })));
  }
  return sentences_of(texts);
}

namespace {

/// Two of the cells that see each other, as two of a colour that clashes do.
CellSet clashing(const CellSet& cells) {
  CellSet all;
  for (const int cell : cells)
    if (!(cells & peers_of(cell)).empty()) all.insert(cell);
  const int first = *all.begin();
  return {first, *(all & peers_of(first)).begin()};
}

}  // namespace

std::string tell_wrap(const Words& words, const ToldStep& step) {
  const Deduction& deduction = step.deduction();
  const int digit = deduction.digits.first();
  const Chain chain = chains_of(deduction).front();
  return words.say({"%1 Mais %2 se voient et ne peuvent être %3 toutes les deux : leur couleur est "
                    "fausse.",
                    "%1 But %2 see each other and cannot both be %3: their colour is false."},
                   two_colours(words, chain, colours_of(deduction, chain)),
                   words.all_of(clashing(deduction.losers_of(digit))), digit);
}

}  // namespace sdk
