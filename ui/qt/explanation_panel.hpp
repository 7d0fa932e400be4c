// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

/// The explanation of the last hint, beside the options: its steps, and two buttons that lead
/// through them. During a search it says so instead.
#pragma once

#include <QWidget>
#include <optional>

#include "ui/explanation.hpp"

class QLabel;
class QToolButton;

namespace sdk {

class StepList;

/// Not to be seen while there is nothing to say.
class ExplanationPanel : public QWidget {
  Q_OBJECT

 public:
  explicit ExplanationPanel(QWidget* parent);

  /// Shows the steps as `explanation` has them, or, while the player waits for a search, how to
  /// stop it; in the current language.
  void show_state(const Explanation& explanation, bool searching);

  /// Leaves the chosen step, if there is one and the keyboard focus is here.
  bool leave_step();

  /// The last sentence as it is shown; empty while there is none.
  QString last_sentence() const;

 signals:
  /// The player chooses a step, 0 the first; none shows all again.
  void step_chosen(std::optional<std::size_t> step);

 private:
  QToolButton* make_button(const char* name, const char* icon);
  void show_search(bool searching);

  QLabel* search_;
  StepList* steps_;
  QToolButton* previous_;
  QToolButton* next_;
};

}  // namespace sdk
