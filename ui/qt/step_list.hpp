// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The sentences of a hint, one a row; a step is chosen among them.
#pragma once

#include <QListView>
#include <QStringListModel>
#include <cstddef>
#include <optional>

namespace sdk {

/// Steps are counted from 0; none chosen means that all are shown. The list changes nothing by
/// itself: it tells what the player chooses, and show_steps makes it so. The steps and "none" stand
/// in a ring, so that the step after the last leaves the steps as well as a second click on the
/// chosen one does. Up and Down scroll to the end of a long sentence before they go on; Page Up and
/// Page Down scroll only.
class StepList : public QListView {
  Q_OBJECT

 public:
  explicit StepList(QWidget* parent);

  /// New texts are shown with the last one in view, a chosen one otherwise.
  void show_steps(const QStringList& texts, std::optional<std::size_t> chosen);
  std::optional<std::size_t> chosen() const;

 public slots:
  void choose_next() { choose_in_ring(1); }
  void choose_previous() { choose_in_ring(-1); }

 signals:
  void step_chosen(std::optional<std::size_t> step);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                       const QEvent* event) const override;
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

 private:
  void click(const QModelIndex& index);
  void choose_in_ring(int step);
  void choose_row(int row);
  void go(int direction);
  bool scroll_in_chosen(int direction);
  void select(std::optional<std::size_t> step);
  void keep_in_view();

  QStringListModel texts_;
  bool showing_ = false;
};

}  // namespace sdk
