// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Reads back what a sentence claims, word for word, in either language.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "logic/deduction.hpp"

namespace sdk::test {

/// "r4c4 and r5c5 see a 5 in r1c4 or r7c6".
struct Sight {
  CellSet who, holders;
  int digit;
};

/// "row 1 has 2, 3 and 7".
struct UnitHas {
  Unit unit;
  NineSet digits;
};

/// "step 2 removed the 6", without cells; "step 1 took it from r9c4", without digits.
struct StepTook {
  int number;
  NineSet digits;
  CellSet cells;
};

/// "if it is 6, r5c2 is 2", without a place; "In r4c1 it makes r1c1 a 5", without a cause.
struct Consequence {
  int cause;
  CellSet place, cells;
  int digit;
};

struct Colours {
  CellSet first, second;
};

/// "if r2c3 is 5, so is r6c8".
struct Chained {
  CellSet cause, effect;
};

/// "columns 6 and 9 have their 4 in row 2 or 5".
struct WingOf {
  NineSet covers;
  int digit;
  NineSet bases;
};

/// "If r5c4 is not 4, ...; if it is, r6c6 sees it".
struct FinsOr {
  CellSet fins, target;
  NineSet digits;  ///< all that it is said to be
};

/// "So r5c8 is neither 3 nor 8", "So neither r1c2 nor r7c9 is 3"; without cells "So neither is 3".
struct Refusal {
  CellSet cells;
  NineSet digits;
};

/// "If neither r4c5 nor r7c4 were 5", "If none of r4c5, r7c4 and r7c5 were 5".
struct Denial {
  CellSet cells;
  int digit;
};

struct Claims {
  CellSet named;  ///< every cell of the sentence
  std::vector<Unit> named_units;
  NineSet named_digits;  ///< that are no part of a cell's, a line's or a step's name

  std::vector<CellHolds> cells;
  std::vector<DigitInUnit> units;
  std::vector<Sight> sights;  ///< of cells of which one will hold the digit
  std::vector<Sight> values;  ///< of cells that have it
  std::vector<UnitHas> filled;
  std::vector<StepTook> steps;
  std::vector<Consequence> consequences;
  std::vector<Colours> colours;
  CellSet clash;  ///< two of one colour
  std::vector<Chained> chained;
  std::vector<WingOf> wings;
  std::vector<FinsOr> fins;
  NineSet covers;  ///< lines that have their digit on others
  CellSet corner;  ///< that would make a rectangle
  std::vector<Denial> denials;
  std::vector<Refusal> refusals;
  NineSet swapped;    ///< that could be swapped in the four corners
  NineSet ruled_out;  ///< that the corners are only supposed not to hold
  int rests_on = 0;   ///< the step that is not certain
  bool is_uncertain_here = false;
  std::array<CellSet, 10> removed{};  ///< by digit
};

/// What the sentence says in the language, "En" or "Fr".
Claims read_sentence(const std::string& sentence, std::string_view language);

}  // namespace sdk::test
