// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tools/walk/marks.hpp"

#include <utility>

#include "board/grid_text.hpp"

namespace sdk {

void MarkedCells::draw(const Event& event) {
  draw_values(event.before.candidates);
  for (const Highlight& highlight : event.deduction.highlights)
    if (highlight.mark) draw(highlight.cell, *highlight.mark);
}

void MarkedCells::draw_values(const CandidateCube& candidates) {
  for (const int cell : removed_ | support_ | second_)
    if (candidates.value(cell_at(cell)) != 0) draw(cell_at(cell), Mark::value);
}

void MarkedCells::draw(Cell cell, Mark mark) {
  for (CellSet* const cells : {&removed_, &support_, &second_}) cells->erase(cell);
  if (mark == Mark::removed) removed_.insert(cell);
  if (mark == Mark::support) support_.insert(cell);
  if (mark == Mark::second) second_.insert(cell);
}

namespace {

void append_names(std::string& text, const CellSet& cells) {
  bool is_first = true;
  for (const int cell : cells) {
    if (!std::exchange(is_first, false)) text += ',';
    text += name_of(cell_at(cell));
  }
}

}  // namespace

std::string MarkedCells::text() const {
  std::string text = "3=";
  append_names(text, removed_);
  text += " 4=";
  append_names(text, support_);
  text += " 6=";
  append_names(text, second_);
  return text;
}

}  // namespace sdk
