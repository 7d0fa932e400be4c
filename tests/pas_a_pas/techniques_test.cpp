// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// The techniques' own procedures: each does what its finder finds.

#include "pas_a_pas/techniques.hpp"

#include <gtest/gtest.h>

#include "board/grid_text.hpp"
#include "pas_a_pas/driver.hpp"
#include "pas_a_pas/view.hpp"
#include "tests/pas_a_pas/hint_game.hpp"

namespace sdk::test {
namespace {

struct Procedure {
  std::string_view technique;
  Bool16 (*procedure)();
  const char* grid;  ///< on which a hint comes to use the technique
};

constexpr Procedure procedures[] = {
    {"unique_rectangle", rectangles_uniques,
     "8..92.13521578396439.51.27858.491.23.2983541.4312678591.834259..43159.82952678341"},
    {"swordfish", espadon,
     "816...47539578462147216539876385..141...375865..64173.6314.8.57957.1684.2..57.16."},
    {"jellyfish", meduse,
     "91486.2.7.7.129.466.274.819721.9468.385276194469.18.7229.4.176.1.69.7428.476.29.1"},
    {"xy_wing", aile_xy,
     "..5..47324.37.2.1572..53.64257691348184375296639248571...536427346827159572419683"},
    {"xyz_wing", aile_xyz,
     "936874125278315964415269837..758149..9.4367.....7926..759643281..31275491..958376"},
    {"finned_x_wing", aile_x_aileron,
     "854..927...9..5148.1.4.859.98256431716..924854.58..629796243851541986732328.5.964"},
    {"w_wing", aile_w,
     "256913478137.5.9624986..531642591783915...624783..6195.74.65.19.691...57521789346"},
    {"simple_colouring", coloriage,
     "4387.9.1.16524837929713..84346.719..852493761719..2.43.8132.497.2498713.973.14..."},
};

/// The position in which a hint on the grid comes to use the technique.
Position position_for(const Procedure& procedure) {
  Run run(puzzle_of(procedure.grid));
  while (!run.is_over()) {
    const Event& event = run.next();
    if (event.deduction.technique && event.deduction.technique->id == procedure.technique)
      return event.before;
  }
  return {};
}

class Procedures : public testing::Test {
 protected:
  ~Procedures() override { solver = {}; }

