// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "pas_a_pas/techniques.hpp"

#include "game/globals.hpp"
#include "logic/techniques/finned_x_wing.hpp"
#include "logic/techniques/fish.hpp"
#include "pas_a_pas/driver.hpp"
#include "pas_a_pas/tables.hpp"
#include "pas_a_pas/view.hpp"

namespace sdk {

namespace {

void end_by(Ending ending) {
  if (ending == Ending::show_and_recompute && globals.ModePasAPas) marque_candidats();
  if (ending != Ending::none) maj_candidats();
}

/// The part of perform that does not depend on the technique.
void show_and_apply(const Deduction& deduction) {
  if (globals.ModePasAPas) draw(deduction.highlights);
  apply(deduction, solver.position);
}

void perform_as(const Technique& technique, const Deduction& deduction) {
  show_and_apply(deduction);
  end_by(technique.ending);
  if (technique.flag != SuggestionFlag::kept) solver.SuggestionTrouvee = true;
}

}  // namespace

void perform(const Deduction& deduction) { perform_as(*deduction.technique, deduction); }

void lower_flag(const Technique& technique) {
  if (technique.flag == SuggestionFlag::lowered_and_raised) solver.SuggestionTrouvee = false;
}

Bool16 find_and_perform(const Technique& technique) {
  lower_flag(technique);
  const auto found = find_by(technique, solver.position);
  if (found) perform(*found);
  return found.has_value();
}

Bool16 rectangles_uniques() { return find_and_perform(technique_named("unique_rectangle")); }

Bool16 rectangle_evitable() { return find_and_perform(technique_named("avoidable_rectangle")); }

// Fish

Bool16 espadon() { return find_and_perform(technique_named("swordfish")); }

Bool16 meduse() { return find_and_perform(technique_named("jellyfish")); }

namespace {

void finish(const Technique& technique, UnitKind base, NineSet rows, NineSet columns, int digit) {
  const Fish fish =
      base == UnitKind::row ? Fish{base, rows, columns, digit} : Fish{base, columns, rows, digit};
  perform_as(technique, deduce_from(solver.position, fish));
}

}  // namespace

void espadon_lignes(int digit, int row1, int column1, int row2, int column2, int row3,
                    int column3) {
  finish(technique_named("swordfish"), UnitKind::row, {row1, row2, row3},
         {column1, column2, column3}, digit);
}

void espadon_colonnes(int digit, int row1, int column1, int row2, int column2, int row3,
                      int column3) {
  finish(technique_named("swordfish"), UnitKind::column, {row1, row2, row3},
         {column1, column2, column3}, digit);
}

void meduse_lignes(int digit, int row1, int column1, int row2, int column2, int row3, int column3,
                   int row4, int column4) {
  finish(technique_named("jellyfish"), UnitKind::row, {row1, row2, row3, row4},
         {column1, column2, column3, column4}, digit);
}

void meduse_colonnes(int digit, int row1, int column1, int row2, int column2, int row3, int column3,
                     int row4, int column4) {
  finish(technique_named("jellyfish"), UnitKind::column, {row1, row2, row3, row4},
         {column1, column2, column3, column4}, digit);
}

// Wings

Bool16 aile_xy() { return find_and_perform(technique_named("xy_wing")); }

Bool16 aile_xyz() { return find_and_perform(technique_named("xyz_wing")); }

Bool16 aile_x_aileron() { return find_and_perform(technique_named("finned_x_wing")); }

namespace {

void finish(const FinnedWing& wing, Cell target) {
  perform_as(technique_named("finned_x_wing"), deduce_from(solver.position, wing, target));
}

}  // namespace

void aileron_lignes(int digit, int row1, int column1, int row2, int column2, int target_row,
                    int target_column) {
  finish({UnitKind::row, digit, {row1, row2}, {column1, column2}}, {target_row, target_column});
}

void aileron_colonnes(int digit, int row1, int column1, int row2, int column2, int target_row,
                      int target_column) {
  finish({UnitKind::column, digit, {column1, column2}, {row1, row2}}, {target_row, target_column});
}

// Links and colours

void construit_liens() { solver.position.links = links_of(Candidats); }

Bool16 aile_w() { return find_and_perform(technique_named("w_wing")); }

Bool16 coloriage() {
  efface_couleurs();
  return find_and_perform(technique_named("simple_colouring"));
}

void colorie(int cell, int digit) { spread_colours(Couleur, LienFort, cell, digit); }

namespace {

Bool16 show_and_apply(const std::optional<Deduction>& found) {
  if (found) show_and_apply(*found);
  return found.has_value();
}

}  // namespace

Bool16 piege_couleurs(int digit) {
  return show_and_apply(find_trap(solver.position, Couleur, digit));
}

Bool16 enveloppe_couleurs(int digit) {
  return show_and_apply(find_wrap(solver.position, Couleur, digit));
}

void affiche_couleurs() { draw(colour_marks(solver.position, Couleur)); }

void efface_couleurs() { Couleur = {}; }

}  // namespace sdk
