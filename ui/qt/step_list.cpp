// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/step_list.hpp"

#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>

#include "ui/qt/sentence_delegate.hpp"

namespace sdk {

StepList::StepList(QWidget* parent) : QListView(parent) {
  setModel(&texts_);
  setItemDelegate(new SentenceDelegate(this));
  setEditTriggers(NoEditTriggers);
  setSelectionMode(SingleSelection);
  setResizeMode(Adjust);
  setVerticalScrollMode(ScrollPerPixel);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  connect(this, &QListView::clicked, this, &StepList::click);
}

void StepList::show_steps(const QStringList& texts, std::optional<std::size_t> chosen) {
  const QScopedValueRollback showing(showing_, true);
  const bool changed = texts != texts_.stringList();
  if (changed) texts_.setStringList(texts);
  if (!changed && chosen == this->chosen()) return;
  select(chosen);
  if (changed || chosen) keep_in_view();
}

std::optional<std::size_t> StepList::chosen() const {
  const QModelIndexList rows = selectionModel()->selectedRows();
  if (rows.isEmpty()) return std::nullopt;
  return static_cast<std::size_t>(rows.first().row());
}

void StepList::select(std::optional<std::size_t> step) {
  const QModelIndex row = step ? texts_.index(static_cast<int>(*step)) : QModelIndex();
  selectionModel()->setCurrentIndex(row, QItemSelectionModel::ClearAndSelect);
}

void StepList::keep_in_view() {
  const QModelIndex row = currentIndex();
  scrollTo(row.isValid() ? row : texts_.index(texts_.rowCount() - 1));
}

void StepList::choose_row(int row) {
  emit step_chosen(row < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(row)));
}

void StepList::click(const QModelIndex& index) {
  choose_row(selectionModel()->isSelected(index) ? -1 : index.row());
}

void StepList::choose_in_ring(int step) {
  const int places = texts_.rowCount() + 1;  // the first is none
  const int place = chosen() ? static_cast<int>(*chosen()) + 1 : 0;
  choose_row((place + step + places) % places - 1);
}

bool StepList::scroll_in_chosen(int direction) {
  const QRect row = visualRect(currentIndex());
  const bool goes_on = direction > 0 ? row.bottom() >= viewport()->height() : row.top() < 0;
  if (!chosen() || !goes_on) return false;
  QScrollBar& bar = *verticalScrollBar();
  bar.setValue(bar.value() + direction * fontMetrics().lineSpacing());
  return true;
}

void StepList::go(int direction) {
  if (!scroll_in_chosen(direction)) choose_in_ring(direction);
}

void StepList::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Up:
      return go(-1);
    case Qt::Key_Down:
      return go(1);
    case Qt::Key_Home:
      return choose_row(0);
    case Qt::Key_End:
      return choose_row(texts_.rowCount() - 1);
    case Qt::Key_PageUp:
      return verticalScrollBar()->triggerAction(QScrollBar::SliderPageStepSub);
    case Qt::Key_PageDown:
      return verticalScrollBar()->triggerAction(QScrollBar::SliderPageStepAdd);
    default:
      event->ignore();
  }
}

/// The style shows the keyboard focus on a chosen row alone, and there may be none.
void StepList::paintEvent(QPaintEvent* event) {
  QListView::paintEvent(event);
  if (!hasFocus()) return;
  QPainter painter(viewport());
  painter.setPen(palette().color(QPalette::Highlight));
  painter.drawRect(viewport()->rect().adjusted(0, 0, -1, -1));
}

void StepList::resizeEvent(QResizeEvent* event) {
  QListView::resizeEvent(event);
  keep_in_view();
}

/// The list selects what it is shown, and not what is under the mouse.
QItemSelectionModel::SelectionFlags StepList::selectionCommand(const QModelIndex&,
                                                               const QEvent*) const {
  return QItemSelectionModel::NoUpdate;
}

/// Screen readers select rows without a click.
void StepList::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
  QListView::selectionChanged(selected, deselected);
  if (!showing_) emit step_chosen(chosen());
}

}  // namespace sdk