  HintGame game;
};

TEST_F(Procedures, ApplyWhatTheirFinderFinds) {
  for (const auto& procedure : procedures) {
    solver.position = position_for(procedure);
    const auto found = find_by(technique_at(row_with(procedure.technique)), solver.position);
    ASSERT_TRUE(found) << procedure.technique;
    Position after = solver.position;
    apply(*found, after);
    if (found->technique->ending != Ending::none) recompute(after);
    EXPECT_TRUE(procedure.procedure()) << procedure.technique;
    EXPECT_EQ(solver.position, after) << procedure.technique;
  }
}

TEST_F(Procedures, ReturnFalseAndChangeNothingWhereThereIsNothing) {
  for (const auto& procedure : procedures) {
    solver.position = open_position({});
    const Position before = solver.position;
    EXPECT_FALSE(procedure.procedure()) << procedure.technique;
    EXPECT_EQ(solver.position, before) << procedure.technique;
  }
}

TEST_F(Procedures, TheAvoidableRectangleReadsThePairs) {
  Candidats = open_cube();
  const auto solve = [](Cell cell, int value) {
    Candidats.set_value(cell, value);
    Paires(cell.row, cell.column) = {3, 8};
  };
  solve({2, 1}, 3);
  solve({2, 8}, 8);
  solve({5, 1}, 8);
  EXPECT_TRUE(rectangle_evitable());
  EXPECT_FALSE(Candidats.has({5, 8}, 3));
}

// The flag

const char* const naked_triple_grid =
    "139657248...984361684321579875492613493716852216538794....69..5....73..6.6.845..7";
const char* const finned_wing_grid =
    "854..927...9..5148.1.4.859.98256431716..924854.58..629796243851541986732328.5.964";

TEST_F(Procedures, ATripleRaisesTheFlagWhenItFiresAndElseKeepsIt) {
  solver.position = position_for({"naked_triple", nullptr, naked_triple_grid});
  ASSERT_FALSE(solver.SuggestionTrouvee);
  EXPECT_TRUE(find_and_perform(technique_named("naked_triple")));
  EXPECT_TRUE(solver.SuggestionTrouvee);
  solver.position = open_position({});
  EXPECT_FALSE(find_and_perform(technique_named("naked_triple")));
  EXPECT_TRUE(solver.SuggestionTrouvee);
}

TEST_F(Procedures, AQuadThatIsAskedLowersTheFlag) {
  for (const Technique* quad : {&technique_named("naked_quad"), &technique_named("hidden_quad")}) {
    solver.position = open_position({});
    solver.SuggestionTrouvee = true;
    EXPECT_FALSE(find_and_perform(*quad));
    EXPECT_FALSE(solver.SuggestionTrouvee) << quad->name;
  }
}

/// The flag after a run that redraws nothing, if it was up before.
bool flag_after_run(HintGame& game, std::string_view grid) {
  game.draw(grid);
  globals.ModePasAPas = false;
  solver.SuggestionTrouvee = true;
  suggestion();
  return solver.SuggestionTrouvee;
}

TEST_F(Procedures, ARunLowersTheFlagWhenItComesToTheQuads) {
  EXPECT_FALSE(flag_after_run(game, finned_wing_grid));
  const std::string one_to_go = "." + joined(complete_grid).substr(1);
  EXPECT_TRUE(flag_after_run(game, one_to_go));
}

// What finishes a pattern

/// A 5 stands nowhere but on these lines of that kind.
void keep_five_on(UnitKind kind, NineSet lines, NineSet places) {
  Candidats = open_cube();
  for (const int line : lines) keep_places({kind, line}, 5, places);
}

/// The places where a 5 is left on a line.
NineSet fives(UnitKind kind, int line) { return Candidats.places({kind, line}, 5); }

TEST_F(Procedures, ASwordfishOnRowsClearsItsColumnsAndOneOnColumnsItsRows) {
  globals.ModePasAPas = true;
  keep_five_on(UnitKind::row, {1, 4, 7}, {2, 5, 8});
  espadon_lignes(5, 1, 2, 4, 5, 7, 8);
  for (const int column : {2, 5, 8}) EXPECT_EQ(fives(UnitKind::column, column), (NineSet{1, 4, 7}));
  EXPECT_EQ(game.marked(4), "r1c2 r1c5 r1c8 r4c2 r4c5 r4c8 r7c2 r7c5 r7c8");
  keep_five_on(UnitKind::column, {1, 4, 7}, {2, 5, 8});
  espadon_colonnes(5, 2, 1, 5, 4, 8, 7);
  for (const int row : {2, 5, 8}) EXPECT_EQ(fives(UnitKind::row, row), (NineSet{1, 4, 7}));
}

TEST_F(Procedures, AJellyfishOnRowsClearsItsColumnsAndOneOnColumnsItsRows) {
  keep_five_on(UnitKind::row, {1, 3, 5, 7}, {2, 4, 6, 8});
  meduse_lignes(5, 1, 2, 3, 4, 5, 6, 7, 8);
  for (const int column : {2, 4, 6, 8})
    EXPECT_EQ(fives(UnitKind::column, column), (NineSet{1, 3, 5, 7}));
  EXPECT_EQ(Candidats.count({9, 2}), 8) << "the candidates are recomputed";
  keep_five_on(UnitKind::column, {1, 3, 5, 7}, {2, 4, 6, 8});
  meduse_colonnes(5, 2, 1, 4, 3, 6, 5, 8, 7);
  for (const int row : {2, 4, 6, 8}) EXPECT_EQ(fives(UnitKind::row, row), (NineSet{1, 3, 5, 7}));
}

TEST_F(Procedures, AFinnedWingClearsItsTargetAndMarksItsFins) {
  globals.ModePasAPas = true;
  keep_five_on(UnitKind::row, {1, 5}, {2, 8, 9});
  aileron_lignes(5, 1, 2, 5, 8, 6, 8);
  EXPECT_FALSE(Candidats.has({6, 8}, 5));
  EXPECT_EQ(game.marked(4), "r1c2 r1c8 r5c2 r5c8");
  EXPECT_EQ(game.marked(3), "r6c8");
  EXPECT_EQ(game.marked(6), "r1c9 r5c9");
  keep_five_on(UnitKind::column, {1, 5}, {2, 8, 9});
  aileron_colonnes(5, 2, 1, 8, 5, 8, 6);
  EXPECT_FALSE(Candidats.has({8, 6}, 5));
  EXPECT_TRUE(Candidats.has({7, 6}, 5));
}

// Colours

/// Such as "1: r1c1 | -1: r1c3".
std::string colours() {
  std::string first, second;
  for (int cell = 1; cell <= 81; ++cell) {
    const int colour = Couleur(cell);
    if (colour != 0) (colour == 1 ? first : second) += " " + name_of(cell_at(cell));
  }
  return "1:" + first + " | -1:" + second;
}

const char* const no_colour = "1: | -1:";

/// 5 is a candidate of a few cells only, and every other digit of all.
class ColourProcedures : public Procedures {
 protected:
  void keep_in(const std::vector<Cell>& cells) {
    Candidats = open_cube();
    CellSet kept;
    for (const Cell cell : cells) kept.insert(cell);
    for (const int cell : sdk::all_cells - kept) Candidats.remove(cell_at(cell), 5);
    construit_liens();
  }
};

TEST_F(ColourProcedures, TheTablesOfLinksAreRebuilt) {
  keep_in({{3, 2}, {3, 7}, {3, 9}, {8, 7}});
  EXPECT_EQ(LienFort(5, Cell{3, 7}.number(), Cell{3, 9}.number()), 1);  // in the box
  EXPECT_EQ(LienFaible(5, Cell{3, 2}.number(), Cell{3, 9}.number()), 1);
  Candidats.remove({3, 9}, 5);
  construit_liens();
  EXPECT_EQ(LienFort(5, Cell{3, 2}.number(), Cell{3, 7}.number()), 1);
  EXPECT_EQ(LienFort(5, Cell{3, 7}.number(), Cell{3, 9}.number()), 0);
}

TEST_F(ColourProcedures, AChainIsColouredByTurns) {
  keep_in({{1, 1}, {1, 6}, {8, 6}, {8, 2}, {8, 3}, {4, 4}});
  Couleur.paint(Cell{1, 6}.number(), 1);
  colorie(Cell{1, 6}.number(), 5);
  EXPECT_EQ(colours(), "1: r1c6 | -1: r1c1 r8c6");
  efface_couleurs();
  EXPECT_EQ(colours(), no_colour);
}

TEST_F(ColourProcedures, NoColoursAreLeftAfterATrap) {
  keep_in({{1, 1}, {1, 3}, {2, 2}});
  EXPECT_TRUE(coloriage());
  EXPECT_FALSE(Candidats.has({2, 2}, 5));
  EXPECT_EQ(colours(), no_colour);
}

TEST_F(ColourProcedures, NoColoursAreLeftAfterAWrap) {
  keep_in({{1, 3}, {1, 8}, {6, 8}, {6, 1}, {5, 3}, {8, 3}});
  EXPECT_TRUE(coloriage());
  EXPECT_FALSE(Candidats.has({5, 3}, 5));
  EXPECT_EQ(colours(), no_colour);
}

TEST_F(ColourProcedures, NoColoursAreLeftWhenNothingFollows) {
  keep_in({{1, 1}, {1, 6}});
  Couleur.paint(Cell{7, 7}.number(), 1);  // what anybody may have left there
  EXPECT_FALSE(coloriage());
  EXPECT_EQ(colours(), no_colour);
}

TEST_F(ColourProcedures, ColoursThatStoodBeforeDoNotCount) {
  keep_in({{1, 1}, {1, 6}, {8, 2}});
  Couleur.paint(Cell{8, 1}.number(), 1);
  Couleur.paint(Cell{9, 1}.number(), -1);
  EXPECT_FALSE(coloriage());
  EXPECT_TRUE(Candidats.has({8, 2}, 5));
}

TEST_F(ColourProcedures, TheTrapAndTheWrapTellWhatTheyDid) {
  keep_in({{1, 1}, {1, 3}, {2, 2}});
  EXPECT_FALSE(piege_couleurs(5));
  EXPECT_FALSE(enveloppe_couleurs(5));
  Couleur.paint(Cell{1, 1}.number(), 1);
  Couleur.paint(Cell{1, 3}.number(), -1);
  EXPECT_FALSE(enveloppe_couleurs(5));
  EXPECT_TRUE(piege_couleurs(5));
  EXPECT_FALSE(piege_couleurs(5));
}

TEST_F(ColourProcedures, TheWrapTellsThatItTookTheDigitAway) {
  keep_in({{1, 1}, {1, 3}, {2, 2}});
  Couleur.paint(Cell{1, 1}.number(), 1);
  Couleur.paint(Cell{2, 2}.number(), 1);
  EXPECT_TRUE(enveloppe_couleurs(5));
  EXPECT_FALSE(Candidats.has({1, 1}, 5));
  EXPECT_FALSE(Candidats.has({2, 2}, 5));
  EXPECT_TRUE(Candidats.has({1, 3}, 5));
}

TEST_F(ColourProcedures, EveryEmptyCellIsMarkedByItsColour) {
  keep_in({{1, 1}, {1, 3}});
  marque_case(5, 5, 3);
  Couleur.paint(Cell{1, 1}.number(), 1);
  Couleur.paint(Cell{1, 3}.number(), -1);
  affiche_couleurs();
  EXPECT_EQ(game.marked(4), "r1c1");
  EXPECT_EQ(game.marked(6), "r1c3");
  EXPECT_EQ(game.marked(3), "") << "uncoloured cells lose their mark";
}

}  // namespace
}  // namespace sdk::test
