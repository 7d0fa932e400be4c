// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// Why each technique is right, in French and English.
#pragma once

#include <array>
#include <string_view>

#include "logic/techniques.hpp"

namespace sdk {

/// A text in both languages, with places to fill in:
///   %d  the pattern's digits        %x  the removed digits     %y  the others of the pattern
///   %u  the unit                    %v  the other unit
///   %b  the kind of the unit's lines, in the plural            %c  the kind of those across
///   %p  the pattern's cells         %o  the roof corners       %f  the fins
///   %i  the pivot                   %w  the pincers            %e  the ends of the link
///   %1  cells of the first colour   %2  those of the second    %r  what is removed where
struct Text {
  std::string_view french, english;
};

struct Sentence {
  std::string_view technique;  ///< its id
  Rule rule;
  Text text;
};

inline constexpr std::array sentences{
    Sentence{"naked_single",
             Rule::only,
             {"Singleton nu : en %p il ne reste que le %d.",
              "Naked single: the %d is all that is left in %p."}},
    Sentence{"hidden_single",
             Rule::only,
             {"Singleton caché : dans %u, le %d n'a de place qu'en %p.",
              "Hidden single: in %u, the %d can only go in %p."}},
    Sentence{"pointing_rows",
             Rule::only,
             {"Pointage : dans %u, le %d n'a de place qu'en %p, donc dans %v ; il ne peut être "
              "ailleurs dans %v. Retiré : %r.",
              "Pointing: in %u, the %d can only go in %p, so within %v; it cannot be elsewhere in "
              "%v. Removed: %r."}},
    Sentence{"pointing_columns",
             Rule::only,
             {"Pointage : dans %u, le %d n'a de place qu'en %p, donc dans %v ; il ne peut être "
              "ailleurs dans %v. Retiré : %r.",
              "Pointing: in %u, the %d can only go in %p, so within %v; it cannot be elsewhere in "
              "%v. Removed: %r."}},
    Sentence{"box_line_rows",
             Rule::only,
             {"Réduction ligne/région : dans %u, le %d n'a de place qu'en %p, donc dans %v ; il ne "
              "peut être ailleurs dans %v. Retiré : %r.",
              "Box/line reduction: in %u, the %d can only go in %p, so within %v; it cannot be "
              "elsewhere in %v. Removed: %r."}},
    Sentence{"box_line_columns",
             Rule::only,
             {"Réduction colonne/région : dans %u, le %d n'a de place qu'en %p, donc dans %v ; il "
              "ne peut être ailleurs dans %v. Retiré : %r.",
              "Box/line reduction: in %u, the %d can only go in %p, so within %v; it cannot be "
              "elsewhere in %v. Removed: %r."}},
    Sentence{"naked_pair",
             Rule::only,
             {"Paire nue : dans %u, %p n'ont que %d et se les partagent ; aucune autre case de %u "
              "ne peut les avoir. Retiré : %r.",
              "Naked pair: in %u, %p hold only %d and share them out; no other cell of %u can hold "
              "them. Removed: %r."}},
    Sentence{"hidden_pair",
             Rule::only,
             {"Paire cachée : dans %u, les chiffres %d n'ont de place qu'en %p ; aucun autre "
              "chiffre ne peut y être. Retiré : %r.",
              "Hidden pair: in %u, the digits %d can only go in %p; no other digit can be there. "
              "Removed: %r."}},
    Sentence{"naked_triple",
             Rule::only,
             {"Triplet nu : dans %u, %p n'ont ensemble que %d et se les partagent ; aucune autre "
              "case de %u ne peut les avoir. Retiré : %r.",
              "Naked triple: in %u, %p hold only %d between them and share them out; no other cell "
              "of %u can hold them. Removed: %r."}},
    Sentence{"hidden_triple",
             Rule::only,
             {"Triplet caché : dans %u, les chiffres %d n'ont de place qu'en %p ; aucun autre "
              "chiffre ne peut y être. Retiré : %r.",
              "Hidden triple: in %u, the digits %d can only go in %p; no other digit can be there. "
              "Removed: %r."}},
    Sentence{
        "unique_rectangle",
        Rule::odd_corner,
        {"Rectangle unique : les coins de %p autres que %o n'ont que %d ; avec l'un des deux aussi "
         "en %o, on pourrait les échanger et la grille aurait deux solutions. Retiré : %r.",
         "Unique rectangle: of the corners %p all but %o hold only %d; with one of these in %o "
         "too, "
         "they could be swapped and the puzzle would have two solutions. Removed: %r."}},
    Sentence{"unique_rectangle",
             Rule::two_share_a_digit,
             {"Rectangle unique : sans le %x en %o, les coins %p n'auraient que %d, qu'on pourrait "
              "échanger ; l'un de ces deux coins est donc %x. Retiré : %r.",
              "Unique rectangle: without the %x in %o, the corners %p would hold only %d, which "
              "could be swapped; so one of these two corners is %x. Removed: %r."}},
    Sentence{"unique_rectangle",
             Rule::bound_to_roof,
             {"Rectangle unique : dans %u, le %y n'a de place qu'en %o ; avec le %x dans l'autre "
              "case, %d pourraient s'échanger aux coins %p. Retiré : %r.",
              "Unique rectangle: in %u, the %y can only go in %o; with the %x in the other one, %d "
              "could be swapped in the corners %p. Removed: %r."}},
    Sentence{"unique_rectangle",
             Rule::three_share_a_digit,
             {"Rectangle unique : sans le %x en %o, les coins %p n'auraient que %d, qu'on pourrait "
              "échanger ; l'un de ces trois coins est donc %x. Retiré : %r.",
              "Unique rectangle: without the %x in %o, the corners %p would hold only %d, which "
              "could be swapped; so one of these three corners is %x. Removed: %r."}},
    Sentence{
        "unique_rectangle",
        Rule::bound_to_diagonal,
        {"Rectangle unique : dans leurs lignes et colonnes, le %x n'a de place qu'aux coins %p ; "
         "en "
         "%o, il laisserait le %y aux deux autres, et %d pourraient s'échanger. Retiré : %r.",
         "Unique rectangle: in their rows and columns, the %x can only go in the corners %p; in %o "
         "it would leave the %y to the two others, and %d could be swapped. Removed: %r."}},
    Sentence{"avoidable_rectangle",
             Rule::only,
             {"Rectangle évitable : %p étaient des choix entre %d ; avec le %x en %o, on pourrait "
              "les échanger et la grille aurait deux solutions. Retiré : %r.",
              "Avoidable rectangle: %p were choices between %d; with the %x in %o they could be "
              "swapped and the puzzle would have two solutions. Removed: %r."}},
    Sentence{
        "naked_quad",
        Rule::only,
        {"Quadruplet nu : dans %u, %p n'ont ensemble que %d et se les partagent ; aucune autre "
         "case de %u ne peut les avoir. Retiré : %r.",
         "Naked quad: in %u, %p hold only %d between them and share them out; no other cell of "
         "%u can hold them. Removed: %r."}},
    Sentence{
        "x_wing",
        Rule::only,
        {"Aile X (X-wing) : dans %u et dans %v, le %d n'a de place qu'en %p ; il prend deux "
         "coins opposés et n'a donc pas d'autre place dans leurs %c. Retiré : %r.",
         "X-wing: in %u and %v, the %d can only go in %p; it takes two opposite corners, so it "
         "has no other place in their %c. Removed: %r."}},
    Sentence{"hidden_quad",
             Rule::only,
             {"Quadruplet caché : dans %u, les chiffres %d n'ont de place qu'en %p ; aucun autre "
              "chiffre ne peut y être. Retiré : %r.",
              "Hidden quad: in %u, the digits %d can only go in %p; no other digit can be there. "
              "Removed: %r."}},
    Sentence{
        "swordfish",
        Rule::only,
        {"Espadon (swordfish) : dans trois %b, le %d n'a de place qu'en %p, toutes dans trois %c ; "
         "chacune de celles-ci a là son %d, qui n'y a donc pas d'autre place. Retiré : %r.",
         "Swordfish: in three %b, the %d can only go in %p, all within three %c; each of these has "
         "its %d there, so it has no other place in them. Removed: %r."}},
    Sentence{
        "jellyfish",
        Rule::only,
        {"Méduse (jellyfish) : dans quatre %b, le %d n'a de place qu'en %p, toutes dans quatre %c "
         "; "
         "chacune de celles-ci a là son %d, qui n'y a donc pas d'autre place. Retiré : %r.",
         "Jellyfish: in four %b, the %d can only go in %p, all within four %c; each of these has "
         "its %d there, so it has no other place in them. Removed: %r."}},
    Sentence{"xy_wing",
             Rule::only,
             {"Aile XY (XY-wing) : que %i soit l'un ou l'autre de %d, une des pinces %w est %x ; "
              "aucune case qui voit les deux ne peut l'être. Retiré : %r.",
              "XY-wing: whichever of %d stands in %i, one of the pincers %w is %x; no cell that "
              "sees both can hold it. Removed: %r."}},
    Sentence{
        "xyz_wing",
        Rule::only,
        {"Aile XYZ (XYZ-wing) : quel que soit le chiffre de %i parmi %d, cette case ou une des "
         "pinces %w est %x ; aucune case qui les voit toutes ne peut l'être. Retiré : %r.",
         "XYZ-wing: whichever of %d stands in %i, that cell or one of the pincers %w is %x; no "
         "cell that sees all of them can hold it. Removed: %r."}},
    Sentence{"finned_x_wing",
             Rule::with_fin,
             {"Aile X à aileron (finned X-wing) : dans %u et dans %v, le %d prend deux coins "
              "opposés parmi %p, ou bien il est en %f ; dans les deux cas, il n'est pas dans une "
              "case de leurs %c qui est dans la région de l'aileron. Retiré : %r.",
              "Finned X-wing: in %u and %v, the %d takes two opposite corners of %p, or else it is "
              "in %f; either way it is not in a cell of their %c in the fin's box. Removed: %r."}},
    Sentence{
        "finned_x_wing",
        Rule::without_fin,
        {"Aile X à aileron (finned X-wing), sans aileron : dans %u et dans %v, le %d n'a de "
         "place qu'aux coins %p, donc pas d'autre dans leurs %c. Retiré : %r.",
         "Finned X-wing, without a fin: in %u and %v, the %d can only go in the corners %p, so "
         "it has no other place in their %c. Removed: %r."}},
    Sentence{"w_wing",
             Rule::only,
             {"Aile W (W-wing) : %p n'ont que %d ; le %y est dans l'une de %e, qui voient chacune "
              "une case de cette paire, donc l'autre case de la paire est %x. Retiré : %r.",
              "W-wing: %p hold only %d; the %y stands in one of %e, each of which sees one cell of "
              "that pair, so the pair's other cell is %x. Removed: %r."}},
    Sentence{
        "simple_colouring",
        Rule::trap,
        {"Coloriage simple : deux couleurs, %1 contre %2 ; le %d est dans toutes les cases de "
         "l'une "
         "et dans aucune de l'autre, donc une case qui voit les deux ne peut l'avoir. Retiré : %r.",
         "Simple colouring: two colours, %1 against %2; the %d stands in every cell of one and in "
         "none of the other, so a cell that sees both cannot hold it. Removed: %r."}},
    Sentence{
        "simple_colouring",
        Rule::wrap,
        {"Coloriage simple : deux couleurs, %1 contre %2 ; le %d est dans toutes les cases de "
         "l'une et dans aucune de l'autre, et deux cases d'une couleur se voient : elle est "
         "fausse. Retiré : %r.",
         "Simple colouring: two colours, %1 against %2; the %d stands in every cell of one and "
         "in none of the other, and two cells of one colour see each other: that one is false. "
         "Removed: %r."}},
};

/// What is said of the ends of a run and of a dead cell.
inline constexpr Text completed{"La grille est terminée.", "The puzzle is complete."};
inline constexpr Text dead{
    "Aucun chiffre n'est plus possible en %p : la grille ne peut être terminée.",
    "No digit is possible in %p any more: the puzzle cannot be completed."};
inline constexpr Text exhausted{"Aucune technique ne trouve plus rien.",
                                "No technique finds anything more."};

}  // namespace sdk
