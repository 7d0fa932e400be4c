// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The two languages of the explanations: names of cells and units, lists, texts to fill in.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "board/cell_set.hpp"
#include "board/cells.hpp"
#include "board/nine_set.hpp"

namespace sdk {

/// A text in both languages. %1, %2, ... stand for what is filled in, which may come in another
/// order in each language. French is written with plain spaces and apostrophes here.
struct Text {
  std::string_view french, english;
};

/// Speaks one language. Cells are "r4c2" in English, "L4C2" in French.
class Words {
 public:
  /// French for exactly "Fr", English for anything else.
  explicit Words(std::string_view language) : is_french_(language == "Fr") {}

  /// Fills in numbers, cells, units ("row 4", « la ligne 4 ») and texts that are already made.
  template <class... Parts>
  std::string say(const Text& text, const Parts&... parts) const {
    return filled(is_french_ ? text.french : text.english, {told(parts)...});
  }

  /// "a", "a and b", "a, b and c".
  std::string all_of(NineSet digits) const { return joined(names(digits), {" et ", " and "}); }
  std::string all_of(const CellSet& cells) const { return joined(names(cells), {" et ", " and "}); }
  /// "a", "a or b", "a, b or c".
  std::string one_of(NineSet digits) const { return joined(names(digits), {" ou ", " or "}); }
  std::string one_of(const CellSet& cells) const { return joined(names(cells), {" ou ", " or "}); }

  /// "a nor b", "a nor b nor c".
  std::string none_of(const CellSet& cells) const;

  /// The unit without its article: « ligne 4 ».
  std::string bare(Unit unit) const;

  /// "two", "three" or "four".
  std::string number(int n) const;
  /// "a 5", "an 8".
  std::string a(int digit) const;

  /// "a; b; c".
  std::string listed(const std::vector<std::string>& clauses) const;

  /// The whole text as it is to be read: in French no line breaks before ; : ! ? and inside « »,
  /// and apostrophes are curly.
  std::string typeset(std::string text) const;

 private:
  using Names = std::vector<std::string>;

  static std::string told(const std::string& text) { return text; }
  static std::string told(int number) { return std::to_string(number); }
  std::string told(Cell cell) const;
  std::string told(Unit unit) const;
  static std::string filled(std::string_view pattern, const Names& parts);
  static Names names(NineSet digits);
  Names names(const CellSet& cells) const;
  std::string joined(const Names& items, const Text& last) const;

  bool is_french_;
};

}  // namespace sdk
