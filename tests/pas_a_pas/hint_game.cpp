// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tests/pas_a_pas/hint_game.hpp"

#include "pas_a_pas/order.hpp"
#include "puzzles/library.hpp"

namespace sdk::test {

std::string name_of(Cell cell) {
  return "r" + std::to_string(cell.row) + "c" + std::to_string(cell.column);
}

std::string library_puzzle(int number) {
  const auto& [mask, solution] = BibliothequeGrilles.at(static_cast<std::size_t>(number - 1));
  std::string puzzle(solution);
  for (std::size_t k = 0; k < puzzle.size(); ++k)
    if (mask[k] == '0') puzzle[k] = '.';
  return puzzle;
}

void SolverRecorder::tried(const Technique& technique, bool changed) {
  events.push_back(std::to_string(technique.place) + (changed ? " fired" : " nothing"));
}

void SolverRecorder::offered(Single kind, Cell cell, int digit) {
  events.push_back((kind == Single::naked ? "naked " : "hidden ") + name_of(cell) + "=" +
                   std::to_string(digit));
}

void SolverRecorder::ended(RunEnd end) {
  static constexpr const char* names[] = {"completed", "dead", "exhausted"};
  events.push_back(names[static_cast<int>(end)]);
}

HintGame::HintGame() {
  solver.GrilleFinie = solver.SuggestionTrouvee = false;
  solver.observer = &solving;
}

HintGame::~HintGame() { solver.observer = nullptr; }

Lines HintGame::questions() const {
  Lines texts;
  for (const Box& box : desktop.boxes)
    if (box.buttons == Buttons::yes_no) texts.push_back(box.text);
  return texts;
}

std::string HintGame::marked(int mode) const {
  std::string names;
  for (int number = 1; number <= 81; ++number) {
    const Cell cell = cell_at(number);
    if (candidates(cell.row, cell.column).mark != mode) continue;
    names += (names.empty() ? "" : " ") + name_of(cell);
  }
  return names;
}

void set_candidates(Cell cell, NineSet digits) {
  for (const int digit : NineSet::all() - digits) solver.Candidats.remove(cell, digit);
  solver.Candidats.set_count(cell, solver.Candidats.digits(cell).count());
}

void keep_places(Unit unit, int digit, NineSet places) {
  for (const int place : NineSet::all() - places) {
    const Cell cell = unit.cell(place);
    set_candidates(cell, solver.Candidats.digits(cell) - NineSet{digit});
  }
}

}  // namespace sdk::test
