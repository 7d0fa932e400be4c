// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "explanations/explanations.hpp"

#include <stdexcept>
#include <string>
#include <vector>

#include "explanations/sentences.hpp"

namespace sdk {

namespace {

/// Fills a sentence in with what a step did.
class Teller {
 public:
  Teller(const Deduction& step, std::string_view language)
      : step_(step), is_french_(language == "Fr") {}

  std::string tell(const Text& sentence) const {
    const std::string_view pattern = is_french_ ? sentence.french : sentence.english;
    std::string text;
    for (std::size_t at = 0; at < pattern.size(); ++at) {
      if (pattern[at] == '%')
        text += filled(pattern[++at]);
      else
        text += pattern[at];
    }
    return text;
  }

 private:
  std::string filled(char place) const {
    switch (place) {
      case 'd':
        return list(step_.digits);
      case 'x':
        return list(removed_digits());
      case 'y':
        return list(step_.digits - removed_digits());
      case 'u':
        return name(step_.unit);
      case 'v':
        return name(step_.other_unit);
      case 'b':
        return plural(step_.unit.kind);
      case 'c':
        return plural(crossing(step_.unit.kind));
      case 'r':
        return removals();
      default:
        return list(step_.cells_as(role(place)));
    }
  }

  static Role role(char place) {
    switch (place) {
      case 'o':
        return Role::roof;
      case 'f':
        return Role::fin;
      case 'i':
        return Role::pivot;
      case 'w':
        return Role::pincer;
      case 'e':
        return Role::link_end;
      case '1':
        return Role::first_colour;
      case '2':
        return Role::second_colour;
      default:
        return Role::pattern;
    }
  }

  std::string_view either(std::string_view french, std::string_view english) const {
    return is_french_ ? french : english;
  }

  std::string_view name(UnitKind kind) const {
    if (kind == UnitKind::row) return either("la ligne ", "row ");
    if (kind == UnitKind::column) return either("la colonne ", "column ");
    return either("la région ", "box ");
  }

  std::string name(Unit unit) const {
    return std::string(name(unit.kind)) + std::to_string(unit.number);
  }

  std::string plural(UnitKind kind) const {
    return std::string(kind == UnitKind::row ? either("lignes", "rows")
                                             : either("colonnes", "columns"));
  }

  std::string name(Cell cell) const {
    return std::string(either("L", "r")) + std::to_string(cell.row) +
           std::string(either("C", "c")) + std::to_string(cell.column);
  }

  /// "a", "a and b", "a, b and c".
  std::string joined(const std::vector<std::string>& items) const {
    std::string text;
    for (std::size_t i = 0; i < items.size(); ++i) {
      if (i > 0) text += i + 1 < items.size() ? ", " : either(" et ", " and ");
      text += items[i];
    }
    return text;
  }

  std::string list(NineSet digits) const {
    std::vector<std::string> items;
    for (const int digit : digits) items.push_back(std::to_string(digit));
    return joined(items);
  }

  std::string list(const CellSet& cells) const {
    std::vector<std::string> items;
    for (const int cell : cells) items.push_back(name(cell_at(cell)));
    return joined(items);
  }

  NineSet removed_digits() const {
    NineSet digits;
    for (int digit = 1; digit <= 9; ++digit)
      if (!step_.losers_of(digit).empty()) digits.insert(digit);
    return digits;
  }

  /// All digits that exactly the cells which lost `digit` have lost.
  NineSet removed_like(int digit) const {
    NineSet digits;
    for (const int other : removed_digits())
      if (step_.losers_of(other) == step_.losers_of(digit)) digits.insert(other);
    return digits;
  }

  /// "3 from r1c5 and r1c7; 8 and 9 from r1c5".
  std::string removals() const {
    std::string text;
    for (const int digit : removed_digits()) {
      const NineSet alike = removed_like(digit);
      if (alike.first() != digit) continue;
      if (!text.empty()) text += either(" ; ", "; ");
      text += list(alike);
      text += either(" de ", " from ");
      text += list(step_.losers_of(digit));
    }
    return text;
  }

  const Deduction& step_;
  bool is_french_;
};

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
    const auto& [technique, rule, text] = sentences[n];
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

const Text& text_of(const Deduction& deduction) {
  const std::size_t n =
      deduction.technique ? sentence_of(deduction.technique->id, deduction.rule) : sentences.size();
  if (n == sentences.size())
    throw std::out_of_range("a deduction that no technique makes has no sentence");
  return sentences[n].text;
}

const Text& text_of(const Event& event) {
  switch (event.kind) {
    case EventKind::completed:
      return completed;
    case EventKind::dead:
      return dead;
    case EventKind::exhausted:
      return exhausted;
    default:
      return text_of(event.deduction);
  }
}

}  // namespace

std::string explain(const Deduction& deduction, std::string_view language) {
  return Teller(deduction, language).tell(text_of(deduction));
}

std::string explain(const Event& event, std::string_view language) {
  return Teller(event.deduction, language).tell(text_of(event));
}

std::vector<std::string> explain(const std::deque<Event>& hint, std::string_view language) {
  std::vector<std::string> texts;
  for (const Event& event : hint) texts.push_back(explain(event, language));
  return texts;
}

}  // namespace sdk
