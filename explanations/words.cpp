// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "explanations/words.hpp"

namespace sdk {

std::string Words::told(Cell cell) const {
  return say({"L%1C%2", "r%1c%2"}, cell.row, cell.column);
}

std::string Words::told(Unit unit) const { return say({"la %1", "%1"}, bare(unit)); }

std::string Words::bare(Unit unit) const {
  switch (unit.kind) {
    case UnitKind::row:
      return say({"ligne %1", "row %1"}, unit.number);
    case UnitKind::column:
      return say({"colonne %1", "column %1"}, unit.number);
    default:
      return say({"région %1", "box %1"}, unit.number);
  }
}

std::string Words::filled(std::string_view pattern, const Names& parts) {
  std::string text;
  for (std::size_t at = 0; at < pattern.size(); ++at) {
    if (pattern[at] == '%')
      text += parts.at(static_cast<std::size_t>(pattern[++at] - '1'));
    else
      text += pattern[at];
  }
  return text;
}

Words::Names Words::names(NineSet digits) {
  Names items;
  for (const int digit : digits) items.push_back(told(digit));
  return items;
}

Words::Names Words::names(const CellSet& cells) const {
  Names items;
  for (const int cell : cells) items.push_back(told(cell_at(cell)));
  return items;
}

std::string Words::joined(const Names& items, const Text& last) const {
  std::string text;
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (i > 0) text += i + 1 < items.size() ? ", " : say(last);
    text += items[i];
  }
  return text;
}

std::string Words::listed(const std::vector<std::string>& clauses) const {
  std::string text;
  for (const std::string& clause : clauses)
    text += (text.empty() ? "" : say({" ; ", "; "})) + clause;
  return text;
}

std::string Words::none_of(const CellSet& cells) const {
  std::string text;
  for (const std::string& cell : names(cells))
    text += (text.empty() ? "" : say({" ni ", " nor "})) + cell;
  return text;
}

std::string Words::number(int n) const {
  if (n == 2) return say({"deux", "two"});
  return n == 3 ? say({"trois", "three"}) : say({"quatre", "four"});
}

std::string Words::a(int digit) const {
  return say({"un %1", digit == 8 ? "an %1" : "a %1"}, digit);
}

namespace {

void replace_all(std::string& text, std::string_view from, std::string_view to) {
  for (std::size_t at = 0; (at = text.find(from, at)) != text.npos; at += to.size())
    text.replace(at, from.size(), to);
}

}  // namespace

std::string Words::typeset(std::string text) const {
  if (!is_french_) return text;
  for (const auto& [typed, set] : {std::pair{"'", "’"},
                                   {" :", "\u00A0:"},
                                   {" ;", "\u00A0;"},
                                   {" !", "\u00A0!"},
                                   {" ?", "\u00A0?"},
                                   {"« ", "«\u00A0"},
                                   {" »", "\u00A0»"}})
    replace_all(text, typed, set);
  return text;
}

}  // namespace sdk
