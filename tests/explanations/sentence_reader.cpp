// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tests/explanations/sentence_reader.hpp"

#include <map>
#include <regex>

#include "tests/explanations/turns.hpp"

namespace sdk::test {
namespace {

using Match = std::smatch;

void replace_all(std::string& text, std::string_view from, std::string_view to) {
  for (std::size_t at = 0; (at = text.find(from, at)) != text.npos; at += to.size())
    text.replace(at, from.size(), to);
}

std::regex compiled(std::string turn, const Turns& turns) {
  const auto list = [&](const std::string& item) {
    return item + "(?:, " + item + ")*(?: " + turns.conjunction + " " + item + ")?";
  };
  replace_all(turn, "@C", list(turns.cell));
  replace_all(turn, "@D", list("\\d"));
  replace_all(turn, "@U", turns.unit);
  replace_all(turn, "@L", turns.line);
  return std::regex(turn);
}

const std::regex& regex_of(const char* turn, const Turns& turns) {
  static std::map<std::string, std::regex> all;
  const auto known = all.find(turn);
  return known != all.end() ? known->second
                            : all.emplace(turn, compiled(turn, turns)).first->second;
}

CellSet cells_in(const std::string& text) {
  static const std::regex cell("[rL](\\d)[cC](\\d)");
  CellSet cells;
  for (std::sregex_iterator at(text.begin(), text.end(), cell), end; at != end; ++at)
    cells.insert(Cell{std::stoi((*at)[1]), std::stoi((*at)[2])});
  return cells;
}

NineSet digits_in(const std::string& text) {
  NineSet digits;
  for (const char c : text)
    if (c >= '1' && c <= '9') digits.insert(c - '0');
  return digits;
}

Unit unit_in(const std::string& text) {
  const int number = text.back() - '0';
  if (text.find("row") != text.npos || text.find("ligne") != text.npos)
    return {UnitKind::row, number};
  if (text.find("column") != text.npos || text.find("colonne") != text.npos)
    return {UnitKind::column, number};
  return {UnitKind::box, number};
}

/// Cells, or the lines that cross the unit.
CellSet places_in(const std::string& text, Unit unit) {
  const CellSet cells = cells_in(text);
  if (!cells.empty()) return cells;
  CellSet crossed;
  for (const int line : digits_in(text)) crossed.insert(unit.cell(line));
  return crossed;
}

class Reader {
 public:
  Reader(const std::string& text, const Turns& turns) : turns_(turns), text_(text) {}

  Claims read() {
    read_doubts();
    read_removals();
    read_names();
    read_candidates();
    read_reasons();
    read_fish();
    read_rectangles_and_colours();
    read_singles();
    return claims_;
  }

 private:
  template <class Use>
  void each(const std::string& text, const char* turn, Use use) const {
    const std::regex& regex = regex_of(turn, turns_);
    for (std::sregex_iterator at(text.begin(), text.end(), regex), end; at != end; ++at) use(*at);
  }
  template <class Use>
  void each(const char* turn, Use use) const {
    each(text_, turn, use);
  }
  /// As often as the turn follows at once; gives what comes after the last one.
  template <class Use>
  std::string follow(std::string rest, const char* turn, Use use) const {
    for (Match match; std::regex_search(rest, match, regex_of(turn, turns_));) {
      use(match);
      rest = match.suffix();
    }
    return rest;
  }

  void add_cells(const Match& match) {
    for (const int cell : cells_in(match[1]))
      claims_.cells.push_back({cell_at(cell), digits_in(match[2])});
  }
  void add_places(Unit unit, NineSet digits, const std::string& places) {
    for (const int digit : digits) claims_.units.push_back({unit, digit, places_in(places, unit)});
  }

