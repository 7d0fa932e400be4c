// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "explanations/step_picture.hpp"

namespace sdk {

namespace {

/// Draws one event.
class Artist {
 public:
  explicit Artist(const Event& event) : event_(event) {}

  StepPicture draw() && {
    draw_position();
    draw_marks();
    draw_pattern();
    draw_removals();
    return std::move(picture_);
  }

 private:
  PictureCell& at(Cell cell) { return picture_.cells(cell.row, cell.column); }

  void draw_position() {
    const CandidateCube& candidates = event_.before.candidates;
    for (int number = 1; number <= 81; ++number) {
      const Cell cell = cell_at(number);
      at(cell).value = candidates.value(cell);
      if (at(cell).value == 0) at(cell).candidates = candidates.digits(cell);
    }
  }

  void draw_marks() {
    for (const Highlight& highlight : event_.deduction.highlights)
      if (highlight.mark) at(highlight.cell).mark = *highlight.mark;
  }

  void draw_pattern() {
    for (const Premise& premise : event_.deduction.premises)
      std::visit([this](const auto& fact) { draw(fact); }, premise);
  }

  void draw(const CellHolds& fact) { at(fact.cell).pattern |= fact.digits; }
  void draw(const DigitInUnit& fact) {
    for (const int cell : fact.cells) at(cell_at(cell)).pattern.insert(fact.digit);
  }
  void draw(const OneSolution&) {}

  void draw_removals() {
    for (int digit = 1; digit <= 9; ++digit)
      for (const int cell : event_.deduction.losers_of(digit))
        at(cell_at(cell)).removed.insert(digit);
  }

  const Event& event_;
  StepPicture picture_;
};

}  // namespace

StepPicture picture_of(const Event& event) { return Artist(event).draw(); }

}  // namespace sdk
