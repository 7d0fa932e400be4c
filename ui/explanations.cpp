// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/explanations.hpp"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <vector>

namespace sdk {

namespace {

/// In the texts:
///   %d  the pattern's digits        %x  the removed digits     %y  the others of the pattern
///   %u  the unit                    %v  the other unit
///   %b  the kind of the unit's lines, in the plural            %c  the kind of those across
///   %p  the pattern's cells         %o  the roof corners       %f  the fins
///   %i  the pivot                   %w  the pincers            %e  the ends of the link
///   %1  cells of the first colour   %2  those of the second    %r  what is removed where
struct Sentence {
  int place, variant;
  std::string_view french, english;
};

constexpr std::array sentences{
    Sentence{0, 1, "Singleton nu : en %p il ne reste que le %d.",
             "Naked single: the %d is all that is left in %p."},
    Sentence{0, 2, "Singleton caché : dans %u, le %d n'a de place qu'en %p.",
             "Hidden single: in %u, the %d can only go in %p."},
    Sentence{1, 0,
             "Pointage : dans %u, le %d n'a de place qu'en %p, donc dans %v ; il ne peut être "
             "ailleurs dans %v. Retiré : %r.",
             "Pointing: in %u, the %d can only go in %p, so within %v; it cannot be elsewhere in "
             "%v. Removed: %r."},
    Sentence{2, 0,
             "Pointage : dans %u, le %d n'a de place qu'en %p, donc dans %v ; il ne peut être "
             "ailleurs dans %v. Retiré : %r.",
             "Pointing: in %u, the %d can only go in %p, so within %v; it cannot be elsewhere in "
             "%v. Removed: %r."},
    Sentence{3, 0,
             "Réduction ligne/région : dans %u, le %d n'a de place qu'en %p, donc dans %v ; il ne "
             "peut être ailleurs dans %v. Retiré : %r.",
             "Box/line reduction: in %u, the %d can only go in %p, so within %v; it cannot be "
             "elsewhere in %v. Removed: %r."},
    Sentence{4, 0,
             "Réduction colonne/région : dans %u, le %d n'a de place qu'en %p, donc dans %v ; il "
             "ne peut être ailleurs dans %v. Retiré : %r.",
             "Box/line reduction: in %u, the %d can only go in %p, so within %v; it cannot be "
             "elsewhere in %v. Removed: %r."},
    Sentence{5, 0,
             "Paire nue : dans %u, %p n'ont que %d et se les partagent ; aucune autre case de %u "
             "ne peut les avoir. Retiré : %r.",
             "Naked pair: in %u, %p hold only %d and share them out; no other cell of %u can hold "
             "them. Removed: %r."},
    Sentence{6, 0,
             "Paire cachée : dans %u, les chiffres %d n'ont de place qu'en %p ; aucun autre "
             "chiffre ne peut y être. Retiré : %r.",
             "Hidden pair: in %u, the digits %d can only go in %p; no other digit can be there. "
             "Removed: %r."},
    Sentence{7, 0,
             "Triplet nu : dans %u, %p n'ont ensemble que %d et se les partagent ; aucune autre "
             "case de %u ne peut les avoir. Retiré : %r.",
             "Naked triple: in %u, %p hold only %d between them and share them out; no other cell "
             "of %u can hold them. Removed: %r."},
    Sentence{8, 0,
             "Triplet caché : dans %u, les chiffres %d n'ont de place qu'en %p ; aucun autre "
             "chiffre ne peut y être. Retiré : %r.",
             "Hidden triple: in %u, the digits %d can only go in %p; no other digit can be there. "
             "Removed: %r."},
    Sentence{
        9, 1,
        "Rectangle unique : les coins de %p autres que %o n'ont que %d ; avec l'un des deux aussi "
        "en %o, on pourrait les échanger et la grille aurait deux solutions. Retiré : %r.",
        "Unique rectangle: of the corners %p all but %o hold only %d; with one of these in %o too, "
        "they could be swapped and the puzzle would have two solutions. Removed: %r."},
    Sentence{9, 2,
             "Rectangle unique : sans le %x en %o, les coins %p n'auraient que %d, qu'on pourrait "
             "échanger ; l'un de ces deux coins est donc %x. Retiré : %r.",
             "Unique rectangle: without the %x in %o, the corners %p would hold only %d, which "
             "could be swapped; so one of these two corners is %x. Removed: %r."},
    Sentence{9, 3,
             "Rectangle unique : dans %u, le %y n'a de place qu'en %o ; avec le %x dans l'autre "
             "case, %d pourraient s'échanger aux coins %p. Retiré : %r.",
             "Unique rectangle: in %u, the %y can only go in %o; with the %x in the other one, %d "
             "could be swapped in the corners %p. Removed: %r."},
    Sentence{9, 4,
             "Rectangle unique : sans le %x en %o, les coins %p n'auraient que %d, qu'on pourrait "
             "échanger ; l'un de ces trois coins est donc %x. Retiré : %r.",
             "Unique rectangle: without the %x in %o, the corners %p would hold only %d, which "
             "could be swapped; so one of these three corners is %x. Removed: %r."},
    Sentence{
        9, 5,
        "Rectangle unique : dans leurs lignes et colonnes, le %x n'a de place qu'aux coins %p ; en "
        "%o, il laisserait le %y aux deux autres, et %d pourraient s'échanger. Retiré : %r.",
        "Unique rectangle: in their rows and columns, the %x can only go in the corners %p; in %o "
        "it would leave the %y to the two others, and %d could be swapped. Removed: %r."},
    Sentence{10, 0,
             "Rectangle évitable : %p étaient des choix entre %d ; avec le %x en %o, on pourrait "
             "les échanger et la grille aurait deux solutions. Retiré : %r.",
             "Avoidable rectangle: %p were choices between %d; with the %x in %o they could be "
             "swapped and the puzzle would have two solutions. Removed: %r."},
    Sentence{11, 0,
             "Quadruplet nu : dans %u, %p n'ont ensemble que %d et se les partagent ; aucune autre "
             "case de %u ne peut les avoir. Retiré : %r.",
             "Naked quad: in %u, %p hold only %d between them and share them out; no other cell of "
             "%u can hold them. Removed: %r."},
    Sentence{12, 0,
             "Aile X (X-wing) : dans %u et dans %v, le %d n'a de place qu'en %p ; il prend deux "
             "coins opposés et n'a donc pas d'autre place dans leurs %c. Retiré : %r.",
             "X-wing: in %u and %v, the %d can only go in %p; it takes two opposite corners, so it "
             "has no other place in their %c. Removed: %r."},
    Sentence{13, 0,
             "Quadruplet caché : dans %u, les chiffres %d n'ont de place qu'en %p ; aucun autre "
             "chiffre ne peut y être. Retiré : %r.",
             "Hidden quad: in %u, the digits %d can only go in %p; no other digit can be there. "
             "Removed: %r."},
    Sentence{
        14, 0,
        "Espadon (swordfish) : dans trois %b, le %d n'a de place qu'en %p, toutes dans trois %c ; "
        "chacune de celles-ci a là son %d, qui n'y a donc pas d'autre place. Retiré : %r.",
        "Swordfish: in three %b, the %d can only go in %p, all within three %c; each of these has "
        "its %d there, so it has no other place in them. Removed: %r."},
    Sentence{
        15, 0,
        "Méduse (jellyfish) : dans quatre %b, le %d n'a de place qu'en %p, toutes dans quatre %c ; "
        "chacune de celles-ci a là son %d, qui n'y a donc pas d'autre place. Retiré : %r.",
        "Jellyfish: in four %b, the %d can only go in %p, all within four %c; each of these has "
        "its %d there, so it has no other place in them. Removed: %r."},
    Sentence{16, 0,
             "Aile XY (XY-wing) : que %i soit l'un ou l'autre de %d, une des pinces %w est %x ; "
             "aucune case qui voit les deux ne peut l'être. Retiré : %r.",
             "XY-wing: whichever of %d stands in %i, one of the pincers %w is %x; no cell that "
             "sees both can hold it. Removed: %r."},
    Sentence{17, 0,
             "Aile XYZ (XYZ-wing) : quel que soit le chiffre de %i parmi %d, cette case ou une des "
             "pinces %w est %x ; aucune case qui les voit toutes ne peut l'être. Retiré : %r.",
             "XYZ-wing: whichever of %d stands in %i, that cell or one of the pincers %w is %x; no "
             "cell that sees all of them can hold it. Removed: %r."},
    Sentence{18, 1,
             "Aile X à aileron (finned X-wing) : dans %u et dans %v, le %d prend deux coins "
             "opposés parmi %p, ou bien il est en %f ; dans les deux cas, il n'est pas dans une "
             "case de leurs %c qui est dans la région de l'aileron. Retiré : %r.",
             "Finned X-wing: in %u and %v, the %d takes two opposite corners of %p, or else it is "
             "in %f; either way it is not in a cell of their %c in the fin's box. Removed: %r."},
    Sentence{18, 2,
             "Aile X à aileron (finned X-wing), sans aileron : dans %u et dans %v, le %d n'a de "
             "place qu'aux coins %p, donc pas d'autre dans leurs %c. Retiré : %r.",
             "Finned X-wing, without a fin: in %u and %v, the %d can only go in the corners %p, so "
             "it has no other place in their %c. Removed: %r."},
    Sentence{20, 0,
             "Aile W (W-wing) : %p n'ont que %d ; le %y est dans l'une de %e, qui voient chacune "
             "une case de cette paire, donc l'autre case de la paire est %x. Retiré : %r.",
             "W-wing: %p hold only %d; the %y stands in one of %e, each of which sees one cell of "
             "that pair, so the pair's other cell is %x. Removed: %r."},
    Sentence{
        21, 1,
        "Coloriage simple : deux couleurs, %1 contre %2 ; le %d est dans toutes les cases de l'une "
        "et dans aucune de l'autre, donc une case qui voit les deux ne peut l'avoir. Retiré : %r.",
        "Simple colouring: two colours, %1 against %2; the %d stands in every cell of one and in "
        "none of the other, so a cell that sees both cannot hold it. Removed: %r."},
    Sentence{21, 2,
             "Coloriage simple : deux couleurs, %1 contre %2 ; le %d est dans toutes les cases de "
             "l'une et dans aucune de l'autre, et deux cases d'une couleur se voient : elle est "
             "fausse. Retiré : %r.",
             "Simple colouring: two colours, %1 against %2; the %d stands in every cell of one and "
             "in none of the other, and two cells of one colour see each other: that one is false. "
             "Removed: %r."},
};

/// In the order of RunEnd.
constexpr std::array ends{
    Sentence{0, 0, "La grille est terminée.", "The puzzle is complete."},
    Sentence{0, 0, "Aucun chiffre n'est plus possible en %p : la grille ne peut être terminée.",
             "No digit is possible in %p any more: the puzzle cannot be completed."},
    Sentence{0, 0, "Aucune technique ne trouve plus rien.", "No technique finds anything more."},
};

/// Fills a sentence in with what a step did.
class Teller {
 public:
  Teller(const Step& step, std::string_view language) : step_(step), is_french_(language == "Fr") {}

