// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tools/guide/pictures.hpp"

#include <QPainter>
#include <algorithm>
#include <stdexcept>
#include <utility>

#include "explanations/step_picture.hpp"
#include "pas_a_pas/tables.hpp"
#include "pas_a_pas/view.hpp"
#include "tools/guide/errors.hpp"
#include "tools/guide/positions.hpp"
#include "ui/qt/cell_painter.hpp"
#include "ui/qt/step_painter.hpp"

namespace sdk {

namespace {

// One puzzle serves all pictures that are not about a technique.
constexpr std::string_view puzzle =
    "5.7...42.4...3.9.79.2.4.6.5..91..2...1.7.9.....8..31..7.4..8......5.28......1679.";

/// The same puzzle with two cells to go; a hint begins with the one in the middle.
constexpr std::string_view nearly_done =
    "5879614234612359879328476153791842566157.934824865317972439856119657283485341679.";

/// The puzzle with some digits of a player; a cell in the middle box stays the current one.
void play(Studio& studio) {
  studio.lay_out(puzzle);
  studio.type(1, 6, 1);
  studio.type(2, 6, 5);
  studio.type(3, 4, 8);
  studio.select(5, 5);
}

/// The question of a hint that took more than one step, the first of which is chosen.
QImage take_offer(Studio& studio) {
  studio.lay_out(position_named("xy_wing").grid);
  studio.show_candidates(true);
  QImage image;
  studio.boxes().answer = [&](QMessageBox& box) {
    studio.choose_step(0);
    image = studio.window_under(box);
    return QMessageBox::No;
  };
  studio.ask_hint();
  studio.boxes().answer = nullptr;
  studio.show_candidates(false);
  return image;
}

/// Shows the candidates that the event found, and its marks beside those that stand.
void show(const Event& event) {
  solver.position = event.before;
  affiche_candidats();
  draw(event.deduction.highlights);
}

/// Shows, step by step, the hint up to the step for which the position is there.
void show_steps(const GuidePosition& position) {
  globals.ModePasAPas = true;
  for (const Event& event : steps_to(position)) show(event);
}

QImage take_step(const GuidePosition& position) {
  constexpr int side = 9 * cell_side;
  QImage image(QSize(side, side) * picture_scale, QImage::Format_RGB32);
  image.setDevicePixelRatio(picture_scale);
  QPainter painter(&image);
  paint_step(painter, {0, 0, side, side}, picture_of(steps_to(position).back()));
  return image;
}

/// The first cell of the candidates that is marked so.
QImage cell_marked(Studio& studio, Mark mark) {
  for (int number = 1; number <= 81; ++number) {
    const Cell cell = cell_at(number);
    if (sudoku().MSR.cell(cell.row - 1, cell.column - 1).mark == static_cast<int>(mark))
      return studio.cell("MSR", cell.row, cell.column);
  }
  throw std::logic_error("no cell is marked " + std::to_string(static_cast<int>(mark)));
}

QImage take_mark(Studio& studio, Mark mark) {
  const GuidePosition& position = position_named("xy_wing");
  studio.lay_out(position.grid);
  studio.show_candidates(true);
  show_steps(position);
  QImage image = cell_marked(studio, mark);
  studio.show_candidates(false);
  return image;
}

QImage take_given(Studio& studio, int level) {
  studio.lay_out(puzzle, level);
  return studio.cell("MSF", 5, 2);
}

QImage take_given_of_file(Studio& studio) {
  studio.lay_out(puzzle);
  studio.set_background_of_givens(colour::from_file);
  return studio.cell("MSF", 5, 2);
}

QImage take_hinted(Studio& studio) {
  studio.lay_out(nearly_done);
  studio.boxes().answer = [](QMessageBox&) {
    return sudoku().MSF.is_filled(4, 4) ? QMessageBox::No : QMessageBox::Yes;
  };
  studio.ask_hint();
  studio.boxes().answer = nullptr;
  studio.select(1, 1);
  return studio.cell("MSF", 5, 5);
}

QImage take_typed(Studio& studio, int digit) {
  studio.lay_out(puzzle);
  studio.type(5, 5, digit);
  studio.select(1, 2);
  return studio.cell("MSF", 5, 5);
}

}  // namespace

Pictures::Pictures(const std::string& language) : studio_(language) {}

std::vector<Pictures::Shot> Pictures::shots_of_window() {
  return {
      {"window", 76, [](Studio& studio) { return play(studio), studio.window(); }},
      {"candidates", 118,
       [](Studio& studio) {
         play(studio);
         studio.show_candidates(true);
         QImage image = studio.window();
         studio.show_candidates(false);
         return image;
       }},
      {"offer", 118, take_offer},
  };
}

std::vector<Pictures::Shot> Pictures::shots_of_cells() {
  constexpr double width = 5.5;
  std::vector<Shot> shots{
      {"given-file", width, take_given_of_file},
      {"hinted", width, take_hinted},
      {"typed", width, [](Studio& studio) { return take_typed(studio, 2); }},
      {"wrong", width, [](Studio& studio) { return take_typed(studio, 1); }},
  };
  for (int level = 0; level < 5; ++level)
    shots.push_back({QString("given-%1").arg(level), width,
                     [level](Studio& studio) { return take_given(studio, level); }});
  for (const auto& [name, mark] : {std::pair("mark-removed", Mark::removed),
                                   {"mark-support", Mark::support},
                                   {"mark-second", Mark::second},
                                   {"mark-value", Mark::value}})
    shots.push_back(
        {name, width, [mark = mark](Studio& studio) { return take_mark(studio, mark); }});
  return shots;
}

std::vector<Pictures::Shot> Pictures::shots_of_buttons() {
  constexpr double width = 5.5;
  std::vector<Shot> shots;
  for (const auto& [name, button] : {std::pair("new", "Command1"),
                                     {"open", "Command6"},
                                     {"save", "sauve"},
                                     {"print", "Command4"},
                                     {"hint", "Command8"},
                                     {"verify", "Command7"},
                                     {"solve", "Bouton_GO"},
                                     {"clear", "Command2"},
                                     {"undo", "undo"},
                                     {"redo", "redo"},
                                     {"help", "aide"},
                                     {"about", "Command5"},
                                     {"quit", "Command3"}})
    shots.push_back({QString("button-") + name, width,
                     [button = button](Studio& studio) { return studio.button(button); }});
  return shots;
}

std::vector<Pictures::Shot> Pictures::shots_of_steps() {
  constexpr double width = 68;
  std::vector<Shot> shots;
  for (const GuidePosition& position : positions())
    shots.push_back({"step-" + QString::fromStdString(name_of(position)), width,
                     [&position](Studio&) { return take_step(position); }});
  return shots;
}

std::vector<Pictures::Shot> Pictures::shots() {
  std::vector<Shot> all;
  for (auto family : {shots_of_window, shots_of_cells, shots_of_buttons, shots_of_steps})
    std::ranges::move(family(), std::back_inserter(all));
  return all;
}

Picture Pictures::take(const QString& name) {
  const auto shot = std::ranges::find(shots_, name, &Shot::name);
  if (shot == shots_.end()) throw GuideError("nobody takes the picture " + name);
  return {shot->take(studio_), shot->width};
}

std::vector<QString> Pictures::names() const {
  std::vector<QString> names;
  for (const Shot& shot : shots_) names.push_back(shot.name);
  return names;
}

}  // namespace sdk
