// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The turns of phrase that claims are read from, as regular expressions. @C stands for a list of
/// cells, @D for one of digits, @U for a unit, @L for the word for the lines across it.
#pragma once

namespace sdk::test {

struct Turns {
  const char *cell, *unit, *line, *conjunction;
  const char *named_unit, *other_names;        ///< unit; nothing
  const char *only_be, *only_be_next;          ///< cells, digits
  const char *only_go, *only_go_next;          ///< unit, digits, places; unit, places
  const char *digits_next, *also_in;           ///< digits, cells; unit, digits, cells
  const char* losers_see;                      ///< digit, cells
  const char *sees, *sees_value;               ///< cells, digit, cells
  const char *has, *step_removed, *step_took;  ///< unit, digits; step, digits; step, cells
  const char *if_it_is, *makes;                ///< digit, cells, digit; cell, cells, digit
  const char *colours, *clash;                 ///< cells, cells; cells
  const char *so_is, *covers;                  ///< cell, cell; lines
  const char *wing, *fins;          ///< lines, digit, lines across; cells, digit, cell, digit
  const char *corner, *neither;     ///< cells; cells, digit
  const char *swapped, *ruled_out;  ///< digits
  const char *is_no, *neither_is;   ///< cells, digit, digit; cells, digit
  const char *rests_on, *not_here;  ///< step; nothing
  const char *removal, *removed;    ///< all of it; digits, cells
};

inline constexpr Turns english{
    .cell = "r\\dc\\d",
    .unit = "(?:row|column|box) \\d",
    .line = "(?:row|column) ",
    .conjunction = "(?:and|or)",
    .named_unit = "(@U)",
    .other_names = "r\\dc\\d|(?:row|column)s? @D|@U|step \\d+",
    .only_be = "(@C) can only be (@D)",
    .only_be_next = "^; (@C) only (@D)",
    .only_go = "[Ii]n (@U)(?: \\(and in @U\\))?, the (@D) can only go in (@C|@L@D)",
    .only_go_next = "^; in (@U), only in (@C|@L@D)",
    .digits_next = "^; the (@D) only in (@C)",
    .also_in = "\\(and in (@U)\\), the (@D) can only go in (@C)",
    .losers_see = "the following cells see an? (\\d) in (@C)",
    .sees = "(@C) sees? an? (\\d) in (@C)",
    .sees_value = "(@C) sees? the (\\d) in (@C)",
    .has = "(@U) has (@D)",
    .step_removed = "step (\\d+) removed the (@D)",
    .step_took = "step (\\d+) took it from (@C)",
    .if_it_is = "if it is (\\d), (@C) (?:is|are) (\\d)",
    .makes = "[Ii]n (@C) it makes (@C) an? (\\d)",
    .colours = "either (@C), or (@C)\\.",
    .clash = "But (@C) see each other",
    .so_is = "[Ii]f (r\\dc\\d) is \\d, so is (r\\dc\\d)",
    .covers = "(?:row|column)s (@D) have their \\d there and nowhere else",
    .wing = "(?:row|column)s (@D) have their (\\d) in (?:row|column) (@D)",
    .fins = "If (.*) is (?:not )?(\\d), [^;]*; if (?:it|one) is, (@C) sees (it)",
    .corner = "If (@C) were @D too",
    .neither = "If (?:neither|none of) (.*) were (\\d),",
    .swapped =
        "the (@D) could be swapped in the corners, (?:giving two solutions; a Sudoku has one|but a "
        "Sudoku has only one solution)\\. So",
    .ruled_out =
        "(?:It is assumed that the corners do not hold just|If not all corners are) (@D) \\(not "
        "certain here: [^)]*\\)(?:\\. If that is right)?,",
    .is_no = "(?:So|right,) (@C) is neither (\\d) nor (\\d)\\.",
    .neither_is = "(?:So|right,|\\),) neither (?:(r.c. nor r.c.) )?is (\\d)\\.",
    .rests_on = " \\(not certain: rests on step (\\d+)\\)$",
    .not_here = "\\((not certain here): ",
    .removal = " To remove: (.*)\\.$",
    .removed = "(@D) from (@C)",
};

inline constexpr Turns french{
    .cell = "L\\dC\\d",
    .unit = "la (?:ligne|colonne|région) \\d",
    .line = "(?:ligne|colonne) ",
    .conjunction = "(?:et|ou)",
    .named_unit = "((?:ligne|colonne|région) \\d)",
    .other_names = "L\\dC\\d|(?:ligne|colonne|région)s? @D|@U|étape \\d+|qu'en @D",
    .only_be = "(@C) ne peu(?:t|vent) être que (@D)",
    .only_be_next = "^ ; (@C) que (@D)",
    .only_go = "[Dd]ans (@U)(?: \\(et dans @U\\))?, les? (@D) ne v(?:a|ont) qu'en (@C|@L@D)",
    .only_go_next = "^ ; ((?:ligne|colonne|région) \\d), qu'en (@C|@D)",
    .digits_next = "^ ; les? (@D) qu'en (@C)",
    .also_in = "\\(et dans (@U)\\), le (@D) ne va qu'en (@C)",
    .losers_see = "les cases qui suivent voient un (\\d) en (@C)",
    .sees = "(@C) voi(?:t|ent) un (\\d) en (@C)",
    .sees_value = "(@C) voi(?:t|ent) le (\\d) en (@C)",
    .has = "(@U) a les? (@D)",
    .step_removed = "l'étape (\\d+) a retiré les? (@D)",
    .step_took = "l'étape (\\d+) l'a retiré de (@C)",
    .if_it_is = "si elle est (\\d), (@C) (?:est|sont) (\\d)",
    .makes = "[Ee]n (@C), il fait de (@C) un (\\d)",
    .colours = "soit (@C), soit (@C)\\.",
    .clash = "Mais (@C) se voient",
    .so_is = "[Ss]i (L\\dC\\d) est \\d, (L\\dC\\d) aussi",
    .covers = "les (?:ligne|colonne)s (@D) ont là leur \\d, et pas ailleurs",
    .wing = "les (?:ligne|colonne)s (@D) ont leur (\\d) en (?:ligne|colonne) (@D)",
    .fins = "Si (.*) n'est (?:pas )?(\\d), [^;]* ; sinon (@C) voit ce (\\d)",
    .corner = "Si (@C) était @D aussi",
    .neither = "Si ni (.*) n'était (\\d),",
    .swapped =
        "les (@D) (?:aux coins, or un sudoku n'a|pourraient s'échanger, or il n'y a) qu'une "
        "solution\\. Donc",
    .ruled_out =
        "(?:On suppose que|Si) les coins n'ont pas que (@D) \\(pas certain ici : [^)]*\\)(?:\\. Si "
        "c'est juste)?,",
    .is_no = "(?:Donc|juste,) (@C) n'est ni (\\d) ni (\\d)\\.",
    .neither_is = "(?:Donc|juste,|\\),) (?:aucune|ni (L.C. ni L.C.)) n'est (\\d)\\.",
    .rests_on = " \\(pas certain : s'appuie sur l'étape (\\d+)\\)$",
    .not_here = "\\((pas certain ici) : ",
    .removal = " À retirer : (.*)\\.$",
    .removed = "(@D) de (@C)",
};

}  // namespace sdk::test
