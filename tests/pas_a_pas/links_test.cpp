// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The link tables, and the colours that follow them. What the techniques do with both is drawn in
// boards/.

#include <gtest/gtest.h>

#include <vector>

#include "pas_a_pas/driver.hpp"
#include "pas_a_pas/helpers.hpp"
#include "pas_a_pas/techniques/techniques.hpp"
#include "tests/pas_a_pas/hint_game.hpp"

namespace sdk::test {
namespace {

constexpr int digit = 5;

/// An empty grid on which 5 is a candidate of a few cells only, and every other digit of all.
class Links : public testing::Test {
 protected:
  Links() { solver.Candidats.reset(); }
  ~Links() override { solver = {}; }

  void keep_in(const std::vector<Cell>& cells) {
    CellSet kept;
    for (const Cell cell : cells) kept.insert(cell);
    for (const int cell : sdk::all_cells - kept) solver.Candidats.remove(cell_at(cell), digit);
    construit_liens();
  }

  /// Of 5, between two cells: "strong", "weak", "both" or "none".
  static std::string link(Cell a, Cell b) {
    const bool strong = solver.LienFort(digit, a.number(), b.number()) != 0;
    const bool weak = solver.LienFaible(digit, a.number(), b.number()) != 0;
    if (strong) return weak ? "both" : "strong";
    return weak ? "weak" : "none";
  }

