// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tests/proofs/shape.hpp"

#include <algorithm>
#include <set>

namespace sdk::proofs {

namespace {

template <class Kind>
std::vector<Kind> all_of(const Premises& premises) {
  std::vector<Kind> found;
  for (const Premise& premise : premises)
    if (const Kind* const one = std::get_if<Kind>(&premise)) found.push_back(*one);
  return found;
}

/// How many base lines a fish has; 0 for other techniques.
std::size_t base_lines(const std::string& name) {
  if (name == "x_wing") return 2;
  if (name == "swordfish") return 3;
  return name == "jellyfish" ? 4 : 0;
}

std::string kind_of(const UnitPremise& p) { return p.unit.substr(0, p.unit.size() - 2); }

std::string fish_fault(const TechniqueStep& step) {
  const std::vector<UnitPremise> lines = all_of<UnitPremise>(step.premises);
  const std::size_t wanted = base_lines(step.name);
  if (lines.size() != wanted) return step.name + " lists " + std::to_string(wanted) + " base lines";
  std::set<std::string> units;
  for (const UnitPremise& line : lines) {
    units.insert(line.unit);
    if (!line.is_line() || kind_of(line) != kind_of(lines[0]) || line.digit != lines[0].digit)
      return "the base lines of " + step.name + " are not of one kind and digit";
  }
  return units.size() == wanted ? "" : step.name + " lists a base line twice";
}

using Link = std::vector<int>;

std::string missing_link(const std::set<Link>& links, int digit, const PlainGrid& before) {
  std::set<int> used;
  for (const Link& link : links) used.insert(link.begin(), link.end());
  for (const std::string& unit : all_units()) {
    const Link places = before.places(unit, digit);
    const bool is_between = std::ranges::all_of(places, [&](int c) { return used.contains(c); });
    if (places.size() == 2 && is_between && !links.contains(places))
      return "colouring does not list the link of " + text_of(places);
  }
  return "";
}

/// A trap takes the digit from cells beside the chains, a wrap from cells of them.
std::string colouring_rule_fault(const TechniqueStep& step, const std::set<Link>& links) {
  const auto is_linked = [&](const CellDigit& removed) {
    return std::ranges::any_of(links, [&](const Link& link) {
      return link[0] == removed.cell || link[1] == removed.cell;
    });
  };
  if (step.variant == 1 && std::ranges::any_of(step.removed, is_linked))
    return "a trap of colouring removes from a cell of its links";
  if (step.variant == 2 && std::ranges::none_of(step.removed, is_linked))
    return "a wrap of colouring removes from no cell of its links";
  return "";
}

std::string colouring_fault(const TechniqueStep& step, const PlainGrid& before) {
  std::set<Link> links;
  const std::vector<UnitPremise> premises = all_of<UnitPremise>(step.premises);
  for (const UnitPremise& p : premises) {
    if (p.cells.size() != 2 || p.digit != premises[0].digit)
      return "no link of colouring: " + text_of(Premise(p));
    if (!links.insert(p.cells).second) return "two units for the link of " + text_of(p.cells);
  }
  if (links.empty()) return "colouring lists no link";
  const std::string rule = colouring_rule_fault(step, links);
  return rule.empty() ? missing_link(links, premises[0].digit, before) : rule;
}

/// Without a fin the places on both base lines lie on two lines that cross them.
std::string finned_fault(const TechniqueStep& step) {
  const std::vector<UnitPremise> lines = all_of<UnitPremise>(step.premises);
  if (lines.size() != 2) return "";  // one line was enough
  const auto cover = lines[0].unit.starts_with("row") ? column_of : row_of;
  std::set<int> covers;
  for (const UnitPremise& line : lines)
    for (const int cell : line.cells) covers.insert(cover(cell));
  if (step.variant == 1 && covers.size() <= 2) return "an X-wing without a fin is told as finned";
  return step.variant == 2 && covers.size() > 2 ? "a fin is not told of" : "";
}

/// What a rule of rectangles rests on: lines, corners, and how many of these hold two digits.
struct RectangleForm {
  std::ptrdiff_t lines, corners, of_two_digits;
  bool operator==(const RectangleForm&) const = default;
};

RectangleForm form_of(const Premises& premises) {
  const auto units = all_of<UnitPremise>(premises);
  const auto cells = all_of<CellPremise>(premises);
  return {std::ranges::count_if(units, &UnitPremise::is_line), std::ssize(cells),
          std::ranges::count_if(cells, [](const CellPremise& p) { return p.digits.count() == 2; })};
}

std::string rectangle_fault(const TechniqueStep& step) {
  static constexpr RectangleForm forms[] = {{0, 3, 3}, {0, 4, 2}, {1, 2, 2}, {0, 4, 1}, {2, 2, 2}};
  const RectangleForm& form = forms[step.variant - 1];
  if (form_of(step.premises) == form) return "";
  return "rule " + std::to_string(step.variant) +
         " of unique rectangles lists lines: " + std::to_string(form.lines) +
         ", corners: " + std::to_string(form.corners) +
         ", of two digits: " + std::to_string(form.of_two_digits);
}

bool speaks_of_rectangles(const Premises& premises) {
  return !all_of<UniquePremise>(premises).empty();
}

}  // namespace

std::string shape_fault(const OfferStep& step) {
  const Premises& premises = step.premises;
  const bool is_one = premises.size() == 1;
  if (step.kind == "naked_single")
    return is_one && std::holds_alternative<CellPremise>(premises[0])
               ? ""
               : "a naked single has one premise, about its cell";
  return is_one && std::holds_alternative<UnitPremise>(premises[0])
             ? ""
             : "a hidden single has one premise, about a unit";
}

std::string shape_fault(const TechniqueStep& step, const PlainGrid& before) {
  if (step.name == "unique_rectangle") return rectangle_fault(step);
  if (step.name == "avoidable_rectangle") return "";
  if (speaks_of_rectangles(step.premises)) return step.name + " speaks of a rectangle";
  if (base_lines(step.name) != 0) return fish_fault(step);
  if (step.name == "finned_x_wing") return finned_fault(step);
  return step.name == "simple_colouring" ? colouring_fault(step, before) : "";
}

bool is_listed_anyway(const TechniqueStep& step, const Premise& premise) {
  return (base_lines(step.name) != 0 || step.name == "simple_colouring") &&
         std::holds_alternative<UnitPremise>(premise);
}

bool has_loose_rectangle(const TechniqueStep& step) {
  const std::vector<UniquePremise> rectangles = all_of<UniquePremise>(step.premises);
  return step.name == "unique_rectangle" &&
         !std::ranges::all_of(rectangles, &UniquePremise::can_be_swapped);
}

}  // namespace sdk::proofs
