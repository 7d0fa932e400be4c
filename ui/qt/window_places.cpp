// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

// Where the parts of the window stand, and which of them are seen on a small screen.

#include <QApplication>
#include <QMessageBox>
#include <QScreen>

#include "ui/qt/cell_painter.hpp"
#include "ui/qt/main_frame.hpp"
#include "ui/qt/pixels.hpp"

namespace sdk {

namespace {

constexpr int band_margin = 12;
constexpr int explanation_margin = 8;

/// A cell's place in its grid, rows and columns 1..9.
QRect square_of(int row, int column) {
  return {(column - 1) * cell_side, (row - 1) * cell_side, cell_side, cell_side};
}

}  // namespace

void MainFrame::place_widgets() {
  const Layout& layout = window_.layout();
  small_screen_.fit(pixels(layout.window).size());
  const QPoint origin = small_screen_.origin();
  const QRect inside = pixels(layout.window).translated(origin);
  const QRect msf_frame = pixels(layout.rect).translated(origin);
  place_bands(inside, msf_frame);
  rect_->setGeometry(msf_frame);
  rect2_->setGeometry(pixels(layout.rect2).translated(origin));
  msf_->setGeometry(pixels(layout.MSF).translated(origin));
  msr_->setGeometry(pixels(layout.MSR).translated(origin));
  lines_->setGeometry(inside);
}

void MainFrame::place_bands(const QRect& inside, const QRect& msf_frame) {
  // As wide as the narrow window, so that nothing moves when the candidates are shown.
  const int width = pixels(sdk::layout(false).window).width() - 2 * band_margin;
  const int left = inside.left() + band_margin, top = inside.top() + band_margin;
  commands_->setGeometry(left, top, width, msf_frame.top() - band_margin - top);
  options_->setGeometry(left, msf_frame.bottom() + 1 + band_margin, width,
                        inside.bottom() - msf_frame.bottom() - 2 * band_margin);
  QRect below = inside.adjusted(0, 0, -band_margin, -explanation_margin);
  below.setTop(msf_frame.bottom() + 1 + explanation_margin);
  explanation_->setGeometry(options_->free_room(below, !window_.visible(Control::rect2)));
}

void MainFrame::centre_on_screen() {
  update_.make_now();
  move(screen()->availableGeometry().center() - rect().center());
}

/// The page's area that a rectangle of one of its widgets covers.
QRect MainFrame::area_of(const QWidget& widget, const QRect& part) const {
  return part.translated(widget.mapTo(this, QPoint()) - small_screen_.origin());
}

void MainFrame::show_cell(const GridView& grid, int row, int column) {
  small_screen_.bring_into_sight(area_of(grid, square_of(row, column)));
}

void MainFrame::show_current_cell(const GridView& grid) {
  if (!grid.hasFocus() || QGuiApplication::mouseButtons()) return;
  const QModelIndex cell = grid.currentIndex();
  show_cell(grid, cell.row() + 1, cell.column() + 1);
}

/// The band or grid that the focus is in as far as it has room, and above all what has the focus.
void MainFrame::show_focus(QWidget* focus) {
  if (small_screen_.is_whole() || !isAncestorOf(focus) || QGuiApplication::mouseButtons()) return;
  const QWidget* part = focus;
  while (part->parentWidget() != this) part = part->parentWidget();
  small_screen_.bring_into_sight(area_of(*part, part->rect()));
  if (focus == msf_ || focus == msr_) return show_current_cell(static_cast<GridView&>(*focus));
  small_screen_.bring_into_sight(area_of(*focus, focus->rect()));
}

/// A question stands over the upper edge of the window, which a small screen may have scrolled so
/// far that the cell it asks about stands there too.
void MainFrame::show_offer(QMessageBox& box) {
  const std::optional<Cell> offer = window_.explanation().offered_cell();
  if (small_screen_.is_whole() || !offer) return;
  const GridView& grid = msr_->isVisible() ? *msr_ : *msf_;
  small_screen_.bring_into_sight(area_of(*explanation_, explanation_->rect()));
  show_cell(grid, offer->row, offer->column);
  const QRect cell = square_of(offer->row, offer->column).translated(grid.mapToGlobal(QPoint()));
  const int frame_height = frameGeometry().height() - height();
  if (box.geometry().adjusted(0, 0, 0, frame_height).intersects(cell))
    box.move(box.x(), cell.bottom() + 1 + band_margin);
}

}  // namespace sdk