  Game game;
};

TEST_F(Links, TheOnlyTwoPlacesOfARowAreStrong) {
  keep_in({{3, 2}, {3, 7}});
  EXPECT_EQ(link({3, 2}, {3, 7}), "strong");
  EXPECT_EQ(link({3, 7}, {3, 2}), "strong");
}

TEST_F(Links, TheOnlyTwoPlacesOfAColumnAreStrong) {
  keep_in({{1, 4}, {8, 4}});
  EXPECT_EQ(link({1, 4}, {8, 4}), "strong");
  EXPECT_EQ(link({8, 4}, {1, 4}), "strong");
}

TEST_F(Links, TheOnlyTwoPlacesOfABoxAreStrong) {
  keep_in({{7, 7}, {9, 8}});
  EXPECT_EQ(link({7, 7}, {9, 8}), "strong");
  EXPECT_EQ(link({9, 8}, {7, 7}), "strong");
}

TEST_F(Links, ThreePlacesOfAUnitAreWeak) {
  keep_in({{3, 1}, {3, 4}, {3, 9}});
  EXPECT_EQ(link({3, 1}, {3, 4}), "weak");
  EXPECT_EQ(link({3, 4}, {3, 9}), "weak");
  EXPECT_EQ(link({3, 9}, {3, 1}), "weak");
}

TEST_F(Links, OneUnitWithTwoPlacesIsEnough) {
  keep_in({{2, 1}, {2, 3}, {2, 8}});  // two in the box, three in the row
  EXPECT_EQ(link({2, 1}, {2, 3}), "strong");
  EXPECT_EQ(link({2, 3}, {2, 1}), "strong");
  EXPECT_EQ(link({2, 1}, {2, 8}), "weak");
  EXPECT_EQ(link({2, 8}, {2, 3}), "weak");
}

TEST_F(Links, AUnitWithTwoPlacesLinksNoThirdCell) {
  keep_in({{2, 1}, {2, 8}, {3, 2}, {3, 3}});  // two in row 2, three in the box of r2c1
  EXPECT_EQ(link({2, 1}, {2, 8}), "strong");
  EXPECT_EQ(link({2, 1}, {3, 2}), "weak");
  EXPECT_EQ(link({2, 8}, {3, 2}), "none");
}

TEST_F(Links, CellsOutOfSightAndACellWithItselfAreNotLinked) {
  keep_in({{1, 1}, {5, 5}});
  EXPECT_EQ(link({1, 1}, {5, 5}), "none");
  EXPECT_EQ(link({1, 1}, {1, 1}), "none");
}

TEST_F(Links, ACellWithoutTheDigitIsNotLinked) {
  keep_in({{3, 2}, {3, 7}});
  EXPECT_EQ(link({3, 2}, {3, 5}), "none");
  EXPECT_EQ(link({3, 5}, {3, 2}), "none");
  EXPECT_EQ(link({3, 5}, {3, 6}), "none");
}

TEST_F(Links, EachDigitHasItsOwnLinks) {
  keep_in({{3, 2}, {3, 7}});
  EXPECT_EQ(solver.LienFort(4, Cell{3, 2}.number(), Cell{3, 7}.number()), 0);
  EXPECT_EQ(solver.LienFaible(4, Cell{3, 2}.number(), Cell{3, 7}.number()), 1);
}

TEST_F(Links, AnotherCallForgetsTheLinksOfBefore) {
  keep_in({{3, 2}, {3, 7}, {3, 9}, {8, 7}});
  ASSERT_EQ(link({3, 7}, {3, 9}), "strong");  // in the box
  ASSERT_EQ(link({3, 2}, {3, 9}), "weak");
  solver.Candidats.remove({3, 9}, digit);
  construit_liens();
  EXPECT_EQ(link({3, 7}, {3, 9}), "none");
  EXPECT_EQ(link({3, 2}, {3, 9}), "none");
  EXPECT_EQ(link({3, 2}, {3, 7}), "strong");
}

/// The table that should come out, cell by cell.
std::string link_by_the_rule(int of, Cell a, Cell b) {
  const CandidateCube& cube = solver.Candidats;
  if (a == b || !se_voient(a.row, a.column, b.row, b.column)) return "none";
  if (!cube.has(a, of) || !cube.has(b, of)) return "none";
  for (const Unit unit : all_units) {
    int places = 0;
    for (int place = 1; place <= 9; ++place) places += cube.has(unit.cell(place), of);
    if (places == 2 && unit.contains(a) && unit.contains(b)) return "strong";
  }
  return "weak";
}

std::string link_in_the_tables(int of, int a, int b) {
  const int strong = solver.LienFort(of, a, b), weak = solver.LienFaible(of, a, b);
  if (strong + weak > 1) return "both";
  return strong == 1 ? "strong" : weak == 1 ? "weak" : "none";
}

/// Over all digits and ordered pairs of cells, how many entries differ from the rule.
int wrong_entries() {
  int wrong = 0;
  for (int of = 1; of <= 9; ++of)
    for (int a = 1; a <= 81; ++a)
      for (int b = 1; b <= 81; ++b)
        wrong += link_in_the_tables(of, a, b) != link_by_the_rule(of, cell_at(a), cell_at(b));
  return wrong;
}

TEST(LinksOfPuzzles, EveryEntryFollowsTheRuleBothWays) {
  HintGame game;
  for (const int number : {1, 17, 40}) {
    game.draw(library_puzzle(number));
    init_candidats();
    maj_candidats();
    construit_liens();
    EXPECT_EQ(wrong_entries(), 0) << "puzzle " << number;
  }
}

TEST(LinksOfPuzzles, NoCandidatesNoLinks) {
  HintGame game;
  game.draw(library_puzzle(1));
  init_candidats();
  maj_candidats();
  construit_liens();  // so that there is something to forget
  game.draw(complete_grid);
  init_candidats();
  maj_candidats();
  construit_liens();
  for (int of = 1; of <= 9; ++of)
    for (int cell = 1; cell <= 81; ++cell) {
      EXPECT_TRUE(solver.LienFort.of(of, cell).empty());
      EXPECT_TRUE(solver.LienFaible.of(of, cell).empty());
    }
}

// Colours

/// Such as "1: r1c1 | -1: r1c3".
std::string colours() {
  std::string first, second;
  for (int cell = 1; cell <= 81; ++cell) {
    const int colour = solver.Couleur(cell);
    if (colour != 0) (colour == 1 ? first : second) += " " + name_of(cell_at(cell));
  }
  return "1:" + first + " | -1:" + second;
}

const char* const no_colour = "1: | -1:";

TEST_F(Links, AChainIsColouredByTurnsAlongStrongLinksOnly) {
  keep_in({{1, 1}, {1, 6}, {8, 6}, {8, 2}, {8, 3}, {4, 4}});
  solver.Couleur.paint(Cell{1, 6}.number(), 1);
  colorie(Cell{1, 6}.number(), digit);
  EXPECT_EQ(colours(), "1: r1c6 | -1: r1c1 r8c6");
  efface_couleurs();
  EXPECT_EQ(colours(), no_colour);
}

TEST_F(Links, AColouredCellKeepsItsColour) {
  keep_in({{1, 1}, {1, 6}, {8, 6}});
  solver.Couleur.paint(Cell{1, 1}.number(), 1);
  solver.Couleur.paint(Cell{1, 6}.number(), 1);
  colorie(Cell{1, 1}.number(), digit);
  EXPECT_EQ(colours(), "1: r1c1 r1c6 | -1:");
}

TEST_F(Links, NoColoursAreLeftAfterATrap) {
  keep_in({{1, 1}, {1, 3}, {2, 2}});
  EXPECT_TRUE(coloriage());
  EXPECT_FALSE(solver.Candidats.has({2, 2}, digit));
  EXPECT_EQ(colours(), no_colour);
}

TEST_F(Links, NoColoursAreLeftAfterAWrap) {
  keep_in({{1, 3}, {1, 8}, {6, 8}, {6, 1}, {5, 3}, {8, 3}});
  EXPECT_TRUE(coloriage());
  EXPECT_FALSE(solver.Candidats.has({5, 3}, digit));
  EXPECT_EQ(colours(), no_colour);
}

TEST_F(Links, NoColoursAreLeftWhenNothingFollows) {
  keep_in({{1, 1}, {1, 6}});
  solver.Couleur.paint(Cell{7, 7}.number(), 1);  // what anybody may have left there
  EXPECT_FALSE(coloriage());
  EXPECT_EQ(colours(), no_colour);
}

TEST_F(Links, ColoursThatStoodBeforeDoNotCount) {
  keep_in({{1, 1}, {1, 6}, {8, 2}});
  solver.Couleur.paint(Cell{8, 1}.number(), 1);
  solver.Couleur.paint(Cell{9, 1}.number(), -1);
  EXPECT_FALSE(coloriage());
  EXPECT_TRUE(solver.Candidats.has({8, 2}, digit));
}

TEST_F(Links, TheTrapAndTheWrapTellWhatTheyDid) {
  keep_in({{1, 1}, {1, 3}, {2, 2}});
  EXPECT_FALSE(piege_couleurs(digit));
  EXPECT_FALSE(enveloppe_couleurs(digit));
  solver.Couleur.paint(Cell{1, 1}.number(), 1);
  solver.Couleur.paint(Cell{1, 3}.number(), -1);
  EXPECT_FALSE(enveloppe_couleurs(digit));
  EXPECT_TRUE(piege_couleurs(digit));
  EXPECT_FALSE(piege_couleurs(digit));
}

}  // namespace
}  // namespace sdk::test
