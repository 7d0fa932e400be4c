// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/explanation.hpp"

#include "explanations/explanations.hpp"
#include "pas_a_pas/tables.hpp"
#include "screen/display_grid.hpp"

namespace sdk {

namespace {

std::vector<std::string> texts_of(const DisplayGrid& grid) {
  std::vector<std::string> texts;
  for (const DisplayCell& cell : grid.cells()) texts.push_back(cell.text);
  return texts;
}

}  // namespace

void Explanation::tell(const DisplayGrid& grid) {
  clear();
  if (solver.hint) puzzle_ = texts_of(grid);
}

void Explanation::clear() {
  puzzle_.clear();
  chosen_.reset();
  answered_ = false;
}

bool Explanation::is_outdated(const DisplayGrid& grid) const {
  return !puzzle_.empty() && puzzle_ != texts_of(grid);
}

std::vector<std::string> Explanation::texts(std::string_view language) const {
  if (puzzle_.empty()) return {};
  return explain(solver.hint->events(), language);
}

std::size_t Explanation::size() const { return puzzle_.empty() ? 0 : solver.hint->events().size(); }

void Explanation::choose(std::optional<std::size_t> step) {
  chosen_ = step && *step < size() ? step : std::nullopt;
}

std::optional<StepPicture> Explanation::picture() const {
  if (!chosen_) return std::nullopt;
  return picture_of(solver.hint->events()[*chosen_]);
}

void Explanation::leave() {
  chosen_.reset();
  answered_ = true;
}

std::optional<StepPicture> Explanation::outcome() const {
  if (size() == 0) return std::nullopt;
  const Event& last = solver.hint->events().back();
  const bool open = last.kind == EventKind::offer && !answered_;
  return open || last.kind == EventKind::dead ? std::optional(picture_of(last)) : std::nullopt;
}

std::optional<Cell> Explanation::offered_cell() const {
  if (size() == 0) return std::nullopt;
  const auto& offer = solver.hint->events().back().deduction.placement;
  return offer ? std::optional(offer->cell) : std::nullopt;
}

std::string Explanation::fault(const DisplayGrid& grid) const {
  if (puzzle_.empty()) return chosen_ ? "a step of no explanation is chosen" : "";
  if (is_outdated(grid)) return "the explanation is of another puzzle";
  if (!solver.hint || !solver.hint->is_over()) return "the explanation is of no hint";
  if (chosen_ && *chosen_ >= size()) return "the chosen step is missing";
  return "";
}

}  // namespace sdk
