// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tools/guide/positions.hpp"

#include <algorithm>
#include <stdexcept>

#include "board/grid_text.hpp"
#include "tools/guide/errors.hpp"

namespace sdk {

namespace {

const std::vector<GuidePosition> all_positions{
    {"naked_single",
     "5.7...42.4...3.9.79.2.4.6.5..91..2...1.7.9.....8..31..7.4..8......5.28......1679."},
    {"hidden_single",
     ".39.764.8..4.9..3.6....37....81..6.7.4....9...9.6.2..4....6....7.3.......1...7..."},
    {"pointing_rows",
     "4...683797689431523.97..648.43.9.86719.876.348763.4.91987615423..1439786634287915"},
    {"pointing_columns",
     "95871263446..9.1.717.64.89.541.697..39712.4.6826.7491.615287349734951268289436571"},
    {"box_line_rows",
     "7.3.628196.2819.3718937.2.6518793624294.5.783376248195421.3.97896..8.3.283.92..61"},
    {"box_line_columns",
     "129.654.767491..528532..91643512...9791....252685.91.4582691743917.5.268346782591"},
    {"naked_pair",
     ".295.3..6.189.6235563.....9345..8692196..5387872639154681.9.523937852461254361978"},
    {"hidden_pair",
     "1765...8959368.1..428791563349157628861..97542574683916148.593.7329.68.5985.....6"},
    {"naked_triple",
     "139657248...984361684321579875492613493716852216538794....69..5....73..6.6.845..7"},
    {"hidden_triple",
     "231549687...372914...681253...2935483..458761854716329...8.7496...9.517297.1.4835"},
    {"unique_rectangle",
     "8..92.13521578396439.51.27858.491.23.2983541.4312678591.834259..43159.82952678341",
     Rule::odd_corner},
    {"unique_rectangle",
     "..7.3418...81.743.431.8.27.81376.5.424.3.176876..483.19764138521528769433849..617",
     Rule::two_share_a_digit},
    {"unique_rectangle",
     "361879524257314968..86251375137468926..198.53.892536.1...531.861.69823.5835467219",
     Rule::bound_to_roof},
    {"unique_rectangle",
     "67.3258...3..81675.58.67.327.56349.838.579..64692187538.67523..593146287..789356.",
     Rule::three_share_a_digit},
    {"unique_rectangle",
     "167938542.5842.7..4.257...87.4.82.56.21.658.4586.942..679213485815647329243859617",
     Rule::bound_to_diagonal},
    {"avoidable_rectangle",
     ".54762.93.635.14272.7.43.653816279546754193824293587167.823654.5321.467..46.7523.",
     Rule::only,
     {{{5, 6}, 1, 9}, {{2, 6}, 1, 9}, {{5, 5}, 1, 9}}},
    {"naked_quad",
     "389724156465.1.2872....849353.2..864.248.69.5698.457.28.3...5.1.56.8.3.99.2...678"},
    {"x_wing", "1549367283268.79.59782..36.73.68.4..89147253646.1.387.68372.15.5493612872175.86.3"},
    {"hidden_quad",
     "345719268792658314618...795463.9.827271863459589427631.3....572.5....14312....986"},
    {"swordfish",
     "816...47539578462147216539876385..141...375865..64173.6314.8.57957.1684.2..57.16."},
    {"jellyfish",
     "91486.2.7.7.129.466.274.819721.9468.385276194469.18.7229.4.176.1.69.7428.476.29.1"},
    {"xy_wing",
     "..5..47324.37.2.1572..53.64257691348184375296639248571...536427346827159572419683"},
    {"xyz_wing",
     "936874125278315964415269837..758149..9.4367.....7926..759643281..31275491..958376"},
    {"finned_x_wing",
     "854..927...9..5148.1.4.859.98256431716..924854.58..629796243851541986732328.5.964",
     Rule::with_fin},
    {"w_wing", "256913478137.5.9624986..531642591783915...624783..6195.74.65.19.691...57521789346"},
    {"simple_colouring",
     "4387.9.1.16524837929713..84346.719..852493761719..2.43.8132.497.2498713.973.14...",
     Rule::trap},
};

}  // namespace

const std::vector<GuidePosition>& positions() { return all_positions; }

std::string name_of(const GuidePosition& position) {
  std::string name(position.technique);
  if (std::ranges::count(positions(), position.technique, &GuidePosition::technique) == 1)
    return name;
  const auto number = std::count_if(positions().data(), &position + 1, [&](const auto& other) {
    return other.technique == position.technique;
  });
  return name + "-" + std::to_string(number);
}

const GuidePosition& position_named(std::string_view name) {
  const auto found = std::ranges::find_if(
      positions(), [&](const GuidePosition& position) { return name_of(position) == name; });
  if (found == positions().end())
    throw GuideError("nobody takes a step called " +
                     QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())));
  return *found;
}

namespace {

Position start_of(const GuidePosition& position) {
  Position start = open_position(puzzle_of(position.grid));
  for (const auto& [cell, smaller, larger] : position.former_pairs)
    start.pairs(cell.row, cell.column) = {smaller, larger};
  return start;
}

bool is_sought(const Event& event, const GuidePosition& position) {
  const Technique* technique = event.deduction.technique;
  return technique && technique->id == position.technique && event.deduction.rule == position.rule;
}

}  // namespace

std::deque<Event> steps_to(const GuidePosition& position) {
  Run hint(start_of(position));
  while (!hint.is_over())
    if (is_sought(hint.next(), position)) return hint.events();
  throw std::logic_error("no hint uses " + name_of(position));
}

}  // namespace sdk
