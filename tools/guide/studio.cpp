// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "tools/guide/studio.hpp"

#include <QApplication>
#include <QPainter>
#include <QPushButton>
#include <stdexcept>

#include "ui/qt/cell_painter.hpp"

namespace sdk {

QImage picture_of(QWidget& widget) {
  QImage image(widget.size() * picture_scale, QImage::Format_RGB32);
  image.setDevicePixelRatio(picture_scale);
  image.fill(widget.palette().color(QPalette::Window));
  widget.render(&image);
  return image;
}

namespace {

/// The question of a hint is not modal.
QMessageBox* open_box() {
  for (QWidget* widget : QApplication::topLevelWidgets())
    if (auto* box = qobject_cast<QMessageBox*>(widget); box && box->isVisible()) return box;
  return nullptr;
}

}  // namespace

void prepare_screen() { qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" STUDIO_SCREEN); }

BoxAnswerer::BoxAnswerer() {
  connect(&timer_, &QTimer::timeout, this, &BoxAnswerer::look_for_box);
  timer_.start(1);
}

void BoxAnswerer::look_for_box() {
  QMessageBox* box = open_box();
  if (!box) return;
  QAbstractButton* button = box->button(answer ? answer(*box) : QMessageBox::No);
  (button ? button : box->button(QMessageBox::Ok))->click();
}

Studio::Studio(const std::string& language) {
  desktop_.set_window(&frame_);
  window_.start("");
  frame_.show();
  QApplication::setActiveWindow(&frame_);
  if (language != globals.Langue) window_.preview_key(key::f1);
  settle();
}

void Studio::lay_out(std::string_view puzzle, int level) {
  window_.choose_level(level);
  for (int k = 0; k < 81; ++k) {
    const char c = puzzle[static_cast<std::size_t>(k)];
    window_.MSF.make_current(k / 9, k % 9);
    window_.MSF.set_text(std::string(1, c == '.' ? ' ' : c));
    window_.MSF.set_text_colour(colour::black);
    window_.MSF.set_back_colour(c == '.' ? colour::white : globals.CouleurDonnees);
  }
  window_.maj_indices();
  window_.MajCandidats();
  select(5, 5);
}

void Studio::set_background_of_givens(Colour colour) {
  for (int k = 0; k < 81; ++k) {
    window_.MSF.make_current(k / 9, k % 9);
    if (window_.MSF.current().is_given()) window_.MSF.set_back_colour(colour);
  }
}

void Studio::type(int row, int column, int digit) {
  select(row, column);
  window_.key_down(key::digit_1 + digit - 1, false);
  settle();
}

void Studio::select(int row, int column) {
  window_.MSF.make_current(row - 1, column - 1);
  settle();
}

void Studio::show_candidates(bool shown) {
  window_.check(Control::Check2, shown);
  settle();
}

void Studio::choose_step(std::size_t step) {
  window_.choose_step(step);
  settle();
}

QImage Studio::window() {
  settle();
  return picture_of(frame_);
}

QImage Studio::cell(const char* grid, int row, int column) {
  constexpr int inset = 1;  // the frame covers what the lines between the boxes leave in a cell
  const QRect square((column - 1) * cell_side, (row - 1) * cell_side, cell_side, cell_side);
  QImage image =
      cut_out(square.translated(widget(grid).pos()).adjusted(inset, inset, -inset, -inset));
  QPainter painter(&image);
  painter.setPen(Qt::lightGray);
  painter.drawRect(0, 0, square.width() - 2 * inset - 1, square.height() - 2 * inset - 1);
  return image;
}

QImage Studio::button(const char* name) {
  widget(name).setEnabled(true);
  return picture_of(widget(name));
}

QImage Studio::cut_out(const QRect& area) {
  const QImage all = picture_of(frame_);
  return all.copy(QRect(area.topLeft() * picture_scale, area.size() * picture_scale));
}

QImage Studio::window_under(QMessageBox& box) {
  constexpr int edge = 1, title_bar = 8;  // the box has none here, but takes the room of one
  QImage image = picture_of(frame_);
  const QRect place(box.pos() - frame_.pos() + QPoint(0, title_bar), box.size());
  QPainter painter(&image);
  painter.fillRect(place.adjusted(-edge, -edge, edge, edge), Qt::darkGray);
  painter.drawImage(place.topLeft(), picture_of(box));
  return image;
}

QWidget& Studio::widget(const char* name) {
  auto* found = frame_.findChild<QWidget*>(name);
  if (!found) throw std::logic_error(std::string("no widget is called ") + name);
  return *found;
}

void Studio::settle() {
  for (int round = 0; round < 2; ++round) QCoreApplication::processEvents();
}

}  // namespace sdk
