// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The explanation of the last hint, beside the options: its steps, and two buttons that lead
/// through them.
#pragma once

#include <QWidget>
#include <optional>

#include "ui/explanation.hpp"

class QToolButton;

namespace sdk {

class StepList;

/// Not to be seen while there is nothing to explain.
class ExplanationPanel : public QWidget {
  Q_OBJECT

 public:
  explicit ExplanationPanel(QWidget* parent);

  /// Shows the steps as `explanation` has them, in the current language.
  void show_state(const Explanation& explanation);

  /// Leaves the chosen step, if there is one and the keyboard focus is here.
  bool leave_step();

  /// The last sentence as it is shown; empty while there is none.
  QString last_sentence() const;

 signals:
  /// The player chooses a step, 0 the first; none shows all again.
  void step_chosen(std::optional<std::size_t> step);

 private:
  QToolButton* make_button(const char* name, const char* icon);

  StepList* steps_;
  QToolButton* previous_;
  QToolButton* next_;
};

}  // namespace sdk
