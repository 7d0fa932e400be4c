// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/explanation_panel.hpp"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

#include "game/globals.hpp"
#include "ui/qt/accessibility.hpp"
#include "ui/qt/icons.hpp"
#include "ui/qt/step_list.hpp"

namespace sdk {

namespace {

constexpr int icon_side = 18;
constexpr int button_side = 28;

QStringList numbered(const std::vector<std::string>& texts) {
  QStringList rows;
  for (const std::string& text : texts)
    rows << QString::number(rows.size() + 1) + ". " + QString::fromStdString(text);
  return rows;
}

QLabel* make_notice(const char* name, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  QFont bold = label->font();
  bold.setBold(true);
  label->setFont(bold);
  label->hide();
  return label;
}

void name_button(QToolButton& button, Notice name) {
  button.setToolTip(notice_text(name));
  set_accessible_name(button, notice_text(name));
}

}  // namespace

// The order in which the controls are made is the order of Tab.
ExplanationPanel::ExplanationPanel(QWidget* parent)
    : QWidget(parent),
      search_(make_notice("searching", this)),
      steps_(new StepList(this)),
      previous_(make_button("previous_step", "previous_step")),
      next_(make_button("next_step", "next_step")) {
  steps_->setObjectName("steps");
  auto* columns = new QHBoxLayout(this);
  columns->setContentsMargins(0, 0, 0, 0);
  columns->setSpacing(2);
  columns->addWidget(search_);
  columns->addWidget(steps_);
  auto* buttons = new QVBoxLayout;
  buttons->setSpacing(2);
  buttons->addWidget(previous_);
  buttons->addWidget(next_);
  buttons->addStretch();
  columns->addLayout(buttons);
  connect(steps_, &StepList::step_chosen, this, &ExplanationPanel::step_chosen);
  connect(previous_, &QToolButton::clicked, steps_, &StepList::choose_previous);
  connect(next_, &QToolButton::clicked, steps_, &StepList::choose_next);
  hide();
}

QToolButton* ExplanationPanel::make_button(const char* name, const char* icon) {
  auto* button = new IconButton(name, icon, icon_side, button_side, this);
  button->setFocusPolicy(Qt::TabFocus);
  return button;
}

void ExplanationPanel::show_state(const Explanation& explanation, bool searching) {
  set_accessible_name(*this, notice_text(Notice::explanation));
  set_accessible_name(*steps_, notice_text(Notice::explanation));
  name_button(*previous_, Notice::previous_step);
  name_button(*next_, Notice::next_step);
  steps_->show_steps(numbered(explanation.texts(globals.Langue)), explanation.chosen());
  for (QWidget* part : std::initializer_list<QWidget*>{steps_, previous_, next_})
    part->setVisible(!searching);
  setVisible(searching || explanation.size() > 0);
  show_search(searching);
}

void ExplanationPanel::show_search(bool searching) {
  const bool begins = searching && !search_->isVisible();
  search_->setVisible(searching);
  if (searching) search_->setText(notice_text(Notice::searching));
  if (!begins) return;
  QAccessibleEvent event(search_, QAccessible::Alert);
  QAccessible::updateAccessibility(&event);
}

bool ExplanationPanel::leave_step() {
  const QWidget* focus = window()->focusWidget();
  if (!steps_->chosen() || !focus || !isAncestorOf(focus)) return false;
  emit step_chosen(std::nullopt);
  return true;
}

QString ExplanationPanel::last_sentence() const {
  const QAbstractItemModel& rows = *steps_->model();
  return rows.index(rows.rowCount() - 1, 0).data().toString();
}

}  // namespace sdk