  std::string tell(const Sentence& sentence) const {
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

  std::string name(Unit unit) const {
    constexpr std::array<std::string_view, 3> french{"la ligne ", "la colonne ", "la région "};
    constexpr std::array<std::string_view, 3> english{"row ", "column ", "box "};
    const auto kind = static_cast<std::size_t>(unit.kind);
    return std::string(either(french[kind], english[kind])) + std::to_string(unit.number);
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

  const CellSet& losers_of(int digit) const {
    return step_.removed[static_cast<std::size_t>(digit)];
  }

  NineSet removed_digits() const {
    NineSet digits;
    for (int digit = 1; digit <= 9; ++digit)
      if (!losers_of(digit).empty()) digits.insert(digit);
    return digits;
  }

  /// All digits that exactly the cells which lost `digit` have lost.
  NineSet removed_like(int digit) const {
    NineSet digits;
    for (const int other : removed_digits())
      if (losers_of(other) == losers_of(digit)) digits.insert(other);
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
      text += list(losers_of(digit));
    }
    return text;
  }

  const Step& step_;
  bool is_french_;
};

const Sentence& sentence_for(const Step& step) {
  const auto* const found = std::ranges::find_if(sentences, [&](const Sentence& sentence) {
    return sentence.place == step.place && sentence.variant == step.variant;
  });
  if (found == sentences.end())
    throw std::out_of_range("no sentence for place " + std::to_string(step.place));
  return *found;
}

}  // namespace

std::string explain(const Step& step, std::string_view language) {
  return Teller(step, language).tell(sentence_for(step));
}

std::string explain(RunEnd end, const Step& step, std::string_view language) {
  return Teller(step, language).tell(ends.at(static_cast<std::size_t>(end)));
}

}  // namespace sdk