  void read_names() {
    claims_.named = cells_in(text_);
    each(turns_.named_unit,
         [&](const Match& match) { claims_.named_units.push_back(unit_in(match[1])); });
    claims_.named_digits =
        digits_in(std::regex_replace(text_, regex_of(turns_.other_names, turns_), ""));
  }
  void read_candidates() {
    each(turns_.only_be, [&](const Match& match) {
      add_cells(match);
      follow(match.suffix(), turns_.only_be_next, [&](const Match& next) { add_cells(next); });
    });
    each(turns_.only_go, [&](const Match& match) {
      const Unit unit = unit_in(match[1]);
      const NineSet digits = digits_in(match[2]);
      add_places(unit, digits, match[3]);
      follow(match.suffix(), turns_.only_go_next,
             [&](const Match& next) { add_places(unit_in(next[1]), digits, next[2]); });
      follow(match.suffix(), turns_.digits_next,
             [&](const Match& next) { add_places(unit, digits_in(next[1]), next[2]); });
    });
    each(turns_.also_in,
         [&](const Match& match) { add_places(unit_in(match[1]), digits_in(match[2]), match[3]); });
  }
  void read_reasons() {
    each(turns_.sees, [&](const Match& match) {
      claims_.sights.push_back({cells_in(match[1]), cells_in(match[3]), std::stoi(match[2])});
    });
    each(turns_.losers_see, [&](const Match& match) {
      const int digit = std::stoi(match[1]);
      claims_.sights.push_back(
          {claims_.removed[static_cast<std::size_t>(digit)], cells_in(match[2]), digit});
    });
    each(turns_.if_it_is, [&](const Match& match) {
      claims_.consequences.push_back(
          {std::stoi(match[1]), {}, cells_in(match[2]), std::stoi(match[3])});
    });
    each(turns_.makes, [&](const Match& match) {
      claims_.consequences.push_back(
          {0, cells_in(match[1]), cells_in(match[2]), std::stoi(match[3])});
    });
  }
  void read_fish() {
    each(turns_.so_is, [&](const Match& match) {
      claims_.chained.push_back({cells_in(match[1]), cells_in(match[2])});
    });
    each(turns_.covers, [&](const Match& match) { claims_.covers = digits_in(match[1]); });
    each(turns_.wing, [&](const Match& match) {
      claims_.wings.push_back({digits_in(match[1]), std::stoi(match[2]), digits_in(match[3])});
    });
    each(turns_.fins, [&](const Match& match) {
      claims_.fins.push_back(
          {cells_in(match[1]), cells_in(match[3]), digits_in(match[2]) | digits_in(match[4])});
    });
  }
  void read_rectangles_and_colours() {
    each(turns_.neither, [&](const Match& match) {
      claims_.denials.push_back({cells_in(match[1]), std::stoi(match[2])});
    });
    each(turns_.corner, [&](const Match& match) { claims_.corner = cells_in(match[1]); });
    each(turns_.swapped, [&](const Match& match) { claims_.swapped = digits_in(match[1]); });
    each(turns_.ruled_out, [&](const Match& match) { claims_.ruled_out = digits_in(match[1]); });
    each(turns_.is_no, [&](const Match& match) {
      claims_.refusals.push_back({cells_in(match[1]), digits_in(match[2]) | digits_in(match[3])});
    });
    each(turns_.neither_is, [&](const Match& match) {
      claims_.refusals.push_back({cells_in(match[1]), digits_in(match[2])});
    });
    each(turns_.colours, [&](const Match& match) {
      claims_.colours.push_back({cells_in(match[1]), cells_in(match[2])});
    });
    each(turns_.clash, [&](const Match& match) { claims_.clash = cells_in(match[1]); });
  }
  void read_singles() {
    each(turns_.has, [&](const Match& match) {
      claims_.filled.push_back({unit_in(match[1]), digits_in(match[2])});
    });
    each(turns_.sees_value, [&](const Match& match) {
      claims_.values.push_back({cells_in(match[1]), cells_in(match[3]), std::stoi(match[2])});
    });
    each(turns_.step_removed, [&](const Match& match) {
      claims_.steps.push_back({std::stoi(match[1]), digits_in(match[2]), {}});
    });
    each(turns_.step_took, [&](const Match& match) {
      claims_.steps.push_back({std::stoi(match[1]), {}, cells_in(match[2])});
    });
  }
  void read_doubts() {
    each(turns_.rests_on, [&](const Match& match) { claims_.rests_on = std::stoi(match[1]); });
    each(turns_.not_here, [&](const Match&) { claims_.is_uncertain_here = true; });
    text_ = std::regex_replace(text_, regex_of(turns_.rests_on, turns_), "");
  }
  void read_removals() {
    each(turns_.removal, [&](const Match& match) {
      each(match[1], turns_.removed, [&](const Match& item) {
        for (const int digit : digits_in(item[1]))
          claims_.removed[static_cast<std::size_t>(digit)] |= cells_in(item[2]);
      });
    });
  }

  const Turns& turns_;
  std::string text_;
  Claims claims_;
};

}  // namespace

Claims read_sentence(const std::string& sentence, std::string_view language) {
  if (language != "Fr") return Reader(sentence, english).read();
  std::string plain = sentence;
  replace_all(plain, "\u00A0", " ");
  replace_all(plain, "’", "'");
  return Reader(plain, french).read();
}

}  // namespace sdk::test
