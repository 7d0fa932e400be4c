// SPDX-FileCopyrightText: 2026 the SuDoKu team
// SPDX-License-Identifier: MIT

#include "ui/qt/command_bar.hpp"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/qt/accessibility.hpp"
#include "ui/qt/icons.hpp"
#include "ui/qt/object_names.hpp"

namespace sdk {

namespace {

struct ButtonLook {
  Control control;
  const char* icon;
  bool starts_group;
};

/// From left to right: the puzzle and its file, help with solving it, the program.
constexpr ButtonLook button_looks[] = {
    {Control::Command1, "new", false},    {Control::Command6, "load", false},
    {Control::sauve, "save", false},      {Control::Command4, "print", false},
    {Control::Command8, "hint", true},    {Control::Command7, "verify", false},
    {Control::Bouton_GO, "solve", false}, {Control::Command2, "clear", false},
    {Control::aide, "help", true},        {Control::Command5, "about", false},
    {Control::Command3, "quit", false},
};

constexpr int icon_side = 28;
constexpr int button_side = 46;

QString name_for_player(const MainWindow& window, Control button) {
  const std::string& tooltip = window.control(button).tooltip;
  return tooltip.empty() ? notice_text(Notice::hint) : QString::fromStdString(tooltip);
}

}  // namespace

CommandBar::CommandBar(QWidget* parent) : QWidget(parent), title_(new QLabel(this)) {
  name_after(*title_, Control::Label3);
  title_->setTextFormat(Qt::PlainText);
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->addWidget(title_);
  rows->addLayout(make_buttons());
}

QLayout* CommandBar::make_buttons() {
  auto* row = new QHBoxLayout;
  row->setSpacing(4);
  for (const ButtonLook& look : button_looks) {
    if (look.starts_group) row->addStretch();
    row->addWidget(make_button(look.control, look.icon));
  }
  return row;
}

QToolButton* CommandBar::make_button(Control control, const char* icon) {
  auto* button = new QToolButton(this);
  name_after(*button, control);
  button->setIcon(button_icon(icon));
  button->setIconSize({icon_side, icon_side});
  button->setFixedSize(button_side, button_side);
  button->setAutoRaise(true);
  QSizePolicy policy = button->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  button->setSizePolicy(policy);
  button->installEventFilter(this);
  connect(button, &QToolButton::clicked, this, [this, control] { emit clicked(control); });
  buttons_.push_back({control, button});
  return button;
}

/// Sees the events of the buttons.
bool CommandBar::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::FocusOut) return false;
  const auto left = std::ranges::find(buttons_, watched, &Button::widget);
  if (left != buttons_.end()) emit focus_lost(left->control);
  return false;
}

void CommandBar::show_state(const MainWindow& window) {
  set_accessible_name(*this, notice_text(Notice::commands));
  title_->setText(QString::fromStdString(window.control(Control::Label3).caption));
  title_->setVisible(window.visible(Control::Label3));
  for (const auto& [control, button] : buttons_) {
    const QString name = name_for_player(window, control);
    button->setToolTip(name);
    set_accessible_name(*button, name);
    button->setVisible(window.visible(control));
  }
}

}  // namespace sdk
